#pragma once

#include <calvix/platform_records.h>

#include "platform/operation.h"

namespace calvix::platform
{

/// The calling thread's last error, for the operations that report failure without naming it.
struct LastError
{
    Operation<DWORD()> GetLastError;
};

} // namespace calvix::platform
