#if !defined(_WIN32)

#include "output/terminal.h"

#include <cstdlib>
#include <unistd.h>

namespace calvix::host
{

namespace
{

std::string VariableOrNothing(const char* name)
{
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

} // namespace

TerminalTraits DetectTerminal()
{
    ConsoleFindings findings;
    findings.outIsTerminal = isatty(STDOUT_FILENO) == 1;
    findings.errorIsTerminal = isatty(STDERR_FILENO) == 1;
    findings.noColor = VariableOrNothing("NO_COLOR");
    findings.term = VariableOrNothing("TERM");
    return TraitsOf(findings);
}

std::vector<std::string> ProgramArguments(int argc, char** argv)
{
    return {argv + 1, argv + argc};
}

} // namespace calvix::host

#endif
