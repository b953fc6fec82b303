#if defined(_WIN32)

#include "output/terminal.h"
#include "output/text_forms.h"

#include <windows.h>

#include <shellapi.h>

#ifndef ENABLE_VIRTUAL_TERMINAL_PROCESSING
#define ENABLE_VIRTUAL_TERMINAL_PROCESSING 0x0004
#endif

namespace calvix::host
{

namespace
{

/// Whether it is a console; escape sequences are then asked for, and `sequences` says whether it takes them. Old
/// consoles refuse them and would show them.
bool PrepareHandle(DWORD which, bool& sequences)
{
    const HANDLE handle = GetStdHandle(which);
    DWORD mode = 0;
    if (GetConsoleMode(handle, &mode) == 0)
        return false;
    sequences = SetConsoleMode(handle, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0 && sequences;
    return true;
}

} // namespace

ConsoleFindings PrepareConsole()
{
    SetConsoleOutputCP(CP_UTF8);
    ConsoleFindings findings;
    findings.outIsTerminal = PrepareHandle(STD_OUTPUT_HANDLE, findings.sequences);
    findings.errorIsTerminal = PrepareHandle(STD_ERROR_HANDLE, findings.sequences);
    return findings;
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
