#include "view/power_view.h"

#include "forms/guid_text.h"
#include "platform/platform.h"
#include "system/scheme_guid.h"

#include <cstring>
#include <vector>

namespace calvix::host
{

namespace
{

/// What the library names its scheme: in 8-bit characters, where names are wide text.
constexpr char kNarrowName[] = "Super energy-saving";

std::string NameOf(const std::vector<std::uint8_t>& bytes)
{
    if (bytes.size() >= sizeof(kNarrowName) && std::memcmp(bytes.data(), kNarrowName, sizeof(kNarrowName)) == 0)
        return kNarrowName;
    return simulation::TextOfFriendlyName(bytes).value_or("");
}

} // namespace

bool CanSleep()
{
    return platform::power().IsPwrSuspendAllowed() != 0;
}

bool CanHibernate()
{
    return platform::power().IsPwrHibernateAllowed() != 0;
}

bool CanShutDown()
{
    return platform::power().IsPwrShutdownAllowed() != 0;
}

std::optional<IdlePolicyFacts> ReadIdlePolicy(bool onBattery)
{
    SYSTEM_POWER_POLICY policy{};
    const NTSTATUS status = platform::power().CallNtPowerInformation(
        onBattery ? SystemPowerPolicyDc : SystemPowerPolicyAc, nullptr, 0, &policy, sizeof(policy));
    if (status != 0)
        return std::nullopt;
    return IdlePolicyFacts{static_cast<std::uint32_t>(policy.IdleTimeout),
                           static_cast<std::uint32_t>(policy.VideoTimeout)};
}

bool HasBattery()
{
    SYSTEM_POWER_CAPABILITIES capabilities{};
    platform::power().CallNtPowerInformation(SystemPowerCapabilities, nullptr, 0, &capabilities, sizeof(capabilities));
    return capabilities.SystemBatteriesPresent != 0;
}

std::optional<simulation::PowerScheme> ReadActiveScheme()
{
    SchemeGuid active;
    if (platform::power().PowerGetActiveScheme(nullptr, active.Receive()) != 0)
        return std::nullopt;
    simulation::PowerScheme scheme{forms::GuidText(*active.get()), std::vector<std::uint8_t>(1024)};
    auto size = static_cast<DWORD>(scheme.name.size());
    if (platform::power().PowerReadFriendlyName(nullptr, active.get(), nullptr, nullptr, scheme.name.data(), &size) !=
        0)
        size = 0;
    scheme.name.resize(size);
    return scheme;
}

std::string ActiveSchemeName()
{
    const std::optional<simulation::PowerScheme> active = ReadActiveScheme();
    return active ? NameOf(active->name) : "";
}

std::uint32_t SchemeListingError()
{
    GUID scheme{};
    DWORD size = sizeof(scheme);
    return static_cast<std::uint32_t>(platform::power().PowerEnumerate(nullptr, nullptr, nullptr, ACCESS_SCHEME, 0,
                                                                       reinterpret_cast<UCHAR*>(&scheme), &size));
}

} // namespace calvix::host
