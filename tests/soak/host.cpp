#include "soak/host.h"

#include <algorithm>

namespace calvix::test::soak
{

namespace
{

constexpr GUID kNobodysAdapter = {0x5CA1AB1E, 0x50A4, 0x4000, {0x80, 0x00, 0x00, 0xCA, 0x1F, 0x1C, 0x00, 0x77}};

} // namespace

const GUID* Host::Adapter()
{
    const unsigned chance = Below(100);
    if (adapters.empty() || chance >= 98)
        return &kNobodysAdapter;
    return &adapters[chance >= 92 ? adapters.size() - 1 : 0];
}

std::wstring Host::Name()
{
    return Below(20) == 0 ? L"Nobody" : kOwnNetworks[Below(static_cast<unsigned>(std::size(kOwnNetworks)))];
}

std::string Host::NarrowName()
{
    std::string narrow;
    for (const wchar_t character : Name())
        narrow += static_cast<char>(character);
    return narrow;
}

DOT11_SSID Host::Ssid()
{
    const std::string name = NarrowName();
    DOT11_SSID ssid{};
    ssid.uSSIDLength = static_cast<ULONG>(name.size());
    std::copy(name.begin(), name.end(), ssid.ucSSID);
    return ssid;
}

const std::vector<Habit>& Habits()
{
    static const std::vector<Habit> all = []
    {
        std::vector<Habit> habits;
        for (const auto& group : {AskingHabits(), JoiningHabits(), SystemHabits()})
            habits.insert(habits.end(), group.begin(), group.end());
        return habits;
    }();
    return all;
}

void TidyUp(Host& host)
{
    host.Manager().UnRegisterNotification(nullptr, nullptr);
    for (const GUID& adapter : host.adapters)
    {
        host.Manager().RadioTurnOn(&adapter);
        for (const wchar_t* name : kOwnNetworks)
            host.Manager().DeleteProfile(&adapter, name);
    }
    for (const wchar_t* name : kOwnNetworks)
        if (!host.adapters.empty())
            host.Manager().SetProfile(&host.adapters.front(), ProfileText(name, true).c_str());
}

} // namespace calvix::test::soak
