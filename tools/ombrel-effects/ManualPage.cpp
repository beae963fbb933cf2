#include "ManualPage.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <string_view>
#include <vector>

namespace Ombrel::EffectsTool
{
namespace
{

/// Text that roff shows as it stands: a plain dash would become a hyphen, and a quote, a tilde or a circumflex a character that
/// no shell takes.
std::string Roff(std::string_view text)
{
    std::string result;
    for (const char c : text)
    {
        switch (c)
        {
        case '\\':
            result += "\\(rs";
            break;
        case '-':
            result += "\\-";
            break;
        case '"':
            result += "\\(dq";
            break;
        case '\'':
            result += "\\(aq";
            break;
        case '`':
            result += "\\(ga";
            break;
        case '~':
            result += "\\(ti";
            break;
        case '^':
            result += "\\(ha";
            break;
        default:
            result += c;
        }
    }
    return result;
}

/// A line of text. A dot at its beginning would make it a request.
std::string RoffLine(std::string_view text)
{
    return (text.starts_with('.') ? "\\&" : "") + Roff(text) + "\n";
}

std::string Bold(std::string_view text)
{
    return "\\fB" + Roff(text) + "\\fR";
}

std::string Italic(std::string_view text)
{
    return "\\fI" + Roff(text) + "\\fR";
}

std::string Sentence(std::string text)
{
    if (!text.empty() && std::string_view(".!?").find(text.back()) == std::string_view::npos)
    {
        text += '.';
    }
    return text;
}

std::vector<std::string> ParagraphsOf(std::string_view text)
{
    constexpr std::string_view BREAK = "\n\n";
    std::vector<std::string> paragraphs;
    while (!text.empty())
    {
        const std::size_t end = std::min(text.find(BREAK), text.size());
        std::string paragraph(text.substr(0, end));
        std::replace(paragraph.begin(), paragraph.end(), '\n', ' ');
        paragraphs.push_back(std::move(paragraph));
        text.remove_prefix(std::min(end + BREAK.size(), text.size()));
    }
    return paragraphs;
}

/// The first sentence of the help, as indexes of manual pages list it.
std::string PurposeOf(const ProgramOutline& program)
{
    std::string purpose = program.help.substr(0, program.help.find_first_of(".\n"));
    if (!purpose.empty())
    {
        purpose.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(purpose.front())));
    }
    return purpose;
}

std::string HelpOf(const ArgumentOutline& argument)
{
    std::string help = argument.help;
    if (!argument.restriction.empty())
    {
        help += " (" + argument.restriction + ")";
    }
    if (!argument.defaultValue.empty())
    {
        help += " (default " + argument.defaultValue + ")";
    }
    return Sentence(help);
}

std::string OptionItem(const ArgumentOutline& option)
{
    std::string text = ".TP\n";
    for (const std::string& name : option.names)
    {
        text += (&name == &option.names.front() ? "" : ", ") + Bold(name);
    }
    return text + (option.value.empty() ? "" : " " + Italic(option.value)) + "\n" + RoffLine(HelpOf(option));
}

std::string ArgumentItem(const ArgumentOutline& argument)
{
    return ".TP\n" + Italic(argument.names.back()) + "\n" + RoffLine(HelpOf(argument));
}

std::string Synopsis(const ProgramOutline& program, const CommandOutline& command)
{
    std::string text = Bold(program.name + " " + command.name);
    bool hasOptional = false;
    for (const ArgumentOutline& option : command.options)
    {
        hasOptional = hasOptional || !option.isRequired;
        if (option.isRequired)
        {
            text += " " + Bold(option.names.back()) + " " + Italic(option.value);
        }
    }
    text += hasOptional ? " [" + Italic("OPTION") + "]..." : "";
    for (const ArgumentOutline& argument : command.arguments)
    {
        const std::string name = Italic(argument.names.back()) + (argument.isRepeated ? "..." : "");
        text += argument.isRequired ? " " + name : " [" + name + "]";
    }
    return text + "\n";
}

/// Every command has the options for help, which stand in a section of their own.
bool IsOfProgram(const ProgramOutline& program, const ArgumentOutline& option)
{
    return std::any_of(program.options.begin(), program.options.end(),
                       [&option](const ArgumentOutline& other) { return other.names == option.names; });
}

std::string Section(const ProgramOutline& program, CommandOutline command)
{
    std::erase_if(command.options, [&program](const ArgumentOutline& option) { return IsOfProgram(program, option); });
    std::string text =
        ".SS " + Roff(command.name) + "\n" + Synopsis(program, command) + ".PP\n" + RoffLine(Sentence(command.help));
    for (const ArgumentOutline& argument : command.arguments)
    {
        text += ArgumentItem(argument);
    }
    for (const ArgumentOutline& option : command.options)
    {
        text += OptionItem(option);
    }
    return text;
}

std::string UpperCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

} // namespace

std::string ManualPage(const ProgramOutline& program, const ExitStatusHelp& exitStatus, const std::string& version)
{
    std::string text = ".TH " + Roff(UpperCase(program.name)) + " 1 \"\" \"" + Roff(version) + "\" \"User Commands\"\n";
    text += ".nh\n.ad l\n"; // what is to be typed is not broken, nor stretched
    text += ".SH NAME\n" + Roff(program.name) + " \\- " + Roff(PurposeOf(program)) + "\n";
    text += ".SH SYNOPSIS\n" + Bold(program.name) + " " + Italic("COMMAND") + " [" + Italic("OPTION") + "]... [" +
            Italic("ARGUMENT") + "]...\n";
    text += ".SH DESCRIPTION\n";
    std::string separator;
    for (const std::string& paragraph : ParagraphsOf(program.help))
    {
        text += separator + RoffLine(paragraph);
        separator = ".PP\n";
    }
    text += ".SH COMMANDS\n";
    for (const CommandOutline& command : program.commands)
    {
        text += Section(program, command);
    }
    text += ".SH OPTIONS\n";
    for (const ArgumentOutline& option : program.options)
    {
        text += OptionItem(option);
    }
    text += ".SH \"EXIT STATUS\"\n" + RoffLine(std::string(exitStatus.heading) + ":");
    for (const ExitCodeHelp& exitCode : exitStatus.codes)
    {
        text += ".TP\n" + Bold(std::to_string(static_cast<int>(exitCode.code))) + "\n" + RoffLine(Sentence(exitCode.meaning));
    }
    return text;
}

} // namespace Ombrel::EffectsTool
