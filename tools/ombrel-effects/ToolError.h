#ifndef OMBREL_EFFECTS_TOOL_TOOL_ERROR_H
#define OMBREL_EFFECTS_TOOL_TOOL_ERROR_H

#include <stdexcept>
#include <string>

namespace Ombrel::EffectsTool
{

/// The exit codes of the program. Scripts rely on the numbers.
enum class ExitCode : int
{
    Fine = 0,
    NotAsAsked =
        1, // a key, index or class id that does not exist; a stored value that differs from the given one; dropped keys
    UsageOrFile = 2, // a wrong command line; a file that cannot be read or written
    BadInput = 3,    // not JSON, not effects, an unknown class id in the file, a value that the library refuses
};

/// Ends a command. `what()` is the whole message for the user, with the file and the place.
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
