#include "direct/hand_written.h"
#include "direct/lists.h"

#include <cstdint>
#include <cstdio>
#include <cstring>

namespace calvix::benchmarks
{

using platform::wlan;

namespace
{

int Append(HANDLE client, const GUID* adapter, const WLAN_AVAILABLE_NETWORK& network, std::vector<WLAN_BSS_ENTRY>& list)
{
    WLAN_BSS_LIST* const entries = ReadEntries(client, adapter, network);
    if (entries == nullptr)
        return 0;
    const int count = static_cast<int>(entries->dwNumberOfItems);
    list.insert(list.end(), entries->wlanBssEntries, entries->wlanBssEntries + count);
    wlan().WlanFreeMemory(entries);
    return count;
}

bool TimeOf(const WLAN_BSS_ENTRY& entry, SYSTEMTIME& time)
{
    FILETIME stamp{};
    stamp.dwLowDateTime = static_cast<std::uint32_t>(entry.ullHostTimestamp);
    stamp.dwHighDateTime = static_cast<std::uint32_t>(entry.ullHostTimestamp >> 32);
    return platform::clock().FileTimeToSystemTime(&stamp, &time) != FALSE;
}

void PrintDrift(const WLAN_BSS_LIST& first, const WLAN_BSS_LIST& second, char (&line)[128])
{
    for (DWORD before = 0; before < first.dwNumberOfItems; ++before)
    {
        SYSTEMTIME earlier{};
        if (!TimeOf(first.wlanBssEntries[before], earlier))
            continue;
        for (DWORD after = 0; after < second.dwNumberOfItems; ++after)
        {
            SYSTEMTIME later{};
            if (std::memcmp(first.wlanBssEntries[before].dot11Bssid, second.wlanBssEntries[after].dot11Bssid,
                            sizeof(DOT11_MAC_ADDRESS)) != 0 ||
                !TimeOf(second.wlanBssEntries[after], later))
                continue;
            const int offset = (later.wHour - earlier.wHour) * 3600 + (later.wMinute - earlier.wMinute) * 60 +
                               (later.wSecond - earlier.wSecond);
            std::snprintf(line, sizeof(line), "ullHostTimestamp offset(%u sec)", static_cast<unsigned>(offset));
        }
    }
}

} // namespace

int HandWritten::GetMatchAPList(const GUID* adapter, std::vector<WLAN_BSS_ENTRY>* list)
{
    list->clear();
    if (!Ready())
        return -2;
    const Lists lists(client, adapter);
    if (!lists.complete)
        return -5;
    int count = 0;
    VisitMatches(lists,
                 [&](const wchar_t*, const WLAN_AVAILABLE_NETWORK& network)
                 {
                     count += Append(client, adapter, network, *list);
                     return false;
                 });
    return count;
}

int HandWritten::GetConnectableAPList(const GUID* adapter, wchar_t* name, std::vector<WLAN_BSS_ENTRY>* list)
{
    list->clear();
    if (!Ready())
        return -2;
    const Lists lists(client, adapter);
    if (!lists.complete)
        return -5;
    int count = 0;
    VisitMatches(lists,
                 [&](const wchar_t* profile, const WLAN_AVAILABLE_NETWORK& network)
                 {
                     if (std::wcscmp(profile, name) == 0 || IsAutoConnMode2(adapter, profile) == 1)
                         count += Append(client, adapter, network, *list);
                     return false;
                 });
    return count;
}

int HandWritten::GetConnectableAPList(wchar_t* name, std::vector<WLAN_BSS_ENTRY>* list)
{
    WLAN_INTERFACE_INFO_LIST* adapters = nullptr;
    if (!Ready() || wlan().WlanEnumInterfaces(client, nullptr, &adapters) != 0)
        return -3;
    const int result = adapters->dwNumberOfItems != 0
                           ? GetConnectableAPList(&adapters->InterfaceInfo[0].InterfaceGuid, name, list)
                           : -4;
    wlan().WlanFreeMemory(adapters);
    return result;
}

int HandWritten::GetMatchAPCount(const GUID* adapter, std::vector<std::wstring>* names, int mode)
{
    return GetMatchAPCount(adapter, names, nullptr, mode);
}

int HandWritten::GetMatchAPCount(const GUID* adapter, std::vector<std::wstring>* names, const wchar_t* name, int mode)
{
    names->clear();
    if (!Ready())
        return -2;
    const Lists lists(client, adapter);
    if (!lists.complete)
        return -5;
    VisitMatches(lists,
                 [&](const wchar_t* profile, const WLAN_AVAILABLE_NETWORK& network)
                 {
                     const bool named = name != nullptr && std::wcscmp(profile, name) == 0;
                     if (mode == 1 && !named && IsAutoConnMode2(adapter, profile) != 1)
                         return false;
                     WLAN_BSS_LIST* const entries = ReadEntries(client, adapter, network);
                     if (entries == nullptr)
                         return false;
                     if (entries->dwNumberOfItems != 0)
                         names->emplace_back(profile);
                     wlan().WlanFreeMemory(entries);
                     return false;
                 });
    return static_cast<int>(names->size());
}

int HandWritten::GetMatchBSSID(const GUID* adapter)
{
    if (!Ready())
        return -2;
    const Lists lists(client, adapter);
    if (!lists.complete)
        return -5;
    char line[128];
    for (DWORD index = 0; index < lists.profiles->dwNumberOfItems; ++index)
    {
        const wchar_t* const name = lists.profiles->ProfileInfo[index].strProfileName;
        std::snprintf(line, sizeof(line), "ProfileName(%ls)", name);
        for (DWORD other = 0; other < lists.networks->dwNumberOfItems; ++other)
        {
            const WLAN_AVAILABLE_NETWORK& network = lists.networks->Network[other];
            if (std::wcscmp(name, network.strProfileName) != 0)
                continue;
            std::snprintf(line, sizeof(line), "Available Network(%ls)", network.strProfileName);
            WLAN_BSS_LIST* const first = ReadEntries(client, adapter, network);
            for (int pass = 0; pass < 3 && first != nullptr && first->dwNumberOfItems != 0; ++pass)
            {
                platform::clock().Sleep(1000);
                WLAN_BSS_LIST* const second = ReadEntries(client, adapter, network);
                if (second == nullptr)
                    continue;
                PrintDrift(*first, *second, line);
                wlan().WlanFreeMemory(second);
            }
            if (first != nullptr)
                wlan().WlanFreeMemory(first);
        }
    }
    return -1;
}

} // namespace calvix::benchmarks
