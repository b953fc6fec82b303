#include "methods/method_row.h"

namespace calvix::benchmarks
{

Rows AutomaticRows()
{
    return {
        Row("GetMatchAPList(GUID const*, std::vector<WLAN_BSS_ENTRY>*)",
            [](auto& side, Scene& s) { return side.GetMatchAPList(&s.guid, &s.out.entries); }),
        Row("GetConnectableAPList(GUID const*, wchar_t*, std::vector<WLAN_BSS_ENTRY>*)",
            [](auto& side, Scene& s) { return side.GetConnectableAPList(&s.guid, s.profile, &s.out.entries); }),
        Row("GetConnectableAPList(wchar_t*, std::vector<WLAN_BSS_ENTRY>*)",
            [](auto& side, Scene& s) { return side.GetConnectableAPList(s.profile, &s.out.entries); }),
        Row("GetMatchAPCount(GUID const*, std::vector<std::wstring>*, int)",
            [](auto& side, Scene& s) { return side.GetMatchAPCount(&s.guid, &s.out.names, 1); }),
        Row("GetMatchAPCount(GUID const*, std::vector<std::wstring>*, wchar_t const*, int)",
            [](auto& side, Scene& s) { return side.GetMatchAPCount(&s.guid, &s.out.names, s.profile, 1); }),
        Row("GetMatchBSSID(GUID const*)", [](auto& side, Scene& s) { return side.GetMatchBSSID(&s.guid); },
            {.note = "its seconds take no time in either service; the lines are the result: both sides format them"}),
        Row("ConnectBestAP(GUID const*)", [](auto& side, Scene& s) { return side.ConnectBestAP(&s.guid); }),
        Row("ConnectBestAP(GUID const*, std::vector<WLAN_BSS_ENTRY>*)",
            [](auto& side, Scene& s) { return side.ConnectBestAP(&s.guid, &s.excluded); }),
        Row("ConnectBestAP(GUID const*, wchar_t const*)",
            [](auto& side, Scene& s) { return side.ConnectBestAP(&s.guid, s.profile); }),
        Row("ConnectBestAP(GUID const*, std::vector<WLAN_BSS_ENTRY>*, wchar_t const*)",
            [](auto& side, Scene& s) { return side.ConnectBestAP(&s.guid, &s.excluded, s.profile); }),
        Row("AutoConnect(GUID const*)", [](auto& side, Scene& s) { return side.AutoConnect(&s.guid); }),
        Row("AutoConnectEx(GUID const*)", [](auto& side, Scene& s) { return side.AutoConnectEx(&s.guid); }),
        Row("AutoSwitch(GUID const*)", [](auto& side, Scene& s) { return side.AutoSwitch(&s.guid); },
            {.onComputer = Settle}),
        Row("SmartSwitch(GUID const*)", [](auto& side, Scene& s) { return side.SmartSwitch(&s.guid); },
            {.note = "the simulated computer, like Windows, refuses to convert the SSID"}),
        Row("SmartConnecting(GUID const*, char*)",
            [](auto& side, Scene& s) { return side.SmartConnecting(&s.guid, s.out.plain.text); }),
        Row("ConnectAutoMode(GUID const*)", [](auto& side, Scene& s) { return side.ConnectAutoMode(&s.guid); }),
        Row("PreRoaming(GUID const*)", [](auto& side, Scene& s) { return side.PreRoaming(&s.guid); }),
        Row("Roaming(GUID const*)", [](auto& side, Scene& s) { return side.Roaming(&s.guid); }, {.onComputer = Settle}),
    };
}

} // namespace calvix::benchmarks
