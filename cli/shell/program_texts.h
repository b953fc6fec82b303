#pragma once

#include <span>

namespace calvix::host
{

/// What help and the manual page say of the program as a whole.

inline constexpr const char* kVersionNumber = "1.0.0";

inline constexpr const char* kProgramSummary = "wireless networks: adapters, scans, profiles, connections";

inline constexpr const char* kProgramDescription =
    "Shows and changes what the WLAN service knows and does. Results go to standard output,\n"
    "failures, progress and trace lines to standard error. With --scenario the commands work on\n"
    "a simulated computer in place of the real one; off Windows there is no other, and a\n"
    "built-in one is used where none is named.";

inline constexpr const char* kProgramExamples = R"(What is there, and how strong:
  calvix networks
  calvix status --json
A session that can be played back anywhere, for a bug report say:
  calvix connect Office --record session.jsonl --anonymise
  calvix connect Office --replay session.jsonl)";

struct EnvironmentText
{
    const char* variable;
    const char* meaning;
};

/// The environment variables that the program looks at.
std::span<const EnvironmentText> AllEnvironmentTexts();

} // namespace calvix::host
