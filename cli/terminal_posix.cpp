#if !defined(_WIN32)

#include "terminal.h"

#include <cstdlib>
#include <unistd.h>

namespace calvix::host
{

TerminalTraits DetectTerminal()
{
    const char* const noColor = std::getenv("NO_COLOR");
    TerminalTraits traits;
    traits.isTerminal = isatty(STDOUT_FILENO) == 1;
    traits.color = traits.isTerminal && (noColor == nullptr || *noColor == '\0');
    return traits;
}

std::vector<std::string> ProgramArguments(int argc, char** argv)
{
    return {argv + 1, argv + argc};
}

} // namespace calvix::host

#endif
