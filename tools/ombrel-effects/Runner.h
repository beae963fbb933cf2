#ifndef OMBREL_EFFECTS_TOOL_RUNNER_H
#define OMBREL_EFFECTS_TOOL_RUNNER_H

#include "Document.h"
#include "Report.h"

#include <functional>
#include <string>
#include <vector>

namespace Ombrel::EffectsTool
{

/// How a command is run on its files.
struct RunOptions
{
    ReadingOptions reading;
    unsigned jobs = 1;
    bool isInPlace = false; // documents replace their files
    bool isForced = false;  // also where something is changed or lost that was not asked for
    bool isQuiet = false;   // without a progress line
    std::function<void(const std::string& file, const Report& report)> whenDone = {}; // of each file, in their order
};

/// What a command makes of one file.
using Work = std::function<Report(const Document& document)>;

/// Does the work on each file, in several threads if asked for, and prints what it says in the order of the files.
/// @param report gets the codes, counts and complaints of all of them; its own are printed first
void RunOnFiles(const std::vector<std::string>& files, const RunOptions& options, const Work& work, Report& report);

/// The same for files of JSON Lines: the work is done on each line, and what it says is printed at once. A line is an effect, a
/// list of them, or a map with "effects" and what else it likes, such as an "id", which is handed through.
/// @param hasDocuments whether the command makes a document of each line; a line that it cannot work on is then handed through
void RunOnLines(const std::vector<std::string>& files, const RunOptions& options, bool hasDocuments, const Work& work,
                Report& report);

/// Prints complaints to the standard error and what else there is to the standard output.
/// @throws ToolError `File` if the standard output cannot be written
void Print(const Report& report);

} // namespace Ombrel::EffectsTool

#endif
