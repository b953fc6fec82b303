#include "methods/method_row.h"

namespace calvix::benchmarks
{

namespace
{

void Remember(Scene& scene)
{
    scene.calvix->SaveCurrentConnectionAttributes(&scene.guid);
    scene.calvix->SaveConnNotificationData(&scene.notification);
    scene.direct->SaveCurrentConnectionAttributes(&scene.guid);
    scene.direct->SaveConnNotificationData(&scene.notification);
}

} // namespace

Rows ConnectionRows()
{
    return {
        Row("GetCurrentConnection(GUID const*, WLAN_CONNECTION_ATTRIBUTES*)",
            [](auto& side, Scene& s) { return side.GetCurrentConnection(&s.guid, &s.out.plain.connection); }),
        Row("GetCurrentConnection(WLAN_CONNECTION_ATTRIBUTES*)",
            [](auto& side, Scene& s) { return side.GetCurrentConnection(&s.out.plain.connection); }),
        Row("GetCurrentSSID(char*, int)",
            [](auto& side, Scene& s) { return side.GetCurrentSSID(s.out.plain.text, 64); }),
        Row("GetCurrentSSID(char*, int, WLAN_CONNECTION_ATTRIBUTES*)",
            [](auto& side, Scene& s) { return side.GetCurrentSSID(s.out.plain.text, 64, &s.out.plain.connection); }),
        Row("GetCurrentLinkInfo(GUID const*, int*, int*, char*, int, char*)",
            [](auto& side, Scene& s)
            {
                return side.GetCurrentLinkInfo(&s.guid, &s.out.plain.integer, &s.out.plain.otherInteger,
                                               s.out.plain.text, 64, reinterpret_cast<char*>(s.out.plain.bytes));
            }),
        Row("GetCurrentWiFi(GUID const*, WLAN_CONNECTION_ATTRIBUTES*)",
            [](auto& side, Scene& s) { return side.GetCurrentWiFi(&s.guid, &s.connection); }),
        Row("GetWlanStatistics(GUID const*, _WIFI_TXRX_COUNT*)",
            [](auto& side, Scene& s) { return side.GetWlanStatistics(&s.guid, &s.out.plain.frames); }),
        Row("LinkProfile(GUID const*, char*)",
            [](auto& side, Scene& s) { return side.LinkProfile(&s.guid, s.narrowProfile); }),
        Row("Disconnect(GUID const*)", [](auto& side, Scene& s) { return side.Disconnect(&s.guid); }),
        Row("Reconnect(GUID const*, WLAN_CONNECTION_ATTRIBUTES*, unsigned long)",
            [](auto& side, Scene& s) { return side.Reconnect(&s.guid, &s.connection, 20); }),
        Row("Reconnect(GUID const*, WLAN_CONNECTION_NOTIFICATION_DATA*, unsigned long)",
            [](auto& side, Scene& s) { return side.Reconnect(&s.guid, &s.notification, 20); }),
        Row("RecoverConnection(GUID const*, WLAN_CONNECTION_ATTRIBUTES*)",
            [](auto& side, Scene& s) { return side.RecoverConnection(&s.guid, &s.connection); }),
        Row("ResetConnection(GUID const*)", [](auto& side, Scene& s) { return side.ResetConnection(&s.guid); },
            {.onComputer = Settle}),
        Row("SetCurrentWiFiToLast()", [](auto& side, Scene&) { return side.SetCurrentWiFiToLast(); }),
        Row("SaveCurrentConnectionAttributes(GUID const*)",
            [](auto& side, Scene& s) { return side.SaveCurrentConnectionAttributes(&s.guid); }),
        Row("RecoverConnetionAttributes(GUID const*)",
            [](auto& side, Scene& s) { return side.RecoverConnetionAttributes(&s.guid); }, {.once = Remember}),
        Row("SaveConnNotificationData(WLAN_CONNECTION_NOTIFICATION_DATA*)",
            [](auto& side, Scene& s) { side.SaveConnNotificationData(&s.notification); }),
        Row("RecoverConnNotificationData(GUID const*)",
            [](auto& side, Scene& s) { return side.RecoverConnNotificationData(&s.guid); }, {.once = Remember}),
    };
}

} // namespace calvix::benchmarks
