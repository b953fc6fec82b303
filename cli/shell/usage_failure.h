#pragma once

#include "output/failure.h"
#include "shell/command.h"

#include <string>
#include <vector>

namespace calvix::host
{

/// Why arguments that the parser refused cannot be used, with what was probably meant. `parserWords` is what the parser
/// says of them.
Failure
UsageFailure(const CommandSet& program, const std::vector<std::string>& arguments, const std::string& parserWords);

/// Whether a word is in the place of a command and is not one.
bool NamesUnknownCommand(const CommandSet& program, const std::vector<std::string>& arguments);

} // namespace calvix::host
