#if !defined(_WIN32)

#include "output/terminal.h"

#include <unistd.h>

namespace calvix::host
{

ConsoleFindings PrepareConsole()
{
    return {.outIsTerminal = isatty(STDOUT_FILENO) == 1, .errorIsTerminal = isatty(STDERR_FILENO) == 1};
}

std::vector<std::string> ProgramArguments(int argc, char** argv)
{
    return {argv + 1, argv + argc};
}

} // namespace calvix::host

#endif
