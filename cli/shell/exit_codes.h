#pragma once

#include "output/failure.h"

#include <span>
#include <string>

namespace calvix::host
{

struct ExitCodeText
{
    ExitCode code;
    const char* meaning;
};

/// Every exit code of the program, in the order of the numbers.
std::span<const ExitCodeText> AllExitCodes();

/// The same as lines below a help text.
std::string ExitCodeLines();

} // namespace calvix::host
