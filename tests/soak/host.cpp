#include "soak/host.h"

#include "support/test_scenarios.h"

namespace calvix::test::soak
{

namespace
{

void CALLBACK CountNotification(L2_NOTIFICATION_DATA*, void* context)
{
    ++static_cast<Host*>(context)->notifications;
}

void CALLBACK CountTwice(L2_NOTIFICATION_DATA*, void* context)
{
    static_cast<Host*>(context)->notifications += 2;
}

} // namespace

const GUID* Host::Adapter()
{
    const unsigned chance = Below(100);
    if (adapters.empty() || chance >= 98)
        return &kNoAdapter;
    return &adapters[chance >= 92 ? adapters.size() - 1 : 0];
}

std::string Host::Name()
{
    return Below(20) == 0 ? "Nobody" : kOwnNetworks[Below(static_cast<unsigned>(std::size(kOwnNetworks)))];
}

DOT11_SSID Host::Ssid()
{
    return MakeSsid(Name());
}

/// Registered where a callback is already, the new one takes its place.
WLAN_NOTIFICATION_CALLBACK Host::Callback()
{
    return Below(2) == 0 ? CountNotification : CountTwice;
}

std::string Host::Text(const methods::Parameter& parameter)
{
    return parameter.role == methods::Role::name ? Name() : parameter.text;
}

/// Settings and modes have few values; sizes are what they are.
long long Host::Number(const methods::Parameter& parameter)
{
    return parameter.role == methods::Role::number && parameter.number < 4 ? Below(4) : parameter.number;
}

} // namespace calvix::test::soak
