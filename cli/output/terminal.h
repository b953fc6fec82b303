#pragma once

#include <string>
#include <vector>

namespace calvix::host
{

/// What standard output and standard error can show. By default they are files or pipes.
struct TerminalTraits
{
    bool isTerminal = false; ///< people are watching standard output: signal bars, progress
    bool color = false;
    bool errorColor = false; ///< of standard error
};

/// What is found out about the console.
struct ConsoleFindings
{
    bool outIsTerminal = false;
    bool errorIsTerminal = false;
    bool sequences = true;    ///< whether it understands escape sequences
    std::string noColor = {}; ///< the environment variables NO_COLOR and TERM, empty where they are not set
    std::string term = {};
};

/// What to do with it.
TerminalTraits TraitsOf(const ConsoleFindings& findings);

/// The same after --color: "always", "never" or "auto", which changes nothing.
TerminalTraits InColor(TerminalTraits terminal, const std::string& when);

/// Prepares the console (UTF-8, escape sequences) and says what it is, but for the environment.
ConsoleFindings PrepareConsole();
/// Prepares the console and says what it can show.
TerminalTraits DetectTerminal();

/// The program's arguments as UTF-8, without the program's name.
std::vector<std::string> ProgramArguments(int argc, char** argv);

} // namespace calvix::host
