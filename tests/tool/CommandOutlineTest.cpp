#include "CommandOutline.h"
#include "Completions.h"
#include "ManualPage.h"

#include <CLI/CLI.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace Ombrel::EffectsTool
{
namespace
{

using testing::ElementsAre;
using testing::HasSubstr;

const Offers OFFERS{
    {"FILE", {.source = Offer::Source::Files}},
    {"DIR", {.source = Offer::Source::Folders}},
    {"COLOUR", {.source = Offer::Source::Words, .words = {"red", "dark blue"}}},
    {"ID", {.source = Offer::Source::Command, .command = "ids"}},
    {"N", {}},
};

/// A program "a-tool" with a command "mix".
class CommandOutlines : public testing::Test
{
protected:
    CommandOutlines() : app("Mixes it's colours. Twice.\n\n.json is \"read\" as\nwell.", "a-tool")
    {
        mix = app.add_subcommand("mix", "Mix a\\b: it's [all]");
    }

    ProgramOutline Outline() const { return OutlineOf(app, OFFERS); }
    CommandOutline Mix() const { return Outline().commands.at(0); }
    std::string Manual() const
    {
        const ExitCodeHelp codes[] = {{ExitCode::Fine, "fine"}, {ExitCode::BadInput, "not read"}};
        return ManualPage(Outline(), {"Of which the highest counts", codes}, "a-tool 1.0");
    }

    CLI::App app;
    CLI::App* mix;
    std::string text;
    std::vector<std::string> texts;
    int number = 3;
    bool flag = false;
};

TEST_F(CommandOutlines, HaveWhatTheHelpShows)
{
    app.add_subcommand("secret", "Not for all")->group("");
    mix->add_flag("--secret", flag, "Not for all")->group("");
    mix->add_flag("-f,--flag", flag, "A flag");
    mix->add_option("--number", number, "A number")
        ->type_name("N")
        ->check(CLI::Range(1, 5).description("1 to 5"))
        ->capture_default_str();
    mix->add_option("--shade", texts, "A shade")->check(CLI::IsMember({"light", "dark"}))->allow_extra_args(false)->required();
    mix->add_option("OLD", text, "The old one")->type_name("FILE")->required();
    mix->add_option("COLOUR", texts, "Colours");

    const ProgramOutline outline = Outline();
    EXPECT_EQ(outline.name, "a-tool");
    ASSERT_EQ(outline.commands.size(), 1U);
    const CommandOutline& command = outline.commands[0];
    EXPECT_EQ(command.name, "mix");
    ASSERT_EQ(command.options.size(), 4U);
    EXPECT_THAT(command.options[0].names, ElementsAre("-h", "--help"));

    const ArgumentOutline& aFlag = command.options[1];
    EXPECT_THAT(aFlag.names, ElementsAre("-f", "--flag"));
    EXPECT_EQ(aFlag.help, "A flag");
    EXPECT_EQ(aFlag.value, "");
    EXPECT_FALSE(aFlag.isRequired);
    EXPECT_FALSE(aFlag.isRepeated);

    const ArgumentOutline& aNumber = command.options[2];
    EXPECT_EQ(aNumber.value, "N");
    EXPECT_EQ(aNumber.restriction, "1 to 5");
    EXPECT_EQ(aNumber.defaultValue, "3");
    EXPECT_EQ(aNumber.offer.source, Offer::Source::Nothing);

    const ArgumentOutline& shade = command.options[3];
    EXPECT_EQ(shade.offer.source, Offer::Source::Words);
    EXPECT_THAT(shade.offer.words, ElementsAre("light", "dark"));
    EXPECT_EQ(shade.restriction, "light, dark");
    EXPECT_TRUE(shade.isRequired);
    EXPECT_TRUE(shade.isRepeated);

    ASSERT_EQ(command.arguments.size(), 2U);
    EXPECT_THAT(command.arguments[0].names, ElementsAre("OLD"));
    EXPECT_EQ(command.arguments[0].value, "FILE");
    EXPECT_EQ(command.arguments[0].offer.source, Offer::Source::Files);
    EXPECT_TRUE(command.arguments[0].isRequired);
    EXPECT_FALSE(command.arguments[0].isRepeated);
    EXPECT_EQ(command.arguments[1].value, "COLOUR");
    EXPECT_EQ(command.arguments[1].restriction, "red, dark blue");
    EXPECT_FALSE(command.arguments[1].isRequired);
    EXPECT_TRUE(command.arguments[1].isRepeated);
}

TEST_F(CommandOutlines, RefuseAValueForWhichNothingSaysWhatToOffer)
{
    mix->add_option("--where", text, "Where");
    try
    {
        Outline();
        FAIL() << "nothing was thrown";
    }
    catch (const std::logic_error& error)
    {
        EXPECT_THAT(error.what(), HasSubstr("mix --where: "));
        EXPECT_THAT(error.what(), HasSubstr("TEXT"));
    }
}

TEST_F(CommandOutlines, RefuseAnArgumentForWhichNothingSaysWhatToOffer)
{
    mix->add_option("OLD", text, "The old one");
    EXPECT_THROW(Outline(), std::logic_error);
}

TEST_F(CommandOutlines, AreWrittenSoThatRoffTakesNothingForItsOwn)
{
    mix->add_flag("--plain", flag, ".5 of '~^`\"\\-");
    const std::string page = Manual();
    EXPECT_THAT(page, HasSubstr("\n\\fB\\-\\-plain\\fR\n\\&.5 of \\(aq\\(ti\\(ha\\(ga\\(dq\\(rs\\-.\n"));
    EXPECT_THAT(page, HasSubstr("\nMix a\\(rsb: it\\(aqs [all].\n"));
    EXPECT_THAT(page, HasSubstr(".PP\n\\&.json is \\(dqread\\(dq as well.\n"));
}

TEST_F(CommandOutlines, MakeASynopsisOfEachCommand)
{
    EXPECT_THAT(Manual(), HasSubstr("\n.SS mix\n\\fBa\\-tool mix\\fR\n"));
    mix->add_option("--to", text, "Where to")->type_name("DIR")->required();
    mix->add_option("ID", text, "Which");
    EXPECT_THAT(Manual(), HasSubstr("\n\\fBa\\-tool mix\\fR \\fB\\-\\-to\\fR \\fIDIR\\fR [\\fIID\\fR]\n"));
    mix->add_flag("--flag", flag, "A flag");
    mix->add_option("FILE", texts, "Files")->required();
    EXPECT_THAT(Manual(), HasSubstr("\n\\fBa\\-tool mix\\fR \\fB\\-\\-to\\fR \\fIDIR\\fR [\\fIOPTION\\fR]... [\\fIID\\fR] "
                                    "\\fIFILE\\fR...\n"));
}

TEST_F(CommandOutlines, MakeTheNameTheOptionsAndTheExitStatusOfThePage)
{
    const std::string page = Manual();
    EXPECT_THAT(page, testing::StartsWith(".TH A\\-TOOL 1 \"\" \"a\\-tool 1.0\" \"User Commands\"\n"));
    EXPECT_THAT(page, HasSubstr(".SH NAME\na\\-tool \\- mixes it\\(aqs colours\n"));
    EXPECT_THAT(page, HasSubstr(".SH OPTIONS\n.TP\n\\fB\\-h\\fR, \\fB\\-\\-help\\fR\n"));
    EXPECT_THAT(page, testing::EndsWith(".SH \"EXIT STATUS\"\nOf which the highest counts:\n.TP\n\\fB0\\fR\nfine.\n"
                                        ".TP\n\\fB4\\fR\nnot read.\n"));
}

TEST_F(CommandOutlines, CompleteArgumentsInTheirOrderInBash)
{
    mix->add_option("ID", text, "Which")->required();
    mix->add_option("--to", text, "Where to")->type_name("DIR");
    mix->add_option("FILE", texts, "Files")->required();
    EXPECT_THAT(Completion(Outline(), "bash"), HasSubstr(R"(
    'mix --to') compopt -o dirnames ;;
    'mix 1') _a_tool_ask "$current" "$program" ids ;;
    'mix '[1-9]*) compopt -o default ;;
    'mix -') _a_tool_offer "$current" -h --help --to ;;
    esac
})"));
}

