#include <calvix/wireless_manage.h>

#include "core/bounded_copy.h"
#include "core/plain_ascii.h"
#include "core/service_steps.h"
#include "core/strict_copy.h"
#include "profiles/profile_read.h"

#include <cstdio>
#include <cwchar>
#include <string>

using namespace calvix;
using platform::wlan;

namespace
{

/// The text as printf's %ls gives it in the current C locale; empty when a character has no form there.
std::string NarrowInLocale(const wchar_t* text)
{
    const int length = std::snprintf(nullptr, 0, "%ls", text);
    if (length <= 0)
        return {};
    std::string narrow(static_cast<std::size_t>(length) + 1, '\0');
    std::snprintf(narrow.data(), narrow.size(), "%ls", text);
    narrow.pop_back();
    return narrow;
}

/// Copies the text as NarrowInLocale would give it, if it fits and is plain ASCII, as profiles mostly are. Whether it
/// did.
bool CopyPlainAscii(char* destination, int capacity, const wchar_t* text)
{
    const std::size_t length = std::wcslen(text);
    if (destination == nullptr || capacity < 0 || length >= static_cast<std::size_t>(capacity))
        return false;
    bool isPlain = true;
    for (std::size_t index = 0; index < length; ++index)
    {
        destination[index] = static_cast<char>(text[index]);
        isPlain = isPlain && IsPlainAscii(text[index]);
    }
    destination[length] = '\0';
    return isPlain;
}

} // namespace

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
    if (!CopyPlainAscii(xml, capacity, profile.get()))
        StrictCopyText(xml, capacity, NarrowInLocale(profile.get()).c_str(), "GetProfile");
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
