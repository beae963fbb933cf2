#ifndef OMBREL_EFFECTS_TOOL_REPORT_H
#define OMBREL_EFFECTS_TOOL_REPORT_H

#include "Document.h"
#include "ToolError.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace Ombrel::EffectsTool
{

/// How many findings of each severity there are, for the summary.
struct Counts
{
    std::size_t errors = 0;
    std::size_t warnings = 0;
    std::size_t notes = 0;

    Counts& operator+=(const Counts& other)
    {
        errors += other.errors;
        warnings += other.warnings;
        notes += other.notes;
        return *this;
    }
};

/// "2 errors, 1 warning, 0 notes".
inline std::string SummaryOf(const Counts& counts)
{
    const auto text = [](std::size_t count, const char* name)
    { return std::to_string(count) + " " + name + (count == 1 ? "" : "s"); };
    return text(counts.errors, "error") + ", " + text(counts.warnings, "warning") + ", " + text(counts.notes, "note");
}

/// What a command says of one file. No command prints or writes anything itself.
struct Report
{
    std::string out;                     // for the standard output
    std::optional<std::string> document; // for the standard output, or for the file with --in-place
    bool isChanged = false;              // whether the document is another than the file's
    bool isAskedFor = false;             // the document is to be written whatever the code is
    std::vector<std::string> complaints; // for the standard error, a line each
    ExitCode code = ExitCode::Fine;
    Counts counts;

    bool HasText() const { return !out.empty() || document || !complaints.empty(); }

    void Raise(ExitCode other) { code = std::max(code, other); }

    /// Takes over the code and the counts.
    void Merge(const Report& part)
    {
        Raise(part.code);
        counts += part.counts;
    }

    void SetDocument(const Document& file, const PropertyTree& tree)
    {
        document = file.TextWith(tree);
        isChanged = tree != file.Tree();
    }

    void Complain(ExitCode reason, std::string complaint)
    {
        complaints.push_back(std::move(complaint));
        Raise(reason);
    }
};

} // namespace Ombrel::EffectsTool

#endif
