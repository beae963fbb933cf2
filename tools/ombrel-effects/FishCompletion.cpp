#include "Completions.h"

#include <cstddef>

namespace Ombrel::EffectsTool
{
namespace
{

constexpr std::string_view BEGINNING_OF_FISH = R"fish(# Completion of @program@ for fish, written by the program itself.

# The command that stands before the cursor and the number of the argument there, counted from 1, a line each.
function _@name@_place
    set -l command ''
    set -l place 1
    set -l option ''
    set -l has_ended ''
    set -l words (commandline -opc)
    set -e words[1]
    for word in $words
        if test -n "$option"
            set option ''
        else if string match -q -- -- "$word"; and test -z "$has_ended"
            set has_ended 1
        else if string match -q -- '-?*' "$word"; and test -z "$has_ended"
            switch "$command $word"
                case ''@options@
                    set option "$word"
            end
        else if test -z "$command"
            set command "$word"
        else
            set place (math $place + 1)
        end
    end
    printf '%s\n' "$command" $place
end

# Whether the cursor is at an argument of a command: the command, the number of its first and its last argument that is meant.
function _@name@_at
    set -l at (_@name@_place)
    test "$at[1]" = "$argv[1]"; or return 1
    set -q argv[2]; or return 0
    test $at[2] -ge $argv[2]; or return 1
    set -q argv[3]; or return 0
    test $at[2] -le $argv[3]
end

# The second column of what the program prints for a command.
function _@name@_ask
    set -l words (commandline -opc)
    $words[1] $argv[1] 2>/dev/null | string replace -rf '^\S+\s+(\S+).*' '$1'
end

# The folders for the value of an option, which may stand behind "=".
function _@name@_folders
    __fish_complete_directories (string replace -r -- '^--[^=]*=' '' (commandline -ct))
end

complete -c @program@ -f
)fish";

std::string QuotedForFish(std::string_view text)
{
    return "'" + WithBackslashes(text, "\\'") + "'";
}

std::string FishOffer(const Offer& offer)
{
    switch (offer.source)
    {
    case Offer::Source::Files:
        return " -F";
    case Offer::Source::Folders:
        return " -a '(_@name@_folders)'";
    case Offer::Source::Words:
    {
        std::string words;
        for (const std::string& word : offer.words)
        {
            words += (words.empty() ? "" : " ") + QuotedForFish(word);
        }
        return " -a " + QuotedForFish(words);
    }
    case Offer::Source::Command:
        return " -a '(_@name@_ask " + offer.command + ")'";
    case Offer::Source::Nothing:
        break;
    }
    return "";
}

std::string FishLine(const std::string& condition, const std::string& what, const std::string& help)
{
    return "complete -c @program@ -n " + QuotedForFish("_@name@_at " + condition) + what +
           (help.empty() ? "" : " -d " + QuotedForFish(help)) + "\n";
}

std::string OptionForFish(const std::string& condition, const ArgumentOutline& option)
{
    std::string what;
    for (const std::string& name : option.names)
    {
        what += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
    }
    what += option.value.empty() ? "" : (option.offer.source == Offer::Source::Files ? " -r" : " -x") + FishOffer(option.offer);
    return FishLine(condition, what, option.help);
}

std::string LinesOf(const CommandOutline& command)
{
    std::string lines;
    for (const ArgumentOutline& option : command.options)
    {
        lines += OptionForFish(command.name, option);
    }
    std::size_t place = 0;
    for (const ArgumentOutline& argument : command.arguments)
    {
        const std::string number = std::to_string(++place);
        const std::string condition = command.name + " " + number + (argument.isRepeated ? "" : " " + number);
        if (const std::string what = FishOffer(argument.offer); !what.empty())
        {
            lines += FishLine(condition, what, "");
        }
    }
    return lines;
}

/// The options behind which a word is no argument, since it is their value. With "=" the value is no word of its own.
std::string OptionsBeforeValues(const ProgramOutline& program)
{
    std::string patterns;
    for (const CommandOutline& command : program.commands)
    {
        for (const ArgumentOutline& option : command.options)
        {
            for (const std::string& name : option.names)
            {
                patterns += option.value.empty() ? "" : " " + QuotedForFish(command.name + " " + name);
            }
        }
    }
    return patterns;
}

} // namespace

std::string FishCompletion(const ProgramOutline& program)
{
    constexpr std::string_view OPTIONS = " ''@options@";
    std::string text(BEGINNING_OF_FISH);
    text.replace(text.find(OPTIONS), OPTIONS.size(), OptionsBeforeValues(program));
    for (const ArgumentOutline& option : program.options)
    {
        text += OptionForFish("''", option);
    }
    for (const CommandOutline& command : program.commands)
    {
        text += FishLine("''", " -a " + command.name, command.help);
    }
    for (const CommandOutline& command : program.commands)
    {
        text += LinesOf(command);
    }
    return ForProgram(program, text);
}

} // namespace Ombrel::EffectsTool
