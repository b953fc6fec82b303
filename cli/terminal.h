#pragma once

#include <string>
#include <vector>

namespace calvix::host
{

/// What standard output can show. By default it is a file or a pipe.
struct TerminalTraits
{
    bool isTerminal = false; ///< people are watching: signal bars, progress
    bool color = false;
};

/// Prepares the console (UTF-8, escape sequences) and says what standard output is.
TerminalTraits DetectTerminal();

/// The program's arguments as UTF-8, without the program's name.
std::vector<std::string> ProgramArguments(int argc, char** argv);

} // namespace calvix::host
