#include "AtomicFile.h"
#include "Commands.h"
#include "Document.h"
#include "TextFile.h"
#include "ToolError.h"

#include <CLI/CLI.hpp>

#include <csignal>
#include <cstdio>
#include <functional>
#include <iostream>
#include <string>

namespace Ombrel::EffectsTool
{
namespace
{

struct Arguments
{
    std::string file;
    std::string path;
    std::string value;
    std::string classId;
    std::string notesFolder;
    std::string examplesFolder;
    std::string outputFolder;
    bool nonFinite = false;
    bool isInPlace = false;
    bool isForced = false;
    std::function<Outcome()> command;
};

constexpr const char* DESCRIPTION = "Shows stored effects and changes them.\n\n"
                                    "A FILE is JSON: one effect (a map) or a list of effects; \"-\" is the standard input.";

constexpr const char* PATH_HELP =
    "Path to a value: the effect's index from 0, a property, then map keys and list indices, joined by \"/\", such as "
    "2/smartBlur/lumaRadius. If the file is a single effect, its index is left out. Within a key, ~1 is \"/\" and ~0 is \"~\"";

constexpr const char* FOOTER =
    "Exit codes:\n"
    "  0  fine\n"
    "  1  a key, index or class id that was asked for does not exist; a stored value differs from the given one; keys were "
    "dropped\n"
    "  2  wrong usage; a file cannot be read or written\n"
    "  3  not JSON, not effects, an unknown class id in the file, a value that the library refuses, or notes that do not fit";

Document Load(const Arguments& arguments)
{
    return Document::Load(arguments.file, arguments.nonFinite);
}

CLI::App* AddCommand(CLI::App& app, Arguments& arguments, const char* name, const char* help, std::function<Outcome()> run)
{
    CLI::App* command = app.add_subcommand(name, help);
    command->callback([&arguments, run = std::move(run)] { arguments.command = run; });
    return command;
}

void AddNonFinite(CLI::App* command, Arguments& arguments)
{
    command->add_flag("--non-finite", arguments.nonFinite,
                      "Read and write floats that are no finite numbers as the strings \"NaN\", \"Infinity\", \"-Infinity\"");
}

void AddFile(CLI::App* command, Arguments& arguments)
{
    command->add_option("FILE", arguments.file, "JSON file, or - for the standard input")->required();
    AddNonFinite(command, arguments);
}

void AddWriting(CLI::App* command, Arguments& arguments, const char* forceHelp)
{
    command->add_flag("--in-place", arguments.isInPlace, "Replace the file atomically instead of printing");
    command->add_flag("--force", arguments.isForced, forceHelp);
}

void AddReaders(CLI::App& app, Arguments& arguments)
{
    AddCommand(app, arguments, "list", "List all effect classes: class, class id, inputs, registered or not", &ListClasses);

    CLI::App* show = AddCommand(app, arguments, "show", "Show effects with all properties; * marks what is not the default",
                                [&arguments] { return ShowEffects(Load(arguments)); });
    AddFile(show, arguments);

    CLI::App* create = AddCommand(app, arguments, "new", "Print a default effect with all properties",
                                  [&arguments] { return NewEffect(arguments.classId, arguments.nonFinite); });
    create->add_option("ID", arguments.classId, "Class id, such as EFFECT_ACID")->required();
    AddNonFinite(create, arguments);

    CLI::App* get = AddCommand(app, arguments, "get", "Print one value as JSON; with an index alone, the whole effect",
                               [&arguments] { return GetValue(Load(arguments), ParsePath(arguments.path)); });
    AddFile(get, arguments);
    get->add_option("PATH", arguments.path, PATH_HELP)->required();
}

void AddWriters(CLI::App& app, Arguments& arguments)
{
    const auto setValue = [&arguments]
    { return SetValue(Load(arguments), ParsePath(arguments.path), arguments.value, arguments.isForced); };
    CLI::App* set = AddCommand(app, arguments, "set", "Change one value and keep all others", setValue);
    AddFile(set, arguments);
    set->add_option("PATH", arguments.path, PATH_HELP)->required();
    set->add_option("VALUE", arguments.value,
                    "A string without quotes, any other value as JSON. Write -- before a value that begins with \"-\" and is "
                    "not a number")
        ->required();
    AddWriting(set, arguments,
               "Write the result even if the stored value differs from the given one or unknown keys are dropped; the exit "
               "code stays 1");

    CLI::App* normalise = AddCommand(app, arguments, "normalise", "Print the effects as the library reads and writes them",
                                     [&arguments] { return Normalise(Load(arguments)); });
    AddFile(normalise, arguments);
    AddWriting(normalise, arguments,
               "With --in-place: replace the file even if unknown keys are dropped; the exit code stays 1");
}

void AddReference(CLI::App& app, Arguments& arguments)
{
    CLI::App* reference = AddCommand(
        app, arguments, "reference", "Write the reference of all effect classes as Markdown",
        [&arguments] { return WriteReference(arguments.notesFolder, arguments.examplesFolder, arguments.outputFolder); });
    reference
        ->add_option("--notes", arguments.notesFolder,
                     "Folder with the notes on each class: what it compares, when it is empty, its members without a key")
        ->required();
    reference->add_option("--examples", arguments.examplesFolder, "Folder with a stored effect of each class: <class id>.json")
        ->required();
    reference->add_option("--output", arguments.outputFolder, "Folder for the pages; created if it does not exist")->required();
}

void Print(const std::string& text)
{
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size() || std::fflush(stdout) != 0)
    {
        throw ToolError(ExitCode::UsageOrFile, "<stdout>: cannot be written: " + LastError());
    }
}

void Write(const Outcome& outcome, const Arguments& arguments)
{
    const bool isReplacing = arguments.isInPlace && (outcome.code == ExitCode::Fine || arguments.isForced);
    if (!outcome.text || (arguments.isInPlace && !isReplacing))
    {
        std::cerr << "nothing written; --force writes the result all the same\n";
    }
    else if (isReplacing)
    {
        ReplaceFile(arguments.file, *outcome.text);
    }
    else
    {
        Print(*outcome.text);
    }
}

int Run(const Arguments& arguments)
{
    try
    {
        if (arguments.isInPlace && arguments.file == "-")
        {
            throw ToolError(ExitCode::UsageOrFile, "<stdin>: cannot be replaced, expected a file with --in-place");
        }
        const Outcome outcome = arguments.command();
        for (const std::string& complaint : outcome.complaints)
        {
            std::cerr << complaint << '\n';
        }
        Write(outcome, arguments);
        return static_cast<int>(outcome.code);
    }
    catch (const ToolError& error)
    {
        std::cerr << error.what() << '\n';
        return static_cast<int>(error.code());
    }
    catch (const std::exception& error)
    {
        std::cerr << "ombrel-effects: " << error.what() << '\n';
        return static_cast<int>(ExitCode::UsageOrFile);
    }
}

} // namespace
} // namespace Ombrel::EffectsTool

// NOLINTNEXTLINE(bugprone-exception-escape): the set-up throws only if it has a mistake, which every run would show
int main(int argc, char** argv)
{
    using namespace Ombrel::EffectsTool;

    // A file that grows beyond the limit then fails to be written, instead of ending the program before it cleans up.
    std::signal(SIGXFSZ, SIG_IGN);

    CLI::App app(DESCRIPTION, "ombrel-effects");
    app.footer(FOOTER);
    app.set_version_flag("--version", "ombrel-effects " OMBREL_EFFECTS_VERSION);
    app.require_subcommand(1);
    Arguments arguments;
    AddReaders(app, arguments);
    AddWriters(app, arguments);
    AddReference(app, arguments);
    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::ParseError& error)
    {
        const bool isFine = app.exit(error) == 0;
        return static_cast<int>(isFine && std::cout.flush() ? ExitCode::Fine : ExitCode::UsageOrFile);
    }
    return Run(arguments);
}
