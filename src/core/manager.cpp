#include <calvix/wireless_manage.h>

#include "core/service_steps.h"

#include <algorithm>
#include <cstring>
#include <new>

using namespace calvix;

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
