#include "methods/method_row.h"

namespace calvix::benchmarks
{

Rows InventoryRows()
{
    return {
        Row("Rescan(GUID const*, unsigned long&)",
            [](auto& side, Scene& s) { return side.Rescan(&s.guid, s.out.plain.number); }),
        Row("Rescan()", [](auto& side, Scene&) { return side.Rescan(); }),
        Row("GetAvailableNetworkCount(GUID const*)",
            [](auto& side, Scene& s) { return side.GetAvailableNetworkCount(&s.guid); }),
        Row("GetNetworkBssCount()", [](auto& side, Scene&) { return side.GetNetworkBssCount(); }),
        Row("GetConnectableNetworkCount(GUID const*)",
            [](auto& side, Scene& s) { return side.GetConnectableNetworkCount(&s.guid); }),
        Row("GetAP(GUID const*, DOT11_SSID*)", [](auto& side, Scene& s) { return side.GetAP(&s.guid, &s.ssid); }),
        Row("GetNotConnectableReason(GUID const*, DOT11_SSID*, unsigned long, int&, unsigned long&)",
            [](auto& side, Scene& s)
            {
                return side.GetNotConnectableReason(&s.guid, &s.ssid, dot11_BSS_type_infrastructure,
                                                    s.out.plain.integer, s.out.plain.number);
            }),
        Row("IsWiFiDisappear(GUID const*)", [](auto& side, Scene& s) { return side.IsWiFiDisappear(&s.guid); }),
        Row("GetCurrentBSS()", [](auto& side, Scene&) { return side.GetCurrentBSS(); }),
        Row("GetRssi(GUID const*, int&)",
            [](auto& side, Scene& s) { return side.GetRssi(&s.guid, s.out.plain.integer); }),
        Row("GetCurrentRSSI(GUID const*, int&)",
            [](auto& side, Scene& s) { return side.GetCurrentRSSI(&s.guid, s.out.plain.integer); }),
        Row("GetWiFiRSSI(GUID const*, DOT11_SSID&)",
            [](auto& side, Scene& s) { return side.GetWiFiRSSI(&s.guid, s.ssid); }),
        Row("GetSignalQuality(GUID const*)", [](auto& side, Scene& s) { return side.GetSignalQuality(&s.guid); }),
        Row("GetSoftAPList(GUID const*, std::vector<std::string>*)",
            [](auto& side, Scene& s) { return side.GetSoftAPList(&s.guid, &s.out.softAccessPoints); }),
        Row("SpecialSoftAP()", [](auto& side, Scene&) { return side.SpecialSoftAP(); }),
        Row("GetAvailableNetwork()", [](auto& side, Scene&) { return side.GetAvailableNetwork(); },
            {.note = "the lines are the result: both sides format them"}),
        Row("GetNetworkBss()", [](auto& side, Scene&) { return side.GetNetworkBss(); },
            {.note = "the lines are the result: both sides format them"}),
    };
}

} // namespace calvix::benchmarks
