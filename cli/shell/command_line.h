#pragma once

#include "output/failure.h"
#include "shell/command.h"

#include <ostream>

namespace calvix::host
{

/// Reads the arguments into the variables of the command that they name, and returns it. Help and version, when asked
/// for, go to `out`, what is wrong goes to `err`; `exitCode` is set and null returned then.
const Command* ParseArguments(const CommandSet& commands,
                              const std::vector<std::string>& arguments,
                              std::ostream& out,
                              std::ostream& err,
                              ExitCode& exitCode);

} // namespace calvix::host
