#ifndef OMBREL_EFFECTS_TOOL_COMMAND_LINE_H
#define OMBREL_EFFECTS_TOOL_COMMAND_LINE_H

namespace Ombrel::EffectsTool
{

/// Runs the command that the arguments name. The exit code of the program.
int RunCommandLine(int argc, char** argv);

} // namespace Ombrel::EffectsTool

#endif
