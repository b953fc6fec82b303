#include <calvix/wireless_manage.h>

#include "core/bounded_copy.h"
#include "core/narrow_text.h"
#include "core/service_steps.h"
#include "core/strict_copy.h"
#include "profiles/profile_read.h"

using namespace calvix;
using platform::wlan;

int CWirelessManage::GetProfile(const GUID* pInterfaceGuid, const wchar_t* name, wchar_t* xml, int capacity)
{
    if (xml == nullptr && capacity != 0)
        return -13;
    LocalTrace<128> trace;
    ProfileText profile;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (ReadProfile(hClient, pInterfaceGuid, name, profile, trace) != 0)
        return -4;
    CopyTruncatingToCaller(xml, capacity, profile.get());
    return 0;
}

int CWirelessManage::GetProfile(const GUID* pInterfaceGuid, const wchar_t* name, char* xml, int capacity)
{
    LocalTrace<128> trace;
    ProfileText profile;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (ReadProfile(hClient, pInterfaceGuid, name, profile, trace) != 0)
        return -4;
    // Deliberate: unlike the wide form this one never cuts.
    const std::size_t room = capacity > 0 ? static_cast<std::size_t>(capacity) : 0;
    RequireRoom(xml, room, NarrowInLocale(profile.get(), nullptr, 0) + 1, "GetProfile");
    NarrowInLocale(profile.get(), xml, room);
    return 0;
}

int CWirelessManage::GetProfile(const GUID* pInterfaceGuid, const wchar_t* name)
{
    SharedTrace trace;
    ProfileText profile;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (ReadProfile(hClient, pInterfaceGuid, name, profile, trace) != 0)
        return -4;
    return 0;
}

int CWirelessManage::SetProfile(const GUID* pInterfaceGuid, const wchar_t* xml)
{
    LocalTrace<128> trace;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    DWORD reason = 0;
    if (trace.Failed(wlan().WlanSetProfile(hClient, pInterfaceGuid, 0, xml, nullptr, TRUE, nullptr, &reason),
                     "WlanSetProfile failed with error: %u"))
        return -4;
    return 0;
}
