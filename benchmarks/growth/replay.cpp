#include "growth/replay.h"

namespace calvix::benchmarks
{

using platform::wlan;

namespace
{

unsigned CallsOf(const CallCounts& calls, Operation operation)
{
    return calls[static_cast<std::size_t>(operation)];
}

template <typename Function>
void Repeat(const CallCounts& calls, Operation operation, Function function)
{
    for (unsigned call = 0; call < CallsOf(calls, operation); ++call)
        function();
}

/// A list that stays until the end, as the methods keep theirs.
template <typename List>
class Kept
{
public:
    Kept() = default;
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;
    ~Kept()
    {
        if (list != nullptr)
            wlan().WlanFreeMemory(list);
    }

    List* list = nullptr;
};

void ReplayQueries(const Scene& scene, const CallCounts& calls)
{
    Repeat(calls, Operation::queryInterface,
           [&]
           {
               DWORD size = 0;
               PVOID data = nullptr;
               wlan().WlanQueryInterface(HandWritten::client, &scene.guid, wlan_intf_opcode_current_connection, nullptr,
                                         &size, &data, nullptr);
               wlan().WlanFreeMemory(data);
           });
    Repeat(calls, Operation::profileText,
           [&]
           {
               DWORD flags = 0;
               DWORD access = 0;
               wchar_t* xml = nullptr;
               wlan().WlanGetProfile(HandWritten::client, &scene.guid, scene.profile, nullptr, &xml, &flags, &access);
               wlan().WlanFreeMemory(xml);
           });
    Repeat(calls, Operation::bssList,
           [&]
           {
               WLAN_BSS_LIST* entries = nullptr;
               wlan().WlanGetNetworkBssList(HandWritten::client, &scene.guid, &scene.ssid,
                                            dot11_BSS_type_infrastructure, TRUE, nullptr, &entries);
               wlan().WlanFreeMemory(entries);
           });
}

void ReplayRequests(const Scene& scene, const CallCounts& calls)
{
    Repeat(calls, Operation::connect,
           [&]
           {
               WLAN_CONNECTION_PARAMETERS parameters{};
               parameters.strProfile = scene.profile;
               wlan().WlanConnect(HandWritten::client, &scene.guid, &parameters, nullptr);
           });
    Repeat(calls, Operation::setPosition,
           [&] { wlan().WlanSetProfilePosition(HandWritten::client, &scene.guid, scene.profile, 1, nullptr); });
    Repeat(calls, Operation::text,
           [&]
           {
               wchar_t wide[128];
               platform::text().MultiByteToWideChar(CP_UTF8, 0, "network-1000", -1, wide, 128);
           });
}

} // namespace

void Replay(const Scene& scene, const CallCounts& calls)
{
    Kept<WLAN_INTERFACE_INFO_LIST> adapters;
    Kept<WLAN_PROFILE_INFO_LIST> profiles;
    Kept<WLAN_AVAILABLE_NETWORK_LIST> networks;
    if (CallsOf(calls, Operation::enumInterfaces) != 0)
        wlan().WlanEnumInterfaces(HandWritten::client, nullptr, &adapters.list);
    if (CallsOf(calls, Operation::profileList) != 0)
        wlan().WlanGetProfileList(HandWritten::client, &scene.guid, nullptr, &profiles.list);
    if (CallsOf(calls, Operation::networkList) != 0)
        wlan().WlanGetAvailableNetworkList(HandWritten::client, &scene.guid, 0, nullptr, &networks.list);
    ReplayQueries(scene, calls);
    ReplayRequests(scene, calls);
}

} // namespace calvix::benchmarks
