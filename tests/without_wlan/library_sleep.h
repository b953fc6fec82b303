#pragma once

#include <windows.h>

namespace calvix::test::without_wlan_test
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
    ULONG_PTR m_original = 0;
};

} // namespace calvix::test::without_wlan_test
