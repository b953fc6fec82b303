#if defined(_WIN32)

#include "terminal.h"
#include "text_forms.h"

#include <cstdlib>

#include <windows.h>

#include <shellapi.h>

#ifndef ENABLE_VIRTUAL_TERMINAL_PROCESSING
#define ENABLE_VIRTUAL_TERMINAL_PROCESSING 0x0004
#endif

namespace calvix::host
{

TerminalTraits DetectTerminal()
{
    SetConsoleOutputCP(CP_UTF8);
    const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD mode = 0;
    TerminalTraits traits;
    traits.isTerminal = GetConsoleMode(output, &mode) != 0;
    // Old consoles refuse escape sequences and would show them.
    const bool sequences = traits.isTerminal && SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
    const bool unwanted = GetEnvironmentVariableW(L"NO_COLOR", nullptr, 0) > 1;
    traits.color = sequences && !unwanted;
    return traits;
}

std::vector<std::string> ProgramArguments(int, char**)
{
    // The narrow arguments have gone through the active code page and may have lost characters there.
    int count = 0;
    LPWSTR* const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; wide != nullptr && i < count; ++i)
        arguments.push_back(Narrow(wide[i]));
    LocalFree(wide);
    return arguments;
}

} // namespace calvix::host

#endif
