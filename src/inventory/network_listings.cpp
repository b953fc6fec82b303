#include <calvix/wireless_manage.h>

#include "core/wlan_records.h"
#include "inventory/interface_listing.h"
#include "inventory/signal.h"
#include "text/conversion.h"
#include "text/value_text.h"

using namespace calvix;

namespace
{

constexpr const char* kOther = "Other ";

constexpr ValueText kNetworkBssTypes[] = {
    {dot11_BSS_type_infrastructure, "Infrastructure "},
    {dot11_BSS_type_independent, "Independent "},
};

constexpr ValueText kAuthentications[] = {
    {DOT11_AUTH_ALGO_80211_OPEN, "802.11 Open "},
    {DOT11_AUTH_ALGO_80211_SHARED_KEY, "802.11 Shared "},
    {DOT11_AUTH_ALGO_WPA, "WPA "},
    {DOT11_AUTH_ALGO_WPA_PSK, "WPA-PSK "},
    {DOT11_AUTH_ALGO_WPA_NONE, "WPA-None "},
    {DOT11_AUTH_ALGO_RSNA, "RSNA "},
    // Deliberate: no blank before the number; readers of the listing know it so.
    {DOT11_AUTH_ALGO_RSNA_PSK, "RSNA with PSK"},
};

constexpr ValueText kCiphers[] = {
    {DOT11_CIPHER_ALGO_NONE, "None "}, {DOT11_CIPHER_ALGO_WEP40, "WEP-40 "},   {DOT11_CIPHER_ALGO_TKIP, "TKIP "},
    {DOT11_CIPHER_ALGO_CCMP, "CCMP "}, {DOT11_CIPHER_ALGO_WEP104, "WEP-104 "}, {DOT11_CIPHER_ALGO_WEP, "WEP "},
};

/// Ends a line with the name of a value, number included.
void ListValue(Trace& trace, std::span<const ValueText> table, std::uint32_t value)
{
    trace.Line("%s(%u)", TextOf(table, value, kOther), In32Bits(value));
}

void ListIdentity(Trace& trace, unsigned index, const WLAN_AVAILABLE_NETWORK& network)
{
    trace.Line("  Profile Name[%u]:  %s", index, NarrowText(FixedText(network.strProfileName)).c_str());
    char label[32] = {};
    FormatTrace(label, sizeof(label), "  SSID[%u]:\t ", index);
    ListSsid(trace, label, network.dot11Ssid);
    trace.Line("  BSS Network type[%u]:\t ", index);
    ListValue(trace, kNetworkBssTypes, network.dot11BssType);
    trace.Line("  Number of BSSIDs[%u]:\t %u", index, In32Bits(network.uNumberOfBssids));
}

void ListConnectable(Trace& trace, unsigned index, const WLAN_AVAILABLE_NETWORK& network)
{
    trace.Line("  Connectable[%u]:\t ", index);
    trace.Message(network.bNetworkConnectable != FALSE ? "Yes" : "No");
    if (network.bNetworkConnectable == FALSE)
        trace.Line("  Not connectable WLAN_REASON_CODE value[%u]:\t %u", index,
                   In32Bits(network.wlanNotConnectableReason));
}

void ListSignal(Trace& trace, unsigned index, const WLAN_AVAILABLE_NETWORK& network)
{
    trace.Line("  Number of PHY types supported[%u]:\t %u", index, In32Bits(network.uNumberOfPhyTypes));
    trace.Line("  Signal Quality[%u]:\t %u (RSSI: %i dBm)", index, In32Bits(network.wlanSignalQuality),
               RssiOfQuality(network.wlanSignalQuality));
}

void ListSecurity(Trace& trace, unsigned index, const WLAN_AVAILABLE_NETWORK& network)
{
    trace.Line("  Security Enabled[%u]:\t ", index);
    trace.Message(network.bSecurityEnabled != FALSE ? "Yes" : "No");
    trace.Line("  Default AuthAlgorithm[%u]: ", index);
    ListValue(trace, kAuthentications, static_cast<std::uint32_t>(network.dot11DefaultAuthAlgorithm));
    trace.Line("  Default CipherAlgorithm[%u]: ", index);
    ListValue(trace, kCiphers, static_cast<std::uint32_t>(network.dot11DefaultCipherAlgorithm));
}

/// Deliberate: both remarks depend on the connected flag; a network that only has a profile gets neither.
void ListFlags(Trace& trace, unsigned index, const WLAN_AVAILABLE_NETWORK& network)
{
    trace.Line("  Flags[%u]:\t 0x%x", index, In32Bits(network.dwFlags));
    if ((network.dwFlags & WLAN_AVAILABLE_NETWORK_CONNECTED) == 0)
        return;
    trace.Message(" - Currently connected");
    trace.Message(" - Has profile");
}

void ListNetwork(Trace& trace, unsigned index, const WLAN_AVAILABLE_NETWORK& network)
{
    ListIdentity(trace, index, network);
    ListConnectable(trace, index, network);
    ListSignal(trace, index, network);
    ListSecurity(trace, index, network);
    ListFlags(trace, index, network);
    ListEnd(trace);
}

bool ListNetworks(HANDLE client, const GUID* interfaceGuid, Trace& trace)
{
    NetworkList networks("WlanFreeMemory(pBssList)");
    if (ListAvailableNetworks(client, interfaceGuid, networks, trace) != 0)
        return false;
    trace.Message("WLAN_AVAILABLE_NETWORK_LIST for this interface");
    trace.Line("  Num Entries: %u\n", In32Bits(networks->dwNumberOfItems));
    unsigned index = 0;
    for (const WLAN_AVAILABLE_NETWORK& network : Items(*networks))
        ListNetwork(trace, index++, network);
    ListEnd(trace);
    return true;
}

constexpr ValueText kEntryBssTypes[] = {
    {dot11_BSS_type_infrastructure, "Infrastructure"},
    {dot11_BSS_type_independent, "Independent"},
};

constexpr ValueText kPhyTypes[] = {
    {dot11_phy_type_any, "any"},
    {dot11_phy_type_fhss, "fhss"},
    {dot11_phy_type_dsss, "dsss"},
    {dot11_phy_type_irbaseband, "irbaseband"},
    {dot11_phy_type_ofdm, "ofdm"},
    {dot11_phy_type_hrdsss, "hrdsss"},
    {dot11_phy_type_erp, "erp"},
    {dot11_phy_type_ht, "ht"},
    {8, "vht"}, // by its number: not every SDK names it
    {static_cast<std::uint32_t>(dot11_phy_type_IHV_start), "IHV Start"},
    {static_cast<std::uint32_t>(dot11_phy_type_IHV_end), "IHV End"},
};

void ListIdentity(Trace& trace, unsigned index, const WLAN_BSS_ENTRY& entry)
{
    char label[32] = {};
    FormatTrace(label, sizeof(label), "SSID[%u]:\t ", index);
    ListSsid(trace, label, entry.dot11Ssid);
    char address[kAddressTextSize] = {};
    FormatAddress(entry.dot11Bssid, address, sizeof(address));
    trace.Line("BSSID[%u]:\t %s", index, address);
    trace.Line("BSS Network type[%u]:\t %s", index, TextOf(kEntryBssTypes, In32Bits(entry.dot11BssType), "Other"));
    trace.Line("BssPhyType[%u]:\t%s", index, TextOf(kPhyTypes, In32Bits(entry.dot11BssPhyType), "unknown"));
}

void ListRadio(Trace& trace, unsigned index, const WLAN_BSS_ENTRY& entry)
{
    const auto rssi = static_cast<std::int32_t>(entry.lRssi);
    trace.Line("Rssi[%u]:\t %d", index, rssi);
    trace.Line("Signal Strength[%u]:\t %d", index, StrengthOfRssi(rssi));
    trace.Line("Center Frequency[%u]:\t %u", index, In32Bits(entry.ulChCenterFrequency));
    trace.Line("Channel[%u]:\t %u", index, ChannelOfFrequency(entry.ulChCenterFrequency));
    trace.Line("Link Quality[%u]:\t %u", index, In32Bits(entry.uLinkQuality));
    trace.Line("Beacon Period[%u]:\t %u", index, In32Bits(entry.usBeaconPeriod));
    trace.Line("PhyId[%u]:\t %u", index, In32Bits(entry.uPhyId));
}

bool ListEntries(HANDLE client, const GUID* interfaceGuid, Trace& trace)
{
    BssList entries("WlanFreeMemory(pBssList)");
    if (ListAllBss(client, interfaceGuid, entries, trace) != 0)
        return false;
    trace.Message("WLAN_BSS_LIST for this interface");
    trace.Line("Num Entries: %u\n", In32Bits(entries->dwNumberOfItems));
    unsigned index = 0;
    for (const WLAN_BSS_ENTRY& entry : Items(*entries))
    {
        ListIdentity(trace, index, entry);
        ListRadio(trace, index++, entry);
        ListEnd(trace);
    }
    ListEnd(trace);
    return true;
}

} // namespace

int CWirelessManage::GetAvailableNetwork()
{
    return ListEveryInterface(hClient, {.indent = "", .stateOnItsOwnLine = true}, ListNetworks);
}

int CWirelessManage::GetNetworkBss()
{
    return ListEveryInterface(hClient, {.indent = "  ", .stateOnItsOwnLine = false}, ListEntries);
}
