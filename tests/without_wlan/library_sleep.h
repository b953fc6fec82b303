#pragma once

#include <windows.h>

namespace calvix::test::every_method
{

/// While this object exists, calvix.dll does not sleep: its calls of Sleep return at once and are added up. One at a
/// time.
class LibrarySleep
{
public:
    LibrarySleep();
    ~LibrarySleep();
    LibrarySleep(const LibrarySleep&) = delete;
    LibrarySleep& operator=(const LibrarySleep&) = delete;

    DWORD Milliseconds() const;

private:
    ULONG_PTR original_ = 0;
};

} // namespace calvix::test::every_method
