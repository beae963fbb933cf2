#ifndef OMBREL_EFFECTS_TOOL_COMMAND_RUNS_H
#define OMBREL_EFFECTS_TOOL_COMMAND_RUNS_H

#include "CheckCommand.h"
#include "Report.h"
#include "Runner.h"

#include <functional>
#include <string>
#include <vector>

namespace Ombrel::EffectsTool
{

/// What the command line says.
struct Arguments
{
    std::vector<std::string> files;
    std::string file;
    std::string otherFile;
    std::string thirdFile;
    std::string path;
    std::string value;
    std::string name; // a class id or a part of one
    std::string shell;
    std::string notesFolder;
    std::string examplesFolder;
    std::string outputFolder;
    std::string junitFile;
    std::string release;
    std::vector<std::string> ignoredCodes;
    RunOptions run;
    CheckSettings check;
    bool isJson = false;
    bool isRaw = false;
    bool isChangedOnly = false;
    bool isClosed = false;
    bool areLines = false;
    std::function<Report(Arguments&)> command;
};

// How commands that work on files are run. Each prints what there is to say of a file when the file is done.
// @throws ToolError `Usage`

/// On the one file that is named.
Report OnFile(Arguments& arguments, const Work& work);

/// On the files and folders that are named, or on their lines.
/// @param hasDocuments whether the work makes a document of each file
Report OnFiles(Arguments& arguments, bool hasDocuments, const Work& work);

Report RunCheck(Arguments& arguments);

/// The texts of all codes that `check` knows.
std::vector<std::string> FindingCodes();

} // namespace Ombrel::EffectsTool

#endif
