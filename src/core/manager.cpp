#include <calvix/wireless_manage.h>

#include "core/service_steps.h"

#include <algorithm>
#include <cstring>
#include <new>

using namespace calvix;

namespace
{

/// Both directions: the trace line is written on success as well.
int Register(HANDLE& client,
             DWORD source,
             BOOL ignoreDuplicates,
             WLAN_NOTIFICATION_CALLBACK callback,
             void* context,
             const char* format)
{
    SharedTrace trace;
    if (const ErrorNumber error = OpenClient(client, trace))
        return static_cast<int>(error);
    DWORD previousSource = 0;
    const auto error = static_cast<int>(platform::wlan().WlanRegisterNotification(
        client, source, ignoreDuplicates, callback, context, nullptr, &previousSource));
    trace.Line(format, static_cast<long>(error));
    return error;
}

} // namespace

#ifdef CALVIX_KIND
const int CALVIX_KIND = 1;
#endif

HANDLE CWirelessManage::hClient = nullptr;
CWirelessManage* CWirelessManage::m_pManage = nullptr;

/// Every byte counts, those between the members, too. They are written here and not before the construction, whose
/// beginning lets a compiler forget what stood in the room.
CWirelessManage::CWirelessManage()
{
    __autoclassinit2(sizeof(*this));
    m_nSavedAutoConnMode = 1;
}

CWirelessManage::~CWirelessManage() = default;

CWirelessManage& CWirelessManage::operator=(const CWirelessManage& other)
{
    std::memmove(static_cast<void*>(this), &other, sizeof(*this));
    return *this;
}

void CWirelessManage::__autoclassinit2(unsigned long long byteCount)
{
    const auto size = (std::min)(byteCount, static_cast<unsigned long long>(sizeof(*this)));
    std::memset(static_cast<void*>(this), 0, static_cast<std::size_t>(size));
}

CWirelessManage* CWirelessManage::Get()
{
    SharedTrace trace;
    OpenClient(hClient, trace);
    if (m_pManage == nullptr)
        m_pManage = new (std::nothrow) CWirelessManage();
    return m_pManage;
}

void CWirelessManage::Delete()
{
    SharedTrace trace;
    // Deliberate: hClient keeps the closed handle's value, so that a later use reports the service's own error for it
    // instead of silently opening another client.
    if (hClient != nullptr)
        trace.Failed(platform::wlan().WlanCloseHandle(hClient, nullptr), "WlanCloseHandle failed with error: %u");
    delete m_pManage;
    m_pManage = nullptr;
}

int CWirelessManage::RegisterNotification(WLAN_NOTIFICATION_CALLBACK callback, void* context)
{
    return Register(hClient, WLAN_NOTIFICATION_SOURCE_ACM, TRUE, callback, context, "WlanRegisterNotification: %ld");
}

int CWirelessManage::UnRegisterNotification(WLAN_NOTIFICATION_CALLBACK, void* context)
{
    return Register(hClient, WLAN_NOTIFICATION_SOURCE_NONE, FALSE, nullptr, context, "WlanUnRegisterNotification: %ld");
}
