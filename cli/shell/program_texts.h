#pragma once

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

} // namespace calvix::host
