#include "CommandLine.h"
#include "ChangeCommands.h"

#include "ClassCommands.h"
#include "CommandOutline.h"
#include "CommandRuns.h"
#include "Completions.h"
#include "FormCommands.h"
#include "Inspection/Nearest.h"
#include "Inspection/Release.h"
#include "ManualPage.h"
#include "PropertyPath.h"
#include "PropertyTreeJson/MessageText.h"
#include "ShowCommand.h"
#include "ValueCommands.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <iostream>
#include <string>
#include <vector>

namespace Ombrel::EffectsTool
{
namespace
{

constexpr const char* DESCRIPTION =
    "Shows, checks and changes stored effects.\n\n"
    "A FILE is JSON: one effect (a map) or a list of effects; \"-\" is the standard input. Where several files are taken, a "
    "folder stands for every *.json below it.";

constexpr const char* PATH_HELP =
    "Path to a value: the effect's index from 0, a property, then map keys and list indices, joined by \"/\", such as "
    "2/smartBlur/lumaRadius. If the file is a single effect, its index is left out. Within a key, ~1 is \"/\" and ~0 is \"~\"";

constexpr const char* FORCE_HELP =
    "Write the result even if something is changed or lost that was not asked for; the exit code stays 1";

constexpr ExitCodeHelp EXIT_CODES[] = {
    {ExitCode::Fine, "fine"},
    {ExitCode::Findings,
     "check found an error or a warning; what is compared differs; a patch or a merge has a conflict; a release does not read "
     "all values; a command would change or lose what it was not asked to"},
    {ExitCode::Usage, "wrong usage; a path, class id, key or name that does not exist"},
    {ExitCode::File, "a file cannot be read or written"},
    {ExitCode::BadInput, "not JSON, or an effect that the command needs and cannot be read"},
};

constexpr ExitStatusHelp EXIT_STATUS{"Exit codes, of which the highest counts", EXIT_CODES};

constexpr const char* PROGRAM_VERSION = "ombrel-effects " OMBREL_EFFECTS_VERSION;

// The command that shells ask for class ids, which stand in its second column.
constexpr const char* LIST_COMMAND = "list";

std::string Footer()
{
    std::string footer = EXIT_STATUS.heading + std::string(":");
    for (const ExitCodeHelp& exitCode : EXIT_STATUS.codes)
    {
        footer += "\n  " + std::to_string(static_cast<int>(exitCode.code)) + "  " + exitCode.meaning;
    }
    return footer;
}

/// What a shell offers for each name that a value has in the help.
Offers ShellOffers()
{
    const Offer classIds{.source = Offer::Source::Command, .command = LIST_COMMAND};
    const Offer files{.source = Offer::Source::Files};
    return {
        {"AFTER", files},
        {"BASE", files},
        {"BEFORE", files},
        {"CODE", {.source = Offer::Source::Words, .words = FindingCodes()}},
        {"DIR", {.source = Offer::Source::Folders}},
        {"FILE", files},
        {"FROM", {}},
        {"ID", classIds},
        {"N", {}},
        {"OURS", files},
        {"PATCH", files},
        {"PATH", {}},
        {"PATTERN", classIds},
        {"THEIRS", files},
        {"TO", {}},
        {"VALUE", {}},
    };
}

/// The commands with their options, and the run of the one that is named.
class CommandLine
{
public:
    CommandLine();

    int Run(int argc, char** argv);

private:
    using Command = std::function<Report(Arguments&)>;

    CLI::App* Add(const char* name, const char* help, Command command);
    void AddFiles(CLI::App* command, bool hasDocuments);
    void AddFile(CLI::App* command, bool isWriting);
    void AddReading(CLI::App* command);
    void AddWriting(CLI::App* command);
    CLI::Option* AddFor(CLI::App* command, const char* help);
    void AddJson(CLI::App* command, const char* help);
    void AddClassCommands();
    void AddValueCommands();
    void AddCheck();
    void AddForms();
    void AddComparisons();
    void AddListCommands();
    void AddWritings();
    int Complain(const CLI::ParseError& error);
    std::string NearestTo(const std::string& word) const;

