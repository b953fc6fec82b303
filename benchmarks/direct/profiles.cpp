#include "direct/hand_written.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwchar>

namespace calvix::benchmarks
{

using platform::text;
using platform::wlan;

namespace
{

int Widen(const char* name, wchar_t (&wide)[256])
{
    return text().MultiByteToWideChar(CP_ACP, MB_PRECOMPOSED | MB_ERR_INVALID_CHARS, name, -1, wide, 256);
}

DWORD ReadXml(HANDLE client, const GUID* adapter, const wchar_t* name, wchar_t*& xml)
{
    DWORD flags = WLAN_PROFILE_GET_PLAINTEXT_KEY;
    DWORD access = WLAN_READ_ACCESS;
    return wlan().WlanGetProfile(client, adapter, name, nullptr, &xml, &flags, &access);
}

} // namespace

int HandWritten::GetWlanProfile(const GUID* adapter, const char* name)
{
    wchar_t wide[256];
    WLAN_PROFILE_INFO_LIST* list = nullptr;
    if (!Ready() || Widen(name, wide) == 0 || wlan().WlanGetProfileList(client, adapter, nullptr, &list) != 0)
        return -2;
    int result = -1;
    for (DWORD index = 0; index < list->dwNumberOfItems && result != 0; ++index)
        if (std::wcscmp(list->ProfileInfo[index].strProfileName, wide) == 0)
            result = 0;
    wlan().WlanFreeMemory(list);
    return result;
}

int HandWritten::DeleteProfile(const GUID* adapter, const char* name)
{
    wchar_t wide[128] = {};
    std::mbstowcs(wide, name, 127);
    return DeleteProfile(adapter, wide);
}

int HandWritten::DeleteProfile(const GUID* adapter, const wchar_t* name)
{
    return Ready() && wlan().WlanDeleteProfile(client, adapter, name, nullptr) == 0 ? 0 : -4;
}

int HandWritten::ResetProfilePosition(const GUID* adapter, const char* name)
{
    WLAN_PROFILE_INFO_LIST* list = nullptr;
    if (!Ready() || wlan().WlanGetProfileList(client, adapter, nullptr, &list) != 0)
        return -1;
    int result = 0;
    wchar_t wide[256];
    if (list->dwNumberOfItems > 1)
        result = Widen(name, wide) == 0
                     ? -1
                     : static_cast<int>(wlan().WlanSetProfilePosition(client, adapter, wide, 1, nullptr));
    wlan().WlanFreeMemory(list);
    return result;
}

int HandWritten::SetProfilePosition(const GUID* adapter, const wchar_t* name)
{
    WLAN_PROFILE_INFO_LIST* list = nullptr;
    if (!Ready() || wlan().WlanGetProfileList(client, adapter, nullptr, &list) != 0)
        return -1;
    int result = 0;
    if (list->dwNumberOfItems > 1)
        result =
            static_cast<int>(wlan().WlanSetProfilePosition(client, adapter, name, list->dwNumberOfItems - 1, nullptr));
    wlan().WlanFreeMemory(list);
    return result;
}

int HandWritten::GetProfileCount(const GUID* adapter)
{
    WLAN_PROFILE_INFO_LIST* list = nullptr;
    if (!Ready() || wlan().WlanGetProfileList(client, adapter, nullptr, &list) != 0)
        return -4;
    const int count = static_cast<int>(list->dwNumberOfItems);
    wlan().WlanFreeMemory(list);
    return count;
}

int HandWritten::GetProfile(const GUID* adapter, const wchar_t* name, wchar_t* xml, int capacity)
{
    wchar_t* document = nullptr;
    if (!Ready() || ReadXml(client, adapter, name, document) != 0)
        return -4;
    const std::size_t length = (std::min)(std::wcslen(document), static_cast<std::size_t>(capacity) - 1);
    std::wmemcpy(xml, document, length);
    xml[length] = L'\0';
    wlan().WlanFreeMemory(document);
    return 0;
}

int HandWritten::GetProfile(const GUID* adapter, const wchar_t* name, char* xml, int capacity)
{
    wchar_t* document = nullptr;
    if (!Ready() || ReadXml(client, adapter, name, document) != 0)
        return -4;
    const int length = std::snprintf(xml, static_cast<std::size_t>(capacity), "%ls", document);
    wlan().WlanFreeMemory(document);
    return length >= 0 && length < capacity ? 0 : -1;
}

int HandWritten::GetProfile(const GUID* adapter, const wchar_t* name)
{
    wchar_t* document = nullptr;
    if (!Ready() || ReadXml(client, adapter, name, document) != 0)
        return -4;
    wlan().WlanFreeMemory(document);
    return 0;
}

int HandWritten::SetProfile(const GUID* adapter, const wchar_t* xml)
{
    DWORD reason = 0;
    return Ready() && wlan().WlanSetProfile(client, adapter, 0, xml, nullptr, TRUE, nullptr, &reason) == 0 ? 0 : -4;
}

int HandWritten::IsAutoConnMode2(const GUID* adapter, const wchar_t* name)
{
    wchar_t* document = nullptr;
    if (!Ready() || ReadXml(client, adapter, name, document) != 0)
        return -4;
    const int result = IsAutoConnMode(document);
    wlan().WlanFreeMemory(document);
    return result;
}

} // namespace calvix::benchmarks
