#pragma once

#include <calvix/platform_records.h>

namespace calvix::platform
{

/// The calling thread's last error, for the operations that report failure without naming it.
class LastError
{
public:
    virtual ~LastError() = default;

    virtual DWORD GetLastError() = 0;
};

} // namespace calvix::platform
