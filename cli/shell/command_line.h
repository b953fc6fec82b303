#pragma once

#include "host/common_options.h"
#include "output/failure.h"
#include "shell/command.h"

#include <memory>
#include <optional>

namespace calvix::host
{

/// What the arguments ask for.
struct Request
{
    std::string command; ///< "profiles list"
    RunCommand run;
    CommonOptions options;
};

/// Reads the arguments. Help and version, when asked for, go to `out`, what is wrong goes to `err`; `exitCode` is set
/// and no request returned then.
std::optional<Request> ParseArguments(AddCommands add,
                                      const std::vector<std::string>& arguments,
                                      std::ostream& out,
                                      std::ostream& err,
                                      ExitCode& exitCode);

} // namespace calvix::host
