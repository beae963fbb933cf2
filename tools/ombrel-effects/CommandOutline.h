#ifndef OMBREL_EFFECTS_TOOL_COMMAND_OUTLINE_H
#define OMBREL_EFFECTS_TOOL_COMMAND_OUTLINE_H

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace CLI
{
class App;
}

namespace Ombrel::EffectsTool
{

/// What a shell offers where a value is to be written.
struct Offer
{
    enum class Source
    {
        Nothing,
        Files, // and the folders on the way to them
        Folders,
        Words,
        Command, // the second column of what a command of the program prints
    };

    Source source = Source::Nothing;
    std::vector<std::string> words = {};
    std::string command = {};
};

/// Offers by the name that a value has in the help, such as "FILE".
using Offers = std::map<std::string, Offer, std::less<>>;

/// An option or an argument without a name of its own.
struct ArgumentOutline
{
    std::vector<std::string> names; // with their dashes, the longest last; of an argument its name in the help
    std::string help;
    std::string value;       // the name of the value in the help; empty for a flag
    std::string restriction; // which values are taken; empty for all
    std::string defaultValue;
    Offer offer;
    bool isRequired = false;
    bool isRepeated = false; // takes several values, an option by being given several times
};

struct CommandOutline
{
    std::string name;
    std::string help;
    std::vector<ArgumentOutline> options;
    std::vector<ArgumentOutline> arguments; // in their order
};

/// What can be written on the command line. All that is said of the commands elsewhere is made of this.
struct ProgramOutline
{
    std::string name;
    std::string help; // paragraphs
    std::vector<ArgumentOutline> options;
    std::vector<CommandOutline> commands;
};

/// The commands and options that the help shows.
/// @param offers has the value of every option and every argument; where an argument has no type name of its own, its name
/// @throws std::logic_error if it has not, which names the command and the value
ProgramOutline OutlineOf(const CLI::App& program, const Offers& offers);

} // namespace Ombrel::EffectsTool

#endif
