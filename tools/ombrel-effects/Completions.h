#ifndef OMBREL_EFFECTS_TOOL_COMPLETIONS_H
#define OMBREL_EFFECTS_TOOL_COMPLETIONS_H

#include "CommandOutline.h"

#include <string>
#include <string_view>
#include <vector>

namespace Ombrel::EffectsTool
{

/// The shells that are known.
std::vector<std::string> Shells();

/// The script by which a shell completes the commands, their options and values. It works where the shell looks for such
/// scripts, and where its text is evaluated.
/// @param shell one of `Shells()`
std::string Completion(const ProgramOutline& program, const std::string& shell);

// One for each shell.

std::string BashCompletion(const ProgramOutline& program);
std::string FishCompletion(const ProgramOutline& program);
std::string ZshCompletion(const ProgramOutline& program);

// What they have in common.

/// The text with the program's name for "@program@", and for "@name@" what names of functions begin with.
std::string ForProgram(const ProgramOutline& program, std::string_view text);

/// The text with a backslash before each of these characters.
std::string WithBackslashes(std::string_view text, std::string_view characters);

/// The text as one word for bash and zsh.
std::string SingleQuoted(std::string_view text);

std::string WithSpaces(const std::vector<std::string>& words);

/// All names of all options.
std::vector<std::string> NamesOf(const std::vector<ArgumentOutline>& options);

} // namespace Ombrel::EffectsTool

#endif
