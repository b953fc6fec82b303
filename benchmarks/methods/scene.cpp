#include "methods/scene.h"

#include "service/household_scenario.h"
#include "service/list_platform.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace calvix
{

struct ManagerInternals
{
    static void Forget()
    {
        CWirelessManage::hClient = nullptr;
        delete CWirelessManage::m_pManage;
        CWirelessManage::m_pManage = nullptr;
    }
};

} // namespace calvix

namespace calvix::benchmarks
{

namespace
{

constexpr Shape kHousehold{10, 20, 3};

/// What the service says of the connection, as arguments for those methods that take it.
void RememberConnection(Scene& scene)
{
    if (scene.direct->GetCurrentConnection(&scene.guid, &scene.connection) != 0)
    {
        std::fputs("The benchmarks' adapter is not connected.\n", stderr);
        std::abort();
    }
    const WLAN_ASSOCIATION_ATTRIBUTES& association = scene.connection.wlanAssociationAttributes;
    scene.ssid = association.dot11Ssid;
    scene.notification.dot11Ssid = association.dot11Ssid;
    scene.notification.dot11BssType = association.dot11BssType;
    scene.notification.bSecurityEnabled = scene.connection.wlanSecurityAttributes.bSecurityEnabled;
    std::copy(std::begin(scene.connection.strProfileName), std::end(scene.connection.strProfileName),
              scene.notification.strProfileName);
}

void FillArguments(Scene& scene)
{
    const std::wstring name = ProfileName(0);
    std::copy(name.begin(), name.end(), scene.profile);
    std::transform(name.begin(), name.end(), scene.narrowProfile,
                   [](wchar_t letter) { return static_cast<char>(letter); });
    scene.xml = ProfileXml();
    WLAN_BSS_ENTRY other{};
    std::memcpy(other.dot11Ssid.ucSSID, "elsewhere", 9);
    other.dot11Ssid.uSSIDLength = 9;
    scene.excluded.assign(2, other);
}

} // namespace

void StartAnew(Scene& scene)
{
    ManagerInternals::Forget();
    HandWritten::Forget();
    scene.calvix = CWirelessManage::Get();
    scene.direct = HandWritten::Get();
}

Staging::Staging(Scene& scene, platform::Platform& platform) : m_previous(platform::ReplacePlatform(&platform))
{
    StartAnew(scene);
}

Staging::~Staging()
{
    ManagerInternals::Forget();
    HandWritten::Forget();
    platform::ReplacePlatform(m_previous);
}

Household::Household(Service service)
{
    if (service == Service::list)
        m_platform = std::make_unique<ListPlatform>(ContentOf(kHousehold));
    else
    {
        auto computer = std::make_unique<simulation::Computer>(HouseholdScenario());
        m_scene.computer = computer.get();
        m_scene.guid = kHouseholdAdapter;
        m_platform = std::move(computer);
    }
    FillArguments(m_scene);
    m_staging = std::make_unique<Staging>(m_scene, *m_platform);
    RememberConnection(m_scene);
}

Household::~Household() = default;

} // namespace calvix::benchmarks
