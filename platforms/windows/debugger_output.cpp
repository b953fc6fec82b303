#include "windows/debugger_output.h"

#include <calvix/platform_records.h>

namespace calvix::windows
{

void DebuggerOutput::OutputDebugStringA(const char* text)
{
    ::OutputDebugStringA(text);
}

} // namespace calvix::windows
