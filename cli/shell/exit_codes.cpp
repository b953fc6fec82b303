#include "shell/exit_codes.h"

namespace calvix::host
{

namespace
{

constexpr ExitCodeText kExitCodeTexts[] = {
    {ExitCode::success, "success"},
    {ExitCode::failed,
     "the operation failed: it was refused or timed out, Ctrl-C ended the wait, or the output could not be written"},
    {ExitCode::badInput, "bad usage, or a file that cannot be used"},
    {ExitCode::unavailable, "no adapter, or the WLAN service cannot be reached"},
    {ExitCode::notConfirmed, "the confirmation was not answered with yes, so nothing was done"},
    {ExitCode::differs, "the command differs from the recording that it replays"},
};

} // namespace

std::span<const ExitCodeText> AllExitCodes()
{
    return kExitCodeTexts;
}

std::string ExitCodeLines()
{
    std::string lines = "Exit codes:";
    for (const ExitCodeText& text : AllExitCodes())
        lines += "\n  " + std::to_string(static_cast<int>(text.code)) + "  " + text.meaning;
    return lines;
}

} // namespace calvix::host
