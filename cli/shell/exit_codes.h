#pragma once

#include "output/failure.h"

#include <string>

namespace calvix::host
{

struct ExitCodeText
{
    ExitCode code;
    const char* meaning;
};

/// Every exit code of the program, in the order of the numbers.
inline constexpr ExitCodeText kExitCodes[] = {
    {ExitCode::success, "success"},
    {ExitCode::failed,
     "the operation failed: it was refused or timed out, Ctrl-C ended the wait, or the output could not be written"},
    {ExitCode::badInput, "bad usage, or a file that cannot be used"},
    {ExitCode::unavailable, "no adapter, or the WLAN service cannot be reached"},
    {ExitCode::notConfirmed, "the confirmation was not answered with yes, so nothing was done"},
    {ExitCode::differs, "the command differs from the recording that it replays"},
};

/// The same as lines below a help text.
inline std::string ExitCodeLines()
{
    std::string lines = "Exit codes:";
    for (const ExitCodeText& text : kExitCodes)
        lines += "\n  " + std::to_string(static_cast<int>(text.code)) + "  " + text.meaning;
    return lines;
}

} // namespace calvix::host
