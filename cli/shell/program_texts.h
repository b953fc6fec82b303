#pragma once

#include "output/failure.h"

#include <string>

namespace calvix::host
{

/// What help and the manual page say about the program as a whole.

inline constexpr const char* kVersionNumber = "1.0.0";

inline constexpr const char* kProgramSummary = "wireless networks: adapters, scans, profiles, connections";

inline constexpr const char* kProgramDescription =
    "Shows and changes what the WLAN service knows and does. Results go to standard output,\n"
    "failures, progress and trace lines to standard error. With --scenario the commands work on\n"
    "a simulated computer in place of the real one; on other systems than Windows a built-in\n"
    "one is the default.";

inline constexpr const char* kProgramExamples = R"(What is in view, and its signal:
  calvix networks
  calvix status --json
A session that can be replayed anywhere, for example for a bug report:
  calvix connect Office --record session.jsonl
  calvix connect Office --replay session.jsonl)";

struct EnvironmentText
{
    const char* variable;
    const char* meaning;
};

/// The environment variables that the program looks at.
inline constexpr EnvironmentText kEnvironment[] = {
    {"NO_COLOR", "Any value but an empty one: no colours, unless --color always is given"},
    {"TERM", "\"dumb\": the output has no colours and no progress lines, as in a file"},
};

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
