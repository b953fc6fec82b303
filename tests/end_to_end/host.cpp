#include "end_to_end/host.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <vector>

namespace calvix::test
{

std::filesystem::path OwnFolder()
{
    wchar_t program[1024] = L"";
    ::GetModuleFileNameW(nullptr, program, 1024);
    return std::filesystem::path(program).parent_path();
}

LibraryNews::LibraryNews()
{
    EXPECT_EQ(Manager().RegisterNotification(&News::Hear, static_cast<News*>(this)), 0);
}

LibraryNews::~LibraryNews()
{
    EXPECT_EQ(Manager().UnRegisterNotification(&News::Hear, static_cast<News*>(this)), 0);
}

GUID FirstAdapter()
{
    std::vector<WLAN_INTERFACE_INFO> adapters;
    Manager().GetWlanInterface(&adapters);
    return adapters.empty() ? GUID{} : adapters.front().InterfaceGuid;
}

void PrintTo(const Place& place, std::ostream* stream)
{
    *stream << '"' << place.ssid << "\" by profile " << testing::PrintToString(place.profile) << " at " << place.bssid;
}

Place WhereConnected(const GUID& adapter)
{
    WLAN_CONNECTION_ATTRIBUTES attributes{};
    if (Manager().GetCurrentConnection(&adapter, &attributes) != 0)
        return {};
    const WLAN_ASSOCIATION_ATTRIBUTES& association = attributes.wlanAssociationAttributes;
    char bssid[18] = "";
    Manager().FormMAC(association.dot11Bssid, bssid);
    return {std::string(reinterpret_cast<const char*>(association.dot11Ssid.ucSSID), association.dot11Ssid.uSSIDLength),
            attributes.strProfileName, bssid};
}

Place ConnectedAfter(const News& news, std::size_t from, const GUID& adapter)
{
    const auto complete = news.Await(wlan_notification_acm_connection_complete, from);
    EXPECT_TRUE(complete.has_value()) << "nothing was connected";
    EXPECT_EQ(complete ? complete->reason : 0, 0u) << "the connection was not made";
    return WhereConnected(adapter);
}

DOT11_SSID Ssid(const std::string& text)
{
    DOT11_SSID ssid{};
    ssid.uSSIDLength = static_cast<ULONG>(text.size());
    std::copy(text.begin(), text.end(), ssid.ucSSID);
    return ssid;
}

} // namespace calvix::test
