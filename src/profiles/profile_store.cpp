#include <calvix/wireless_manage.h>

#include "core/copies.h"
#include "core/service_steps.h"
#include "core/wlan_records.h"
#include "text/conversion.h"

#include <cstring>
#include <cwchar>

using namespace calvix;
using platform::wlan;

namespace
{

/// A narrow name in wide characters as the C runtime widens it in its current locale, where bytes without a meaning
/// keep their value; cut to the room there is.
template <std::size_t Capacity>
void WidenTruncating(const char* narrow, wchar_t (&wide)[Capacity])
{
    std::mbstate_t state{};
    std::size_t length = 0;
    const std::size_t size = std::strlen(narrow);
    for (std::size_t read = 0; read < size && length + 1 < Capacity; ++length)
    {
        std::size_t used = std::mbrtowc(&wide[length], narrow + read, size - read, &state);
        if (used == 0 || used > size - read)
        {
            wide[length] = static_cast<unsigned char>(narrow[read]);
            state = {};
            used = 1;
        }
        read += used;
    }
    wide[length] = L'\0';
}

} // namespace

int CWirelessManage::GetWlanProfile(const GUID* pInterfaceGuid, const char* name)
{
    LocalTrace<128> trace;
    ProfileList profiles;
    char narrow[128];
    wchar_t wide[kProfileNameCapacity];
    // Deliberate: every step's own error number is the result, that of the client handle included.
    if (const ErrorNumber error = OpenClient(hClient, trace))
        return static_cast<int>(error);
    StrictCopyText(narrow, sizeof(narrow), name, "GetWlanProfile");
    if (const ErrorNumber error = WidenProfileName(narrow, wide, trace))
        return static_cast<int>(error);
    if (const ErrorNumber error = ListProfiles(hClient, pInterfaceGuid, profiles, trace))
        return static_cast<int>(error);
    for (const WLAN_PROFILE_INFO& profile : Items(*profiles))
        if (FixedText(profile.strProfileName) == wide)
            return 0;
    return -1;
}

int CWirelessManage::GetProfileCount(const GUID* pInterfaceGuid)
{
    SharedTrace trace;
    ProfileList profiles;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (ListProfiles(hClient, pInterfaceGuid, profiles, trace) != 0)
        return -4;
    return static_cast<int>(profiles->dwNumberOfItems);
}

int CWirelessManage::ResetProfilePosition(const GUID* pInterfaceGuid, const char* name)
{
    LocalTrace<128> trace;
    ProfileList profiles;
    wchar_t wide[kProfileNameCapacity];
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (const ErrorNumber error = ListProfiles(hClient, pInterfaceGuid, profiles, trace))
        return static_cast<int>(error);
    if (profiles->dwNumberOfItems < 2)
        return 0;
    if (const ErrorNumber error = WidenProfileName(name, wide, trace))
        return static_cast<int>(error);
    // Deliberate: the second place, never the first.
    return static_cast<int>(MoveProfile(hClient, pInterfaceGuid, wide, 1, trace));
}

int CWirelessManage::SetProfilePosition(const GUID* pInterfaceGuid, const wchar_t* name)
{
    LocalTrace<128> trace;
    ProfileList profiles;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (const ErrorNumber error = ListProfiles(hClient, pInterfaceGuid, profiles, trace))
        return static_cast<int>(error);
    if (profiles->dwNumberOfItems < 2)
        return 0;
    const DWORD last = profiles->dwNumberOfItems - 1;
    return static_cast<int>(MoveProfile(hClient, pInterfaceGuid, name, last, trace));
}

int CWirelessManage::DeleteProfile(const GUID* pInterfaceGuid, const char* name)
{
    wchar_t wide[128];
    if (name != nullptr)
        WidenTruncating(name, wide);
    return DeleteProfile(pInterfaceGuid, name != nullptr ? wide : nullptr);
}

int CWirelessManage::DeleteProfile(const GUID* pInterfaceGuid, const wchar_t* name)
{
    SharedTrace trace;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (trace.Failed(wlan().WlanDeleteProfile(hClient, pInterfaceGuid, name, nullptr),
                     "WlanDeleteProfile failed with error: %u"))
        return -4;
    return 0;
}

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

int CWirelessManage::SetCurrentWiFiToLast()
{
    LocalTrace<128> trace;
    // Released in the reverse of this order.
    InterfaceList interfaces;
    ProfileList profiles;
    ConnectionAttributes connection;
    const GUID* first = nullptr;
    if (const int code = FindFirstInterface(hClient, interfaces, first, trace); code != 0 || first == nullptr)
        return code;
    if (const ErrorNumber error = ListProfiles(hClient, first, profiles, trace))
        return static_cast<int>(error);
    if (const ErrorNumber error = QueryCurrentConnection(hClient, first, connection, kUpToProfileName, trace))
        return static_cast<int>(error);
    if (profiles->dwNumberOfItems < 2)
        return 0;
    const DWORD last = profiles->dwNumberOfItems - 1;
    return static_cast<int>(MoveProfile(hClient, first, TerminatedName(connection->strProfileName), last, trace));
}
