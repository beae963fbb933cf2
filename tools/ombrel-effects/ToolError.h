#ifndef OMBREL_EFFECTS_TOOL_TOOL_ERROR_H
#define OMBREL_EFFECTS_TOOL_TOOL_ERROR_H

#include <stdexcept>
#include <string>

namespace Ombrel::EffectsTool
{

/// The exit codes of the program. Scripts rely on the numbers. Where several would do, the highest counts.
enum class ExitCode : int
{
    Fine = 0,
    Findings = 1, // something was found, or would be changed or lost
    Usage = 2,    // a wrong command line; a path, class id, key or name that does not exist
    File = 3,     // a file that cannot be read or written
    BadInput = 4, // not JSON, or an effect that the command needs and cannot be read
};

/// Ends the work on a file. `what()` is the whole message for the user, with the file and the place.
class ToolError : public std::runtime_error
{
public:
    ToolError(ExitCode code, const std::string& message) : std::runtime_error(message), m_code(code) {}

    ExitCode code() const noexcept { return m_code; }

private:
    ExitCode m_code;
};

} // namespace Ombrel::EffectsTool

#endif
