#include "Completions.h"

#include <cstddef>

namespace Ombrel::EffectsTool
{
namespace
{

constexpr std::string_view FUNCTIONS_OF_BASH = R"bash(# Completion of @program@ for bash, written by the program itself.

# Offers those of the words behind the first that begin with it.
@name@_offer()
{
    local word
    for word in "${@:2}"; do
        [[ $word != "$1"* ]] || COMPREPLY+=("$word")
    done
}

# Offers the second column of what the program prints: the beginning of the word, the program, its command.
@name@_ask()
{
    local word
    while read -r _ word _; do
        @name@_offer "$1" "$word"
    done <<<"$("$2" "$3" 2>/dev/null)"
}

# Whether a value belongs to an option: the command, the option.
@name@_has_value()
{
    case "$1 $2" in
)bash";

// bash takes "--option=value" for three words. Names of files are left to bash, which knows how to quote them.
constexpr std::string_view BEGINNING_OF_BASH = R"bash(    *) return 1 ;;
    esac
}

@name@()
{
    local program=${1/#~\//$HOME/} current=${COMP_WORDS[COMP_CWORD]} command='' option='' has_ended='' word at
    local -i place=1 index
    COMPREPLY=()
    for ((index = 1; index < COMP_CWORD; ++index)); do
        word=${COMP_WORDS[index]}
        if [[ $option ]]; then
            [[ $word == = ]] || option=''
        elif [[ $word == -- && ! $has_ended ]]; then
            has_ended=1
        elif [[ $word == -?* && ! $has_ended ]]; then
            ! @name@_has_value "$command" "$word" || option=$word
        elif [[ ! $command ]]; then
            command=$word
        else
            ((++place))
        fi
    done
    at=$place
    if [[ $option ]]; then
        at=$option
        [[ $current != = ]] || current=''
    elif [[ $current == -* && ! $has_ended ]]; then
        at=-
    fi
    case "$command $at" in
)bash";

constexpr std::string_view END_OF_BASH = R"bash(    esac
}

complete -F @name@ @program@
)bash";

std::string QuotedForBash(const std::string& word)
{
    constexpr std::string_view PLAIN = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-_./";
    if (!word.empty() && word.find_first_not_of(PLAIN) == std::string::npos)
    {
        return word;
    }
    return SingleQuoted(word);
}

std::string BashWords(const std::vector<std::string>& words)
{
    std::string text = "@name@_offer \"$current\"";
    for (const std::string& word : words)
    {
        text += " " + QuotedForBash(word);
    }
    return text;
}

std::string BashOffer(const Offer& offer)
{
    switch (offer.source)
    {
    case Offer::Source::Files:
        return "compopt -o default";
    case Offer::Source::Folders:
        return "compopt -o dirnames";
    case Offer::Source::Words:
        return BashWords(offer.words);
    case Offer::Source::Command:
        return "@name@_ask \"$current\" \"$program\" " + QuotedForBash(offer.command);
    case Offer::Source::Nothing:
        break;
    }
    return "";
}

std::string BashCase(const std::string& pattern, const std::string& action)
{
    return "    " + pattern + ")" + (action.empty() ? "" : " " + action) + " ;;\n";
}

/// The cases in which the word belongs to one command.
std::string CasesOf(const CommandOutline& command)
{
    std::string cases;
    for (const ArgumentOutline& option : command.options)
    {
        for (const std::string& name : option.names)
        {
            if (const std::string action = BashOffer(option.offer); !action.empty())
            {
                cases += BashCase("'" + command.name + " " + name + "'", action);
            }
        }
    }
    const std::string anyPlace = "'" + command.name + " '[1-9]*";
    std::size_t place = 0;
    for (const ArgumentOutline& argument : command.arguments)
    {
        const std::string thisPlace = "'" + command.name + " " + std::to_string(++place) + "'";
        cases += BashCase(argument.isRepeated ? anyPlace : thisPlace, BashOffer(argument.offer));
    }
    // Where no argument can stand, an option can.
    const bool isOpen = !command.arguments.empty() && command.arguments.back().isRepeated;
    const std::string pattern = "'" + command.name + " -'" + (isOpen ? "" : " | " + anyPlace);
    return cases + BashCase(pattern, BashWords(NamesOf(command.options)));
}

std::string OptionsWithValue(const CommandOutline& command)
{
    std::string pattern;
    for (const ArgumentOutline& option : command.options)
    {
        for (const std::string& name : option.names)
        {
            if (!option.value.empty())
            {
                pattern += (pattern.empty() ? "'" : " | '") + command.name + " " + name + "'";
            }
        }
    }
    return pattern.empty() ? "" : BashCase(pattern, "");
}

} // namespace

std::string BashCompletion(const ProgramOutline& program)
{
    std::vector<std::string> names;
    std::string optionsWithValue;
    std::string cases;
    for (const CommandOutline& command : program.commands)
    {
        names.push_back(command.name);
        optionsWithValue += OptionsWithValue(command);
        cases += CasesOf(command);
    }
    const std::string before = BashCase("' 1'", BashWords(names)) + BashCase("' -'", BashWords(NamesOf(program.options)));
    return ForProgram(program, std::string(FUNCTIONS_OF_BASH) + optionsWithValue + std::string(BEGINNING_OF_BASH) + before +
                                   cases + std::string(END_OF_BASH));
}

} // namespace Ombrel::EffectsTool