    CLI::App m_app;
    Arguments m_arguments;
};

CommandLine::CommandLine() : m_app(DESCRIPTION, "ombrel-effects")
{
    m_app.footer(Footer());
    m_app.set_version_flag("--version", PROGRAM_VERSION);
    m_app.require_subcommand(1);
    m_app.allow_windows_style_options(false); // a name that begins with '/' is that of a file on every system
    AddClassCommands();
    AddValueCommands();
    AddCheck();
    AddForms();
    AddComparisons();
    AddListCommands();
    AddWritings();
}

CLI::App* CommandLine::Add(const char* name, const char* help, Command command)
{
    CLI::App* added = m_app.add_subcommand(name, help);
    added->callback([this, command = std::move(command)] { m_arguments.command = command; });
    return added;
}

void CommandLine::AddReading(CLI::App* command)
{
    command->add_flag("--non-finite", m_arguments.run.reading.nonFinite,
                      "Read and write floats that are no finite numbers as the strings \"NaN\", \"Infinity\", \"-Infinity\"");
    command->add_option("--max-bytes", m_arguments.run.reading.maxBytes, "Refuse a file, or with --lines a line, of more bytes")
        ->type_name("N")
        ->capture_default_str();
}

void CommandLine::AddFile(CLI::App* command, bool isWriting)
{
    command->add_option("FILE", m_arguments.file, "JSON file, or - for the standard input")->required();
    AddReading(command);
    if (isWriting)
    {
        AddWriting(command);
    }
}

CLI::Option* CommandLine::AddFor(CLI::App* command, const char* help)
{
    const std::vector<std::string_view> names = Inspection::ReleaseNames();
    return command->add_option("--for", m_arguments.release, help)
        ->type_name("RELEASE")
        ->check(CLI::IsMember(std::vector<std::string>(names.begin(), names.end())));
}

void CommandLine::AddWriting(CLI::App* command)
{
    command->add_flag("--in-place", m_arguments.run.isInPlace, "Replace the file instead of printing, all or nothing");
    command->add_flag("--force", m_arguments.run.isForced, FORCE_HELP);
}

void CommandLine::AddFiles(CLI::App* command, bool hasDocuments)
{
    command->add_option("FILE", m_arguments.files, "JSON files and folders, or - for the standard input")->required();
    AddReading(command);
    command->add_flag("--quiet", m_arguments.run.isQuiet, "No summary and no progress");
    command->add_option("--jobs", m_arguments.run.jobs, "Work on so many files at once")
        ->type_name("N")
        ->check(CLI::Range(1, 256).description("1 to 256"));
    command->add_flag("--lines", m_arguments.areLines,
                      std::string("JSON Lines: each line is an effect, a list of effects, or {\"id\": ..., \"effects\": ...}") +
                          (hasDocuments ? "; each becomes a line, and one that cannot be worked on stays as it is" : ""));
}

void CommandLine::AddJson(CLI::App* command, const char* help)
{
    command->add_flag("--json", m_arguments.isJson, help);
}

void CommandLine::AddClassCommands()
{
    CLI::App* list = Add(LIST_COMMAND, "List the effect classes: class, class id, inputs, registered or not",
                         [](Arguments& arguments) { return ListClasses(arguments.name, arguments.isJson); });
    list->add_option("PATTERN", m_arguments.name, "Those alone that have this in their name or id");
    AddJson(list, "As a JSON list");

    CLI::App* describe = Add("describe", "Describe a class: its keys, their kinds, defaults and names",
                             [](Arguments& arguments) { return DescribeClass(arguments.name, arguments.isJson); });
    describe->add_option("ID", m_arguments.name, "Class id, such as EFFECT_ACID")->required();
    AddJson(describe, "As JSON");

    CLI::App* schema = Add("schema", "Print a JSON Schema of stored effects, by which editors complete and check them",
                           [](Arguments& arguments)
                           { return WriteSchema(arguments.name, !arguments.isClosed, arguments.run.reading.nonFinite); });
    schema->add_option("ID", m_arguments.name, "Of this class alone");
    schema->add_flag("--closed", m_arguments.isClosed, "Refuse unknown keys");
    schema->add_flag("--non-finite", m_arguments.run.reading.nonFinite,
                     "Take the strings \"NaN\", \"Infinity\" and \"-Infinity\" where a float stands");

    CLI::App* create = Add("new", "Print a default effect with all properties",
                           [](Arguments& arguments) { return NewEffect(arguments.name, arguments.run.reading.nonFinite); });
    create->add_option("ID", m_arguments.name, "Class id, such as EFFECT_ACID")->required();
    create->add_flag("--non-finite", m_arguments.run.reading.nonFinite, "Write floats that are no finite numbers as strings");

    CLI::App* reference =
        Add("reference", "Write the reference of all effect classes as Markdown",
            [](Arguments& arguments)
            { return WriteReference(arguments.notesFolder, arguments.examplesFolder, arguments.outputFolder); });
    reference
        ->add_option("--notes", m_arguments.notesFolder,
                     "Folder with the notes on each class: what it compares, when it is empty, its members without a key")
        ->type_name("DIR")
        ->required();
    reference
        ->add_option("--examples", m_arguments.examplesFolder, "Folder with a stored effect of each class: <class id>.json")
        ->type_name("DIR")
        ->required();
    reference->add_option("--output", m_arguments.outputFolder, "Folder for the pages; created if it does not exist")
        ->type_name("DIR")
        ->required();
}

void CommandLine::AddValueCommands()
{
    CLI::App* get = Add("get", "Print one value as JSON; with an index alone, the whole effect",
                        [](Arguments& arguments)
                        {
                            return OnFile(arguments, [&arguments](const Document& document)
                                          { return GetValue(document, ParsePath(arguments.path), arguments.isRaw); });
                        });
    AddFile(get, false);
    get->add_option("PATH", m_arguments.path, PATH_HELP)->required();
    get->add_flag("--raw", m_arguments.isRaw, "As it stands in the file, also where it cannot be read");

    CLI::App* set = Add("set", "Change one value and keep all others",
                        [](Arguments& arguments)
                        {
                            return OnFile(arguments, [&arguments](const Document& document)
                                          { return SetValue(document, ParsePath(arguments.path), arguments.value); });
                        });
    AddFile(set, true);
    set->add_option("PATH", m_arguments.path, PATH_HELP)->required();
    set->add_option("VALUE", m_arguments.value,
                    "A text without quotes, any other value as JSON. Write -- before a value that begins with \"-\" and is "
                    "not a number")
        ->required();

    CLI::App* unset = Add("unset", "Take out one key, which then has its default",
                          [](Arguments& arguments)
                          {
                              return OnFile(arguments, [&arguments](const Document& document)
                                            { return UnsetValue(document, ParsePath(arguments.path)); });
                          });
    AddFile(unset, true);
    unset->add_option("PATH", m_arguments.path, PATH_HELP)->required();
}

void CommandLine::AddCheck()
{
    CLI::App* check =
        Add("check", "Say what is wrong with stored effects: FILE:LINE:COLUMN: error: PATH: message [code]", &RunCheck);
    AddFiles(check, false);
    AddJson(check, "A JSON object per finding, a line each");
    check->add_flag("--strict", m_arguments.check.isStrict, "Notes end with exit code 1 too");
    check->add_flag("--fix", m_arguments.check.isFixing,
                    "Mend what can be mended and print the document; the findings go to the standard error");
    check->add_option("--ignore", m_arguments.ignoredCodes, "Leave a code out, such as unknown-key; may be given several times")
        ->type_name("CODE")
        ->allow_extra_args(false);
    check->add_option("--max-findings", m_arguments.check.maxFindings, "End the check of a file with so many findings")
        ->type_name("N")
        ->capture_default_str();
    AddFor(check, "Say what this release would refuse, lose or read as something else");
    check->add_option("--junit", m_arguments.junitFile, "Write an XML file too, in which each file is a test")
        ->type_name("FILE");
    check->add_flag("--in-place", m_arguments.run.isInPlace, "With --fix: replace the files, each all or nothing");
}

void CommandLine::AddForms()
{
    CLI::App* show = Add("show", "Show effects with all properties; * marks what is not the default, ! what is wrong",
                         [](Arguments& arguments)
                         {
                             const bool isJson = arguments.isJson;
                             const bool isChangedOnly = arguments.isChangedOnly;
                             return OnFiles(arguments, isJson,
                                            [isJson, isChangedOnly](const Document& document)
                                            { return isJson ? ShowAsJson(document) : ShowDocument(document, isChangedOnly); });
                         });
    AddFiles(show, false);
    show->add_flag("--changed", m_arguments.isChangedOnly, "Without what has its default");
    AddJson(show, "What is read, with every key, as JSON");

    const auto addForm = [this](const char* name, const char* help, Report (*form)(const Document&))
    {
        CLI::App* command = Add(name, help, [form](Arguments& arguments) { return OnFiles(arguments, true, form); });
        AddFiles(command, true);
        AddWriting(command);
    };
    addForm("thin", "Print the effects without what has its default", &ThinDocument);
    addForm("freeze", "Print the effects with every key, so that no later default can change them", &FreezeDocument);
    addForm("normalise", "Print the effects as the library reads and writes them", &NormaliseDocument);

    CLI::App* convert =
        Add("convert", "Print the effects as another release reads them to the same values",
            [](Arguments& arguments)
            {
                const auto release = Inspection::ReadRelease(arguments.release);
                return OnFiles(arguments, true,
                               [&release](const Document& document) { return ConvertDocument(document, *release); });
            });
    AddFiles(convert, true);
    AddFor(convert, "The release that is to read them")->required();
    AddWriting(convert);
}

void CommandLine::AddComparisons()
{
    CLI::App* diff = Add("diff", "Say what differs between two files by what is read, or between the files of two folders",
                         [](Arguments& arguments) {
                             return CompareFiles(arguments.otherFile, arguments.file, arguments.run.reading, arguments.isJson);
                         });
    diff->add_option("BEFORE", m_arguments.otherFile, "JSON file or folder")->required();
    diff->add_option("AFTER", m_arguments.file, "JSON file or folder")->required();
    AddReading(diff);
    AddJson(diff, "As the JSON Patch (RFC 6902) that makes the one of the other");

    CLI::App* patch =
        Add("patch", "Do what a JSON Patch (RFC 6902) says, all of it or nothing",
            [](Arguments& arguments)
            {
                const Document changes = Document::Load(arguments.otherFile, arguments.run.reading);
                return OnFile(arguments, [&changes](const Document& document) { return PatchDocument(document, changes); });
            });
    AddFile(patch, true);
    patch->add_option("PATCH", m_arguments.otherFile, "JSON file with the patch, such as diff --json prints")->required();

    CLI::App* merge =
        Add("merge", "Put together what two files have made of a third; a conflict takes the value of OURS",
            [](Arguments& arguments)
            {
                const Document base = Document::Load(arguments.otherFile, arguments.run.reading);
                const Document theirs = Document::Load(arguments.thirdFile, arguments.run.reading);
                return OnFile(arguments, [&base, &theirs](const Document& ours) { return MergeDocuments(ours, base, theirs); });
            });
    merge->add_option("BASE", m_arguments.otherFile, "JSON file from which both come")->required();
    merge->add_option("OURS", m_arguments.file, "JSON file; --in-place replaces it")->required();
    merge->add_option("THEIRS", m_arguments.thirdFile, "JSON file")->required();
    AddReading(merge);
    AddWriting(merge);
}

void CommandLine::AddListCommands()
{
    constexpr const char* element = "Index in the list of effects, or keys and indices that end with one, such as 2 or 0/pre/1";
    CLI::App* insert = Add("insert", "Put an effect, or another element, into a list",
                           [](Arguments& arguments)
                           {
                               return OnFile(arguments, [&arguments](const Document& document)
                                             { return InsertElement(document, ParsePath(arguments.path), arguments.value); });
                           });
    AddFile(insert, true);
    insert->add_option("PATH", m_arguments.path, std::string(element) + "; - for the end")->required();
    insert->add_option("VALUE", m_arguments.value, "Class id of a default effect, or JSON")->required();

    CLI::App* remove = Add("remove", "Take an effect, or another element, out of a list",
                           [](Arguments& arguments)
                           {
                               return OnFile(arguments, [&arguments](const Document& document)
                                             { return RemoveElement(document, ParsePath(arguments.path)); });
                           });
    AddFile(remove, true);
    remove->add_option("PATH", m_arguments.path, element)->required();

    CLI::App* move =
        Add("move", "Give an effect, or another element, another place in its list or another one",
            [](Arguments& arguments)
            {
                return OnFile(arguments, [&arguments](const Document& document)
                              { return MoveElement(document, ParsePath(arguments.path), ParsePath(arguments.value)); });
            });
    AddFile(move, true);
    move->add_option("FROM", m_arguments.path, element)->required();
    move->add_option("TO", m_arguments.value, "Where it then is, counted without it; - for the end")->required();

    CLI::App* extract = Add("extract", "Print one effect, or another value, as it stands in the file",
                            [](Arguments& arguments)
                            {
                                return OnFile(arguments, [&arguments](const Document& document)
                                              { return GetValue(document, ParsePath(arguments.path), true); });
                            });
    AddFile(extract, false);
    extract->add_option("PATH", m_arguments.path, PATH_HELP)->required();
}

void CommandLine::AddWritings()
{
    const auto outline = [this] { return OutlineOf(m_app, ShellOffers()); };
    Add("manual", "Print the manual page, for man",
        [outline](Arguments&)
        {
            Report report;
            report.out = ManualPage(outline(), EXIT_STATUS, PROGRAM_VERSION);
            return report;
        });

    CLI::App* completion = Add("completion", "Print the script by which a shell completes commands, options and values",
                               [outline](Arguments& arguments)
                               {
                                   Report report;
                                   report.out = Completion(outline(), arguments.shell);
                                   return report;
                               });
    completion->add_option("SHELL", m_arguments.shell, "The shell for which it is")->required()->check(CLI::IsMember(Shells()));
}

std::string CommandLine::NearestTo(const std::string& word) const
{
    Inspection::NearestName nearest(word);
    const auto commands = m_app.get_subcommands();
    if (commands.empty())
    {
        for (const CLI::App* command : m_app.get_subcommands([](const CLI::App*) { return true; }))
        {
            nearest.Try(command->get_name());
        }
        return nearest.Get();
    }
    std::vector<std::string> names; // to which the nearest may refer
    for (const CLI::Option* option : commands.front()->get_options())
    {
        names.push_back(option->get_name());
    }
    for (const std::string& name : names)
    {
        nearest.Try(name);
    }
    return nearest.Get();
}

int CommandLine::Complain(const CLI::ParseError& error)
{
    std::ostringstream out;
    std::ostringstream err;
    const bool isFine = m_app.exit(error, out, err) == 0;
    std::cout << out.str();
    std::cerr << MessageText::PrintableLines(err.str());
    for (const std::string& word : m_app.remaining(true))
    {
        if (const std::string nearest = NearestTo(word); !nearest.empty())
        {
            std::cerr << "Did you mean " << nearest << "?\n";
        }
    }
    return static_cast<int>(isFine ? (std::cout.flush() ? ExitCode::Fine : ExitCode::File) : ExitCode::Usage);
}

int CommandLine::Run(int argc, char** argv)
{
    try
    {
        m_app.parse(argc, argv);
    }
    catch (const CLI::ParseError& error)
    {
        return Complain(error);
    }
    try
    {
        const Report report = m_arguments.command(m_arguments);
        Print(report);
        return static_cast<int>(report.code);
    }
    catch (const ToolError& error)
    {
        Report report;
        report.Complain(error.code(), error.what());
        Print(report);
        return static_cast<int>(report.code);
    }
}

} // namespace

int RunCommandLine(int argc, char** argv)
{
    return CommandLine().Run(argc, argv);
}

} // namespace Ombrel::EffectsTool