TEST_F(CommandOutlines, CompleteArgumentsInTheirOrderInFish)
{
    mix->add_option("ID", text, "Which")->required();
    mix->add_option("-t,--to", text, "Where to")->type_name("DIR");
    mix->add_option("FILE", texts, "Files")->required();
    const std::string script = Completion(Outline(), "fish");
    EXPECT_THAT(script, HasSubstr("\n                case 'mix -t' 'mix --to'\n"));
    EXPECT_THAT(script, HasSubstr("'__a_tool_at mix' -s t -l to -x -a '(__a_tool_folders)' -d 'Where to'\n"
                                  "complete -c a-tool -n '__a_tool_at mix 1 1' -a '(__a_tool_ask ids)'\n"
                                  "complete -c a-tool -n '__a_tool_at mix 2' -F\n"));
    EXPECT_THAT(script, HasSubstr("-a mix -d 'Mix a\\\\b: it\\'s [all]'\n"));
}

TEST_F(CommandOutlines, CompleteArgumentsInTheirOrderInZsh)
{
    mix->add_option("ID", text, "Which");
    mix->add_option("-t,--to", texts, "Where [to]: it's")->type_name("DIR");
    mix->add_option("FILE", texts, "Files")->required();
    const std::string script = Completion(Outline(), "zsh");
    EXPECT_THAT(script, HasSubstr("            'mix:Mix a\\\\b\\: it'\\''s [all]'\n"));
    EXPECT_THAT(script, HasSubstr(R"(
                '*-t+[Where \[to\]\: it'\''s]:DIR:_files -/' '*--to=[Where \[to\]\: it'\''s]:DIR:_files -/' \
                '1::ID:_a_tool_ask ids' \
                '*:FILE:_files'
)"));
}

TEST_F(CommandOutlines, OfferWordsWithSpacesAsOne)
{
    mix->add_option("COLOUR", text, "A colour")->required();
    EXPECT_THAT(Completion(Outline(), "bash"), HasSubstr("'mix 1') _a_tool_offer \"$current\" red 'dark blue' ;;"));
    EXPECT_THAT(Completion(Outline(), "fish"), HasSubstr("mix 1 1' -a '\\'red\\' \\'dark blue\\''\n"));
    EXPECT_THAT(Completion(Outline(), "zsh"), HasSubstr("'1:COLOUR:(red dark\\ blue)'"));
}

TEST(CompletionOfAShell, IsRefusedForOthers)
{
    EXPECT_THAT(Shells(), ElementsAre("bash", "fish", "zsh"));
    EXPECT_THROW(Completion(ProgramOutline(), "other"), std::invalid_argument);
}

} // namespace
} // namespace Ombrel::EffectsTool
