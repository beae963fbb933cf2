#include "CommandOutline.h"

#include <CLI/CLI.hpp>

#include <cstddef>
#include <stdexcept>
#include <string_view>

namespace Ombrel::EffectsTool
{
namespace
{

// The parser's type name for a text that was given none.
constexpr std::string_view UNNAMED = "TEXT";

/// A type name as the parser makes it: "CODE", or with what is checked "CODE:1 to 5" or "CODE:{a,b}".
struct TypeName
{
    explicit TypeName(const std::string& text)
    {
        const std::size_t colon = text.find(':');
        name = text.substr(0, colon);
        if (colon == std::string::npos)
        {
            return;
        }
        restriction = text.substr(colon + 1);
        if (restriction.size() >= 2 && restriction.front() == '{' && restriction.back() == '}')
        {
            choices = CLI::detail::split(restriction.substr(1, restriction.size() - 2), ',');
            restriction = CLI::detail::join(choices, ", ");
        }
    }

    std::string name;
    std::string restriction;
    std::vector<std::string> choices;
};

Offer OfferFor(const TypeName& type, const std::string& value, const std::string& where, const Offers& offers)
{
    if (!type.choices.empty())
    {
        return {.source = Offer::Source::Words, .words = type.choices};
    }
    const auto found = offers.find(value);
    if (found == offers.end())
    {
        throw std::logic_error(where + ": nothing says what a shell offers for " + value +
                               "; its type name must be one for which there is an offer");
    }
    return found->second;
}

std::vector<std::string> DashedNames(const CLI::Option& option)
{
    std::vector<std::string> names;
    for (const std::string& name : option.get_snames())
    {
        names.push_back("-" + name);
    }
    for (const std::string& name : option.get_lnames())
    {
        names.push_back("--" + name);
    }
    return names;
}

ArgumentOutline ArgumentOf(const CLI::Option& option, const std::string& command, const Offers& offers)
{
    ArgumentOutline outline;
    const std::string positionalName = option.get_positional() ? option.get_name(true) : "";
    outline.names = option.get_positional() ? std::vector{positionalName} : DashedNames(option);
    outline.help = option.get_description();
    outline.isRequired = option.get_required();
    outline.isRepeated = option.get_expected_max() > 1;
    if (option.get_items_expected_max() == 0)
    {
        return outline;
    }
    const TypeName type(option.get_type_name());
    outline.value = option.get_positional() && type.name == UNNAMED ? positionalName : type.name;
    outline.restriction = type.restriction;
    outline.defaultValue = option.get_default_str();
    outline.offer = OfferFor(type, outline.value, command + " " + outline.names.back(), offers);
    if (outline.restriction.empty() && outline.offer.source == Offer::Source::Words)
    {
        outline.restriction = CLI::detail::join(outline.offer.words, ", ");
    }
    return outline;
}

CommandOutline CommandOf(const CLI::App& command, const Offers& offers)
{
    CommandOutline outline{.name = command.get_name(), .help = command.get_description(), .options = {}, .arguments = {}};
    for (const CLI::Option* option : command.get_options())
    {
        if (!option->get_group().empty())
        {
            (option->get_positional() ? outline.arguments : outline.options)
                .push_back(ArgumentOf(*option, outline.name, offers));
        }
    }
    return outline;
}

} // namespace

ProgramOutline OutlineOf(const CLI::App& program, const Offers& offers)
{
    CommandOutline itself = CommandOf(program, offers);
    ProgramOutline outline{.name = itself.name, .help = itself.help, .options = std::move(itself.options), .commands = {}};
    for (const CLI::App* command : program.get_subcommands([](const CLI::App*) { return true; }))
    {
        if (!command->get_group().empty())
        {
            outline.commands.push_back(CommandOf(*command, offers));
        }
    }
    return outline;
}

} // namespace Ombrel::EffectsTool
