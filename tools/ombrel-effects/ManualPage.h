#ifndef OMBREL_EFFECTS_TOOL_MANUAL_PAGE_H
#define OMBREL_EFFECTS_TOOL_MANUAL_PAGE_H

#include "CommandOutline.h"
#include "ToolError.h"

#include <span>
#include <string>

namespace Ombrel::EffectsTool
{

struct ExitCodeHelp
{
    ExitCode code;
    const char* meaning;
};

struct ExitStatusHelp
{
    const char* heading; // without a colon
    std::span<const ExitCodeHelp> codes;
};

/// The manual page of the program, for the macros "man" of roff. It has no date, so that the same commands make the same page.
/// @param version the program and its number
std::string ManualPage(const ProgramOutline& program, const ExitStatusHelp& exitStatus, const std::string& version);

} // namespace Ombrel::EffectsTool

#endif
