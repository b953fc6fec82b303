#pragma once

#include "shell/command.h"

#include <functional>
#include <string>
#include <vector>

namespace calvix::host
{

/// Adapters or profiles by the names that the options on the line lead to: --scenario and --interface.
using LiveNames =
    std::function<std::vector<Word>(ValueKind kind, const std::string& scenario, const std::string& adapter)>;

/// Completes a command line: the words before the cursor's, without the program's, and the beginning of that one. The
/// shells' scripts read which files are possible on the first line (none, any, scenarios, folders), then a word a line,
/// then a tab and its meaning.
std::string Complete(const CommandSet& program,
                     const std::vector<std::string>& before,
                     const std::string& current,
                     const LiveNames& liveNames);

/// The script that has a shell ask this program: "bash", "zsh", "fish" or "powershell". Null: no such shell.
const char* CompletionScript(const std::string& shell);

} // namespace calvix::host
