#include "session/hostile_answers.h"

#include <algorithm>
#include <iterator>

namespace calvix::fuzz::session
{

namespace
{

std::uint32_t Extreme(Input& input)
{
    constexpr std::uint32_t kExtremes[] = {0, 1, 33, 65, 101, 255, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFE, 0xFFFFFFFF};
    return input.OneOf(kExtremes);
}

template <std::size_t Capacity>
void FillUp(wchar_t (&name)[Capacity])
{
    std::fill(std::begin(name), std::end(name), L'n');
}

void Spoil(Input& input, DOT11_SSID& ssid)
{
    ssid.uSSIDLength = Extreme(input);
}

void Spoil(Input& input, WLAN_INTERFACE_INFO& info)
{
    FillUp(info.strInterfaceDescription);
    info.isState = static_cast<WLAN_INTERFACE_STATE>(Extreme(input));
}

void Spoil(Input&, WLAN_PROFILE_INFO& profile)
{
    FillUp(profile.strProfileName);
}

void Spoil(Input& input, WLAN_AVAILABLE_NETWORK& network)
{
    const std::uint8_t what = input.Byte();
    if ((what & 1) != 0)
        FillUp(network.strProfileName);
    if ((what & 2) != 0)
        Spoil(input, network.dot11Ssid);
    if ((what & 4) != 0)
        network.wlanSignalQuality = Extreme(input);
    if ((what & 8) != 0)
        network.dot11BssType = static_cast<DOT11_BSS_TYPE>(Extreme(input));
    if ((what & 16) != 0)
        network.uNumberOfPhyTypes = Extreme(input);
}

void Spoil(Input& input, WLAN_BSS_ENTRY& entry)
{
    const std::uint8_t what = input.Byte();
    if ((what & 1) != 0)
        Spoil(input, entry.dot11Ssid);
    if ((what & 2) != 0)
        entry.ulChCenterFrequency = Extreme(input);
    if ((what & 4) != 0)
        entry.lRssi = static_cast<std::int32_t>(Extreme(input));
    if ((what & 8) != 0)
        entry.ulIeOffset = entry.ulIeSize = Extreme(input);
    if ((what & 16) != 0)
        entry.uLinkQuality = Extreme(input);
    if ((what & 32) != 0)
        entry.ullHostTimestamp = ~0ULL;
}

void Spoil(Input& input, WLAN_CONNECTION_ATTRIBUTES& connection)
{
    const std::uint8_t what = input.Byte();
    if ((what & 1) != 0)
        FillUp(connection.strProfileName);
    if ((what & 2) != 0)
        Spoil(input, connection.wlanAssociationAttributes.dot11Ssid);
    if ((what & 4) != 0)
        connection.wlanAssociationAttributes.wlanSignalQuality = Extreme(input);
    if ((what & 8) != 0)
        connection.isState = static_cast<WLAN_INTERFACE_STATE>(Extreme(input));
}

/// One item spoiled, or the list emptied, or cut, with an index of nowhere.
template <typename List, typename Item>
void SpoilSome(Input& input, List& list, Item* items)
{
    if (list.dwNumberOfItems == 0 || input.OneIn(4))
        return;
    if (input.OneIn(8))
        list.dwNumberOfItems = static_cast<DWORD>(input.Below(list.dwNumberOfItems));
    else
        Spoil(input, items[input.Below(list.dwNumberOfItems)]);
}

} // namespace

test::AnswerChanges HostileAnswers(Input& input)
{
    return {.interfaces =
                [&input](WLAN_INTERFACE_INFO_LIST& list)
            {
                SpoilSome(input, list, list.InterfaceInfo);
                list.dwIndex = Extreme(input);
            },
            .networks = [&input](WLAN_AVAILABLE_NETWORK_LIST& list) { SpoilSome(input, list, list.Network); },
            .profiles = [&input](WLAN_PROFILE_INFO_LIST& list) { SpoilSome(input, list, list.ProfileInfo); },
            .bss = [&input](WLAN_BSS_LIST& list) { SpoilSome(input, list, list.wlanBssEntries); },
            .currentConnection = [&input](WLAN_CONNECTION_ATTRIBUTES& connection) { Spoil(input, connection); }};
}

} // namespace calvix::fuzz::session
