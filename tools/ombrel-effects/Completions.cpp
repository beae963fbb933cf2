#include "Completions.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>

namespace Ombrel::EffectsTool
{
namespace
{

struct ShellCompletion
{
    const char* shell;
    std::string (*completion)(const ProgramOutline&);
};

constexpr std::array<ShellCompletion, 3> COMPLETIONS{{
    {"bash", &BashCompletion},
    {"fish", &FishCompletion},
    {"zsh", &ZshCompletion},
}};

void ReplaceAll(std::string& text, std::string_view from, std::string_view to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    {
        text.replace(at, from.size(), to);
    }
}

} // namespace

std::vector<std::string> Shells()
{
    std::vector<std::string> shells;
    shells.reserve(COMPLETIONS.size());
    for (const ShellCompletion& known : COMPLETIONS)
    {
        shells.emplace_back(known.shell);
    }
    return shells;
}

std::string Completion(const ProgramOutline& program, const std::string& shell)
{
    for (const ShellCompletion& known : COMPLETIONS)
    {
        if (known.shell == shell)
        {
            return known.completion(program);
        }
    }
    throw std::invalid_argument("no completion for the shell " + shell);
}

std::string ForProgram(const ProgramOutline& program, std::string_view text)
{
    std::string name = "_" + program.name;
    std::replace(name.begin(), name.end(), '-', '_');
    std::string result(text);
    ReplaceAll(result, "@program@", program.name);
    ReplaceAll(result, "@name@", name);
    return result;
}

std::string WithBackslashes(std::string_view text, std::string_view characters)
{
    std::string result;
    for (const char c : text)
    {
        if (characters.find(c) != std::string_view::npos)
        {
            result += '\\';
        }
        result += c;
    }
    return result;
}

std::string SingleQuoted(std::string_view text)
{
    std::string quoted = "'";
    for (const char c : text)
    {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + "'";
}

std::string WithSpaces(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
    {
        text += (text.empty() ? "" : " ") + word;
    }
    return text;
}

std::vector<std::string> NamesOf(const std::vector<ArgumentOutline>& options)
{
    std::vector<std::string> names;
    for (const ArgumentOutline& option : options)
    {
        names.insert(names.end(), option.names.begin(), option.names.end());
    }
    return names;
}

} // namespace Ombrel::EffectsTool
