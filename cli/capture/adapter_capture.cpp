#include "capture/adapter_capture.h"

#include "capture/or_warn.h"
#include "core/wlan_records.h"
#include "forms/guid_text.h"
#include "host/service_view.h"
#include "import/captured_air.h"
#include "import/made_profile.h"
#include "import/read_capture.h"
#include "output/text_forms.h"
#include "simulation/profile_document.h"
#include "simulation/reason_texts.h"
#include "view/status.h"
#include "wrappers/recording/key_mask.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

using simulation::AccessPoint;
using simulation::AdapterDescription;
using simulation::PhyDescription;
using simulation::RadioSwitch;
using simulation::StoredProfile;

RadioSwitch RadioSwitchOf(DOT11_RADIO_STATE state)
{
    return state == dot11_radio_state_off ? RadioSwitch::off : RadioSwitch::on;
}

bool HasType(const std::vector<PhyDescription>& phys, std::uint32_t type)
{
    return std::any_of(phys.begin(), phys.end(), [type](const PhyDescription& phy) { return phy.type == type; });
}

/// A PHY has the type of the first access point that it hears. A PHY that hears nothing gets a usual type.
void NamePhys(std::vector<PhyDescription>& phys, const std::vector<HeardAccessPoint>& heard)
{
    constexpr std::uint32_t unnamed = 0;
    for (PhyDescription& phy : phys)
        phy.type = unnamed;
    for (const HeardAccessPoint& each : heard)
        if (each.entry.uPhyId < phys.size() && phys[each.entry.uPhyId].type == unnamed)
            phys[each.entry.uPhyId].type = static_cast<std::uint32_t>(each.entry.dot11BssPhyType);
    for (PhyDescription& phy : phys)
        for (const std::uint32_t usual : {7U, 8U, 10U, 11U, 6U, 4U, 5U})
            if (phy.type == unnamed && !HasType(phys, usual))
                phy.type = usual;
}

std::vector<PhyDescription> CapturePhys(Host& host, const GUID& guid, MadeScenario& made)
{
    std::vector<PhyDescription> phys;
    for (const WLAN_PHY_RADIO_STATE& radio : host.service().Radios(&guid))
        phys.push_back({0, RadioSwitchOf(radio.dot11SoftwareRadioState), RadioSwitchOf(radio.dot11HardwareRadioState)});
    if (phys.empty())
        phys.emplace_back();
    NamePhys(phys, OrWarn(made, [&] { return host.service().AccessPoints(&guid); }));
    return phys;
}

/// Throws a Failure where the service refuses the document.
StoredProfile CaptureProfile(Host& host, const GUID& guid, const wchar_t* name)
{
    const std::string xml = Narrow(host.service().ProfileDocument(&guid, name));
    simulation::ProfileRefusal refusal{};
    if (!simulation::ParseProfile(xml, refusal))
        throw BadInput("the simulated computer rejects it: " + Narrow(simulation::ReasonText(refusal.reason)));
    return {recording::KeyMask().InText(xml)};
}

std::vector<StoredProfile> CaptureProfiles(Host& host, const GUID& guid, MadeScenario& made)
{
    std::vector<StoredProfile> profiles;
    for (const WLAN_PROFILE_INFO& info : OrWarn(made, [&] { return host.service().Profiles(&guid); }))
    {
        const std::wstring name(FixedText(info.strProfileName));
        try
        {
            profiles.push_back(CaptureProfile(host, guid, name.c_str()));
        }
        catch (const Failure& failure)
        {
            made.Warn("the profile \"" + VisibleText(Narrow(name)) + "\" is left out: " + failure.what());
        }
    }
    return profiles;
}

/// What keeps the connection out of the scenario; empty where nothing does.
std::string ObstacleOf(const AdapterDescription& adapter, const std::string& profile, const AccessPoint* accessPoint)
{
    if (accessPoint == nullptr)
        return "its access point is not listed";
    const StoredProfile* const used = FindProfile(adapter.profiles, profile);
    if (used == nullptr)
        return "the scenario does not have its profile";
    return FitsProfile(*used, *accessPoint) ? "" : "its profile is for another kind of network";
}

} // namespace

AdapterDescription CaptureAdapter(Host& host, const WLAN_INTERFACE_INFO& info, MadeScenario& made)
{
    const GUID& guid = info.InterfaceGuid;
    AdapterDescription adapter;
    adapter.guid = forms::GuidText(guid);
    adapter.description = Narrow(FixedText(info.strInterfaceDescription));
    adapter.address = MadeUpInterface("", made.scenario.adapters.size()).address;
    adapter.phys = CapturePhys(host, guid, made);
    adapter.profiles = CaptureProfiles(host, guid, made);
    _WIFI_TXRX_COUNT count{};
    host.manager().GetWlanStatistics(&guid, &count);
    adapter.statistics = {count.ullTransmitted, count.ullReceived};
    adapter.autoConfiguration = host.service().IsEnabled(&guid, wlan_intf_opcode_autoconf_enabled).value_or(true);
    adapter.backgroundScan = host.service().IsEnabled(&guid, wlan_intf_opcode_background_scan_enabled).value_or(true);
    return adapter;
}

void CaptureConnection(Host& host, const GUID& guid, AdapterDescription& adapter, MadeScenario& made)
{
    // Without location consent the service refuses, as it did for the list of access points.
    if (!made.scenario.locationConsent)
        return;
    const auto attributes = OrWarn(made, [&] { return host.service().Connection(&guid); });
    if (!attributes || !IsConnectedState(attributes->isState))
        return;
    const WLAN_ASSOCIATION_ATTRIBUTES& association = attributes->wlanAssociationAttributes;
    simulation::MacAddress bssid{};
    std::copy(std::begin(association.dot11Bssid), std::end(association.dot11Bssid), bssid.begin());
    AccessPoint* const accessPoint = FindAccessPoint(made.scenario.accessPoints, bssid);
    const std::string ssid = SsidBytes(association.dot11Ssid);
    if (accessPoint != nullptr && accessPoint->ssid.empty())
        accessPoint->ssid.assign(ssid.begin(), ssid.end());
    const std::string profile = Narrow(FixedText(attributes->strProfileName));
    const std::string obstacle = ObstacleOf(adapter, profile, accessPoint);
    if (obstacle.empty())
        adapter.connection = {profile, bssid, static_cast<std::uint32_t>(association.ulRxRate),
                              static_cast<std::uint32_t>(association.ulTxRate)};
    else
        made.Warn("the connection to \"" + VisibleText(ssid) + "\" is left out: " + obstacle);
}

} // namespace calvix::host
