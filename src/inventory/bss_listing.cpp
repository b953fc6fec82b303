#include <calvix/wireless_manage.h>

#include "core/channel.h"
#include "core/mac_address.h"
#include "core/wlan_lists.h"
#include "inventory/interface_listing.h"
#include "inventory/signal_scale.h"
#include "inventory/value_text.h"

using namespace calvix;

namespace
{

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

int CWirelessManage::GetNetworkBss()
{
    return ListEveryInterface(hClient, {.indent = "  ", .stateOnItsOwnLine = false}, ListEntries);
}
