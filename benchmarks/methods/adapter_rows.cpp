#include "methods/method_row.h"

namespace calvix::benchmarks
{

Rows AdapterRows()
{
    return {
        Row("CheckAutoConfig()", [](auto& side, Scene&) { side.CheckAutoConfig(); }),
        Row("GetWlanStatus(GUID const*)", [](auto& side, Scene& s) { return side.GetWlanStatus(&s.guid); }),
        Row("GetWlanIsLink(GUID const*)", [](auto& side, Scene& s) { return side.GetWlanIsLink(&s.guid); }),
        Row("GetWlanInterfaceState(unsigned long)",
            [](auto& side, Scene&) { return side.GetWlanInterfaceState(wlan_interface_state_disconnected); }),
        Row("GetWlanInterfaceGuid(wchar_t const*, GUID&)",
            [](auto& side, Scene& s) { return side.GetWlanInterfaceGuid(L"Wireless Adapter", s.out.plain.guid); }),
        Row("GUID2String(GUID const&)", [](auto& side, Scene& s) { return side.GUID2String(s.guid); }),
        Row("GetWlanInterfaceDesc(GUID const*)",
            [](auto& side, Scene& s) { return side.GetWlanInterfaceDesc(&s.guid); },
            {.note = "from the second call on, which answers from memory"}),
        Row("GetWiFiAdapterCount()", [](auto& side, Scene&) { return side.GetWiFiAdapterCount(); }),
        Row("GetWlanInterface(std::vector<WLAN_INTERFACE_INFO>*)",
            [](auto& side, Scene& s) { return side.GetWlanInterface(&s.out.adapters); }),
        Row("WiFiIsConnected(GUID const*)", [](auto& side, Scene& s) { return side.WiFiIsConnected(&s.guid); }),
        Row("WiFiIsDisconnected(GUID const*)", [](auto& side, Scene& s) { return side.WiFiIsDisconnected(&s.guid); }),
    };
}

} // namespace calvix::benchmarks
