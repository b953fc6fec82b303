#include "direct/hand_written.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <string>

namespace calvix::benchmarks
{

using platform::text;
using platform::wlan;

namespace
{

/// A listing is made of formatted lines, and formatting them is the work: here with the C library, into a buffer that a
/// debugger could be shown.
class Lines
{
public:
    void Print(const char* format, ...)
    {
        std::va_list values;
        va_start(values, format);
        std::vsnprintf(m_line, sizeof(m_line), format, values);
        va_end(values);
    }

private:
    char m_line[256];
};

std::string Narrow(const wchar_t* wide)
{
    std::string narrow;
    for (; *wide != L'\0'; ++wide)
        narrow += *wide <= 0xFF ? static_cast<char>(*wide) : '?';
    return narrow;
}

template <std::size_t Size>
const char* Named(const char* const (&names)[Size], unsigned long value, const char* otherwise)
{
    return value < Size && names[value] != nullptr ? names[value] : otherwise;
}

unsigned Number(unsigned long value)
{
    return static_cast<unsigned>(value);
}

constexpr const char* kStateNames[] = {"Not ready",
                                       "Connected",
                                       "First node in a ad hoc network",
                                       "Disconnecting",
                                       "Not connected",
                                       "Attempting to associate with a network",
                                       "Auto configuration is discovering settings for the network",
                                       "In process of authenticating"};
constexpr const char* kBssTypeNames[] = {nullptr, "Infrastructure", "Independent"};
constexpr const char* kPhyNames[] = {"any", "fhss", "dsss", "irbaseband", "ofdm", "hrdsss", "erp", "ht", "vht"};
constexpr const char* kAuthenticationNames[] = {nullptr,   "802.11 Open", "802.11 Shared", "WPA",
                                                "WPA-PSK", "WPA-None",    "RSNA",          "RSNA with PSK"};
constexpr const char* kCipherNames[] = {"None", "WEP-40", "TKIP", nullptr, "CCMP", "WEP-104"};

void PrintSsid(Lines& lines, const char* label, unsigned index, const DOT11_SSID& ssid)
{
    if (ssid.uSSIDLength != 0)
        lines.Print("%sSSID[%u]:\t %.*s", label, index, static_cast<int>(ssid.uSSIDLength),
                    reinterpret_cast<const char*>(ssid.ucSSID));
}

void PrintInterface(Lines& lines, unsigned index, const WLAN_INTERFACE_INFO& info)
{
    wchar_t guid[39] = {};
    lines.Print("  Interface Index[%u]:\t %u", index, index);
    text().StringFromGUID2(info.InterfaceGuid, guid, 39);
    lines.Print("  InterfaceGUID[%u]: %s", index, Narrow(guid).c_str());
    lines.Print("  Interface Description[%u]: %s", index, Narrow(info.strInterfaceDescription).c_str());
    lines.Print("  Interface State[%u]:\t %s", index, Named(kStateNames, info.isState, "Unknown"));
}

void PrintNetwork(Lines& lines, unsigned index, const WLAN_AVAILABLE_NETWORK& network)
{
    lines.Print("  Profile Name[%u]:  %s", index, Narrow(network.strProfileName).c_str());
    PrintSsid(lines, "  ", index, network.dot11Ssid);
    lines.Print("  BSS Network type[%u]:\t %s (%u)", index, Named(kBssTypeNames, network.dot11BssType, "Other"),
                Number(network.dot11BssType));
    lines.Print("  Number of BSSIDs[%u]:\t %u", index, Number(network.uNumberOfBssids));
    lines.Print("  Connectable[%u]:\t %s", index, network.bNetworkConnectable ? "Yes" : "No");
    lines.Print("  Number of PHY types supported[%u]:\t %u", index, Number(network.uNumberOfPhyTypes));
    lines.Print("  Signal Quality[%u]:\t %u (RSSI: %i dBm)", index, Number(network.wlanSignalQuality),
                static_cast<int>(network.wlanSignalQuality / 2) - 100);
    lines.Print("  Security Enabled[%u]:\t %s", index, network.bSecurityEnabled ? "Yes" : "No");
    lines.Print("  Default AuthAlgorithm[%u]: %s (%u)", index,
                Named(kAuthenticationNames, network.dot11DefaultAuthAlgorithm, "Other"),
                Number(network.dot11DefaultAuthAlgorithm));
    lines.Print("  Default CipherAlgorithm[%u]: %s (%u)", index,
                Named(kCipherNames, network.dot11DefaultCipherAlgorithm, "Other"),
                Number(network.dot11DefaultCipherAlgorithm));
    lines.Print("  Flags[%u]:\t 0x%x", index, Number(network.dwFlags));
}

void PrintEntry(Lines& lines, HandWritten& side, unsigned index, const WLAN_BSS_ENTRY& entry)
{
    char address[18];
    side.FormMAC(entry.dot11Bssid, address);
    PrintSsid(lines, "", index, entry.dot11Ssid);
    lines.Print("BSSID[%u]:\t %s", index, address);
    lines.Print("BSS Network type[%u]:\t %s", index, Named(kBssTypeNames, entry.dot11BssType, "Other"));
    lines.Print("BssPhyType[%u]:\t%s", index, Named(kPhyNames, entry.dot11BssPhyType, "unknown"));
    lines.Print("Rssi[%u]:\t %d", index, static_cast<int>(entry.lRssi));
    lines.Print("Signal Strength[%u]:\t %d", index, side.GetSignalStrength(static_cast<int>(entry.lRssi)));
    lines.Print("Center Frequency[%u]:\t %u", index, Number(entry.ulChCenterFrequency));
    lines.Print("Channel[%u]:\t %u", index, Number(side.GetChannel(entry.ulChCenterFrequency)));
    lines.Print("Link Quality[%u]:\t %u", index, Number(entry.uLinkQuality));
    lines.Print("Beacon Period[%u]:\t %u", index, Number(entry.usBeaconPeriod));
    lines.Print("PhyId[%u]:\t %u", index, Number(entry.uPhyId));
}

} // namespace

int HandWritten::GetAvailableNetwork()
{
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    if (!Ready() || wlan().WlanEnumInterfaces(client, nullptr, &list) != 0)
        return 0;
    Lines lines;
    int result = 0;
    lines.Print("Num Entries: %u", Number(list->dwNumberOfItems));
    lines.Print("Current Index: %u", Number(list->dwIndex));
    for (DWORD index = 0; index < list->dwNumberOfItems; ++index)
    {
        PrintInterface(lines, Number(index), list->InterfaceInfo[index]);
        WLAN_AVAILABLE_NETWORK_LIST* networks = nullptr;
        if (wlan().WlanGetAvailableNetworkList(client, &list->InterfaceInfo[index].InterfaceGuid, 0, nullptr,
                                               &networks) != 0)
        {
            result = 1;
            continue;
        }
        lines.Print("  Num Entries: %u", Number(networks->dwNumberOfItems));
        for (DWORD network = 0; network < networks->dwNumberOfItems; ++network)
            PrintNetwork(lines, Number(network), networks->Network[network]);
        wlan().WlanFreeMemory(networks);
    }
    wlan().WlanFreeMemory(list);
    return result;
}

int HandWritten::GetNetworkBss()
{
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    if (!Ready() || wlan().WlanEnumInterfaces(client, nullptr, &list) != 0)
        return 0;
    Lines lines;
    int result = 0;
    lines.Print("  Num Entries: %u", Number(list->dwNumberOfItems));
    lines.Print("  Current Index: %u", Number(list->dwIndex));
    for (DWORD index = 0; index < list->dwNumberOfItems; ++index)
    {
        PrintInterface(lines, Number(index), list->InterfaceInfo[index]);
        WLAN_BSS_LIST* entries = nullptr;
        if (wlan().WlanGetNetworkBssList(client, &list->InterfaceInfo[index].InterfaceGuid, nullptr, dot11_BSS_type_any,
                                         FALSE, nullptr, &entries) != 0)
        {
            result = 1;
            continue;
        }
        lines.Print("Num Entries: %u", Number(entries->dwNumberOfItems));
        for (DWORD entry = 0; entry < entries->dwNumberOfItems; ++entry)
            PrintEntry(lines, *this, Number(entry), entries->wlanBssEntries[entry]);
        wlan().WlanFreeMemory(entries);
    }
    wlan().WlanFreeMemory(list);
    return result;
}

} // namespace calvix::benchmarks
