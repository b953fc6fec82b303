#include "direct/hand_written.h"

#include <cstdio>
#include <cstring>

namespace calvix::benchmarks
{

using platform::wlan;

HANDLE HandWritten::client = nullptr;
HandWritten* HandWritten::instance = nullptr;

bool HandWritten::Open()
{
    DWORD version = 0;
    return wlan().WlanOpenHandle(2, nullptr, &version, &client) == 0;
}

HandWritten* HandWritten::Get()
{
    Ready();
    if (instance == nullptr)
        instance = new HandWritten();
    return instance;
}

void HandWritten::Delete()
{
    if (client != nullptr)
        wlan().WlanCloseHandle(client, nullptr);
    delete instance;
    instance = nullptr;
}

HandWritten& HandWritten::operator=(const HandWritten& other) = default;

void HandWritten::Forget()
{
    client = nullptr;
    delete instance;
    instance = nullptr;
}

void HandWritten::__autoclassinit2(unsigned long long byteCount)
{
    std::memset(static_cast<void*>(this), 0, byteCount < sizeof(*this) ? byteCount : sizeof(*this));
}

// The outcome is noted in both cases, as a log.
int HandWritten::RegisterNotification(WLAN_NOTIFICATION_CALLBACK callback, void* context)
{
    if (!Ready())
        return -1;
    DWORD previous = 0;
    const DWORD error = wlan().WlanRegisterNotification(client, WLAN_NOTIFICATION_SOURCE_ACM, TRUE, callback, context,
                                                        nullptr, &previous);
    char line[256];
    std::snprintf(line, sizeof(line), "WlanRegisterNotification: %ld", static_cast<long>(error));
    return static_cast<int>(error);
}

int HandWritten::UnRegisterNotification(WLAN_NOTIFICATION_CALLBACK, void* context)
{
    if (!Ready())
        return -1;
    DWORD previous = 0;
    const DWORD error = wlan().WlanRegisterNotification(client, WLAN_NOTIFICATION_SOURCE_NONE, FALSE, nullptr, context,
                                                        nullptr, &previous);
    char line[256];
    std::snprintf(line, sizeof(line), "WlanUnRegisterNotification: %ld", static_cast<long>(error));
    return static_cast<int>(error);
}

} // namespace calvix::benchmarks
