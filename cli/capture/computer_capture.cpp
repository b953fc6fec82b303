#include "capture/computer_capture.h"

#include "capture/adapter_capture.h"
#include "capture/heard_air.h"
#include "host/interrupt.h"
#include "import/captured_air.h"
#include "live/progress.h"
#include "view/power_view.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

using simulation::AccessPoint;
using simulation::PowerDescription;

/// A certified driver is done with a scan after so many seconds.
constexpr unsigned kSecondsOfScan = 4;

void CapturePolicies(simulation::LegacyPowerScheme& scheme)
{
    if (const auto mains = ReadIdlePolicy(false))
    {
        scheme.idleTimeoutAc = mains->sleepAfter;
        scheme.videoTimeoutAc = mains->displayOffAfter;
    }
    if (const auto battery = ReadIdlePolicy(true))
    {
        scheme.idleTimeoutDc = battery->sleepAfter;
        scheme.videoTimeoutDc = battery->displayOffAfter;
    }
}

void CaptureActiveScheme(PowerDescription& power)
{
    const auto active = ReadActiveScheme();
    power.activeScheme.reset();
    if (!active)
        return;
    power.activeScheme = active->guid;
    const auto known = std::find_if(power.schemes.begin(), power.schemes.end(),
                                    [&active](const auto& scheme) { return scheme.guid == active->guid; });
    if (known == power.schemes.end())
        power.schemes.push_back(*active);
    else
        known->name = active->name;
}

PowerDescription CapturePower(CWirelessManage& manager)
{
    PowerDescription power;
    power.suspendAllowed = CanSleep();
    power.hibernateAllowed = CanHibernate();
    power.shutdownAllowed = CanShutDown();
    power.modernStandby = manager.IsSurpportAoAc() != 0;
    power.battery = HasBattery();
    power.lastSleepTime = manager.GetLastSleepTime();
    power.lastWakeTime = manager.GetLastWakeTime();
    // No operation tells how long it has been up: at least until then.
    power.upMilliseconds = (std::max)(power.lastSleepTime, power.lastWakeTime) / 10'000;
    power.resumesAutomatically = manager.IsPowerHibernateAllowed() != 0;
    power.enumerationError = SchemeListingError();
    CapturePolicies(power.legacySchemes.front());
    CaptureActiveScheme(power);
    return power;
}

std::vector<WLAN_INTERFACE_INFO> AdaptersOf(Host& host)
{
    if (!host.options().adapter.empty())
        return {host.adapter()};
    return host.manager().GetWiFiAdapterCount() == 0 ? std::vector<WLAN_INTERFACE_INFO>() : host.adapters();
}

/// All adapters of a scenario hear the same air: the strongest signal counts.
void Join(std::vector<AccessPoint>& air, const std::vector<AccessPoint>& heard)
{
    for (const AccessPoint& point : heard)
        if (AccessPoint* const known = FindAccessPoint(air, point.bssid))
            known->rssi = (std::max)(known->rssi, point.rssi);
        else
            air.push_back(point);
}

class Capture
{
public:
    explicit Capture(Host& host) : m_host(host) { m_made.scenario.description = "Captured with calvix capture."; }

    MadeScenario Take(unsigned seconds)
    {
        simulation::Scenario& scenario = m_made.scenario;
        scenario.power = CapturePower(m_host.manager());
        if (!AskService())
            return m_made;
        unsigned long level = 0;
        m_host.manager().GetPowerSetting(level);
        if (level <= wlan_power_setting_maximum_saving)
            scenario.powerSetting = static_cast<std::uint32_t>(level);
        m_adapters = AdaptersOf(m_host);
        for (const WLAN_INTERFACE_INFO& info : m_adapters)
            scenario.adapters.push_back(
                CaptureAdapter(m_host, info, ListHeard(m_host, info.InterfaceGuid, m_made), m_made));
        scenario.accessPoints = Listen();
        for (std::size_t i = 0; i < m_adapters.size(); ++i)
            CaptureConnection(m_host, m_adapters[i].InterfaceGuid, scenario.adapters[i], m_made);
        if (seconds > 0)
            Follow(seconds);
        return m_made;
    }

private:
    /// Whether the service answers. If it is stopped, the scenario has a stopped service and no adapter.
    bool AskService()
    {
        try
        {
            m_host.service();
            return true;
        }
        catch (const Failure& failure)
        {
            if (failure.report().platformError != ERROR_SERVICE_NOT_ACTIVE)
                throw;
            m_made.scenario.serviceRunning = false;
            m_made.Warn(std::string(failure.what()) + "; " + failure.report().advice);
            return false;
        }
    }

    std::vector<AccessPoint> Listen()
    {
        std::vector<AccessPoint> air;
        for (const WLAN_INTERFACE_INFO& info : m_adapters)
        {
            const auto heard = ListHeard(m_host, info.InterfaceGuid, m_made);
            Join(air, DescribeAir(m_host, info.InterfaceGuid, heard, m_made));
        }
        return air;
    }

    void Follow(unsigned seconds)
    {
        const Progress progress(m_host, "Following the air");
        AirMovement movement;
        movement.Hear(0, m_made.scenario.accessPoints);
        for (unsigned passed = 0; passed < seconds && !Interrupted();)
        {
            // If no scan is accepted, the lists change when the service scans by itself.
            unsigned long ignored = 0;
            for (const WLAN_INTERFACE_INFO& info : m_adapters)
                m_host.manager().Rescan(&info.InterfaceGuid, ignored);
            const unsigned step = (std::min)(kSecondsOfScan, seconds - passed);
            m_host.Wait(step * 1000);
            passed += step;
            movement.Hear(passed * 1000, Listen());
        }
        m_made.scenario.accessPoints = movement.Finish();
    }

    Host& m_host;
    std::vector<WLAN_INTERFACE_INFO> m_adapters;
    MadeScenario m_made;
};

} // namespace

MadeScenario CaptureComputer(Host& host, unsigned seconds)
{
    return Capture(host).Take(seconds);
}

} // namespace calvix::host
