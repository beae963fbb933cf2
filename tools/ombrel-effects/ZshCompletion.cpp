#include "Completions.h"

#include <cstddef>

namespace Ombrel::EffectsTool
{
namespace
{

constexpr std::string_view BEGINNING_OF_ZSH = R"zsh(#compdef @program@

# Completion of @program@ for zsh, written by the program itself.

# Offers the second column of what the program prints. Its command is the last word; the others are for compadd.
@name@_ask() {
    local line
    local -a words
    for line in ${(f)"$(_call_program values $program ${@[-1]} 2>/dev/null)"}; do
        words+=(${${=line}[2]})
    done
    compadd "${@[1,-2]}" -a words
}

_@program@() {
    local curcontext=$curcontext program=$words[1] state line
    local -a commands
    local -A opt_args
    _arguments -C -S \
)zsh";

constexpr std::string_view BEFORE_COMMANDS = R"zsh(        '1: :->command' \
        '*:: :->argument' && return
    case $state in
    command)
        commands=(
)zsh";

constexpr std::string_view BEFORE_ARGUMENTS = R"zsh(        )
        _describe -t commands command commands
        ;;
    argument)
        curcontext=${curcontext%:*:*}:@program@-$words[1]:
        case $words[1] in
)zsh";

// The file is the function when zsh loads it at its first use.
constexpr std::string_view END_OF_ZSH = R"zsh(        esac
        ;;
    esac
}

if [[ $funcstack[1] == _@program@ ]]; then
    _@program@ "$@"
else
    compdef _@program@ @program@
fi
)zsh";

std::string ZshOffer(const Offer& offer)
{
    switch (offer.source)
    {
    case Offer::Source::Files:
        return "_files";
    case Offer::Source::Folders:
        return "_files -/";
    case Offer::Source::Words:
    {
        std::string words;
        for (const std::string& word : offer.words)
        {
            words += (words.empty() ? "" : " ") + WithBackslashes(word, "\\ :()");
        }
        return "(" + words + ")";
    }
    case Offer::Source::Command:
        return "@name@_ask " + offer.command;
    case Offer::Source::Nothing:
        break;
    }
    return " ";
}

std::string ValueForZsh(const ArgumentOutline& argument)
{
    return ":" + WithBackslashes(argument.value, "\\:") + ":" + ZshOffer(argument.offer);
}

std::string OptionForZsh(const ArgumentOutline& option)
{
    const std::string help = "[" + WithBackslashes(option.help, "\\:[]") + "]";
    if (option.value.empty() && option.names.size() > 1) // the names exclude each other
    {
        std::string names;
        for (const std::string& name : option.names)
        {
            names += (names.empty() ? "" : ",") + name;
        }
        return SingleQuoted("(" + WithSpaces(option.names) + ")") + "{" + names + "}" + SingleQuoted(help);
    }
    std::string words;
    for (const std::string& name : option.names)
    {
        const std::string way = option.value.empty() ? "" : name.starts_with("--") ? "=" : "+";
        words += (words.empty() ? "" : " ") + SingleQuoted((option.isRepeated ? "*" : "") + name + way + help +
                                                           (option.value.empty() ? "" : ValueForZsh(option)));
    }
    return words;
}

std::string ArgumentForZsh(const ArgumentOutline& argument, std::size_t place)
{
    const std::string at = argument.isRepeated ? "*" : std::to_string(place) + (argument.isRequired ? "" : ":");
    return SingleQuoted(at + ValueForZsh(argument));
}

std::string CaseForZsh(const CommandOutline& command)
{
    std::string text = "        " + command.name + ")\n            _arguments -S";
    for (const ArgumentOutline& option : command.options)
    {
        text += " \\\n                " + OptionForZsh(option);
    }
    std::size_t place = 0;
    for (const ArgumentOutline& argument : command.arguments)
    {
        text += " \\\n                " + ArgumentForZsh(argument, ++place);
    }
    return text + "\n            ;;\n";
}

} // namespace

std::string ZshCompletion(const ProgramOutline& program)
{
    std::string text(BEGINNING_OF_ZSH);
    for (const ArgumentOutline& option : program.options)
    {
        text += "        " + OptionForZsh(option) + " \\\n";
    }
    text += BEFORE_COMMANDS;
    for (const CommandOutline& command : program.commands)
    {
        text += "            " + SingleQuoted(command.name + ":" + WithBackslashes(command.help, "\\:")) + "\n";
    }
    text += BEFORE_ARGUMENTS;
    for (const CommandOutline& command : program.commands)
    {
        text += CaseForZsh(command);
    }
    return ForProgram(program, text + std::string(END_OF_ZSH));
}

} // namespace Ombrel::EffectsTool
