#pragma once

#include "output/terminal.h"

#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace calvix::host
{

/// The whole program: carries out what the arguments ask for, reads answers to its questions from `in`, writes results to
/// `out` and everything else to `err`, and returns the exit code (see ExitCode).
int Run(const std::vector<std::string>& arguments,
        std::istream& in,
        std::ostream& out,
        std::ostream& err,
        TerminalTraits terminal);

} // namespace calvix::host
