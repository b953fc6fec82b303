#pragma once

#include "output/failure.h"
#include "shell/command_description.h"

#include <string>
#include <vector>

namespace calvix::host
{

/// Why arguments that the parser refused cannot be used, with what was probably meant. `parserWords` is what the parser
/// says of them.
Failure UsageFailure(const ProgramDescription& program,
                     const std::vector<std::string>& arguments,
                     const std::string& parserWords);

/// Whether a word stands in the place of a command and is none.
bool NamesUnknownCommand(const ProgramDescription& program, const std::vector<std::string>& arguments);

} // namespace calvix::host
