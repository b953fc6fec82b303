#include "capture/computer_capture.h"

#include "capture/adapter_capture.h"
#include "capture/heard_air.h"
#include "host/interrupt.h"
#include "host/service_view.h"
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

/// The schemes with what is known of the active one: the idle time-outs, and its GUID and name.
void CaptureSchemes(PowerDescription& power)
{
    simulation::LegacyPowerScheme& legacy = power.legacySchemes.front();
    const auto mains = ReadIdlePolicy(false);
    const auto battery = ReadIdlePolicy(true);
    if (mains && battery)
        legacy = {legacy.id,
                  legacy.name,
                  mains->sleepAfter,
                  battery->sleepAfter,
                  mains->displayOffAfter,
                  battery->displayOffAfter};
    const auto active = ReadActiveScheme();
    power.activeScheme.reset();
    if (!active)
        return;
    power.activeScheme = active->guid;
    power.schemes = {{active->guid, active->name, power.schemes.front().values}};
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
    // No operation returns the time since the start: it is at least this long.
    power.upMilliseconds = (std::max)(power.lastSleepTime, power.lastWakeTime) / 10'000;
    power.resumesAutomatically = manager.IsPowerHibernateAllowed() != 0;
    power.enumerationError = SchemeListingError();
    CaptureSchemes(power);
    return power;
}

std::vector<WLAN_INTERFACE_INFO> AdaptersOf(Host& host)
{
    if (!host.options().adapter.empty())
        return {host.adapter()};
    return host.manager().GetWiFiAdapterCount() == 0 ? std::vector<WLAN_INTERFACE_INFO>() : host.adapters();
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
            scenario.adapters.push_back(CaptureAdapter(m_host, info, m_made));
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

    /// All adapters of a scenario hear the same air: the strongest signal counts.
    std::vector<AccessPoint> Listen()
    {
        std::vector<AccessPoint> air;
        for (const WLAN_INTERFACE_INFO& info : m_adapters)
            for (const AccessPoint& point : HeardAir(m_host, info.InterfaceGuid, m_made))
                if (AccessPoint* const known = FindAccessPoint(air, point.bssid))
                    known->rssi = (std::max)(known->rssi, point.rssi);
                else
                    air.push_back(point);
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
