#pragma once

#include <calvix/platform_records.h>

namespace calvix::windows
{

/// Whether an export of this name is one that Wine has not written: a call of it would end the program instead of
/// failing. Always false on Windows, where what is exported is there.
bool IsWineStub(FARPROC function, const char* name);

} // namespace calvix::windows
