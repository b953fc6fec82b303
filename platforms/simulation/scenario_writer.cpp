#include "simulation/scenario.h"
#include "simulation/scenario_names.h"
#include "simulation/utf8.h"

#include <nlohmann/json.hpp>

#include <iterator>

namespace calvix::simulation
{

namespace
{

// Keeps the members in the order in which they are put in, so that the text reads as the gallery's files do.
using Json = nlohmann::ordered_json;

/// A number by its name, or as it is where it has none.
template <std::size_t Count>
Json Named(const NumberName (&names)[Count], std::uint32_t number)
{
    for (const NumberName& known : names)
        if (known.number == number)
            return known.name;
    return number;
}

const char* SwitchText(RadioSwitch position)
{
    return position == RadioSwitch::on ? "on" : "off";
}

Json WriteIhv(const AdapterDescription& adapter)
{
    Json answers = Json::array();
    for (const auto& [request, answer] : adapter.ihv)
    {
        Json entry = {{"request", HexText(request)}};
        if (answer.error != 0)
            entry["error"] = answer.error;
        else
            entry["answer"] = HexText(answer.data);
        answers.push_back(entry);
    }
    return answers;
}

Json WriteTimetable(const AccessPoint& point)
{
    Json points = Json::array();
    for (const SignalPoint& each : point.timetable)
        points.push_back({{"at", each.at}, {"rssi", each.rssi ? Json(*each.rssi) : Json(nullptr)}});
    return points;
}

Json WriteAdapter(const AdapterDescription& adapter)
{
    Json phys = Json::array();
    for (const PhyDescription& phy : adapter.phys)
        phys.push_back({{"type", Named(kPhyNames, phy.type)},
                        {"software", SwitchText(phy.software)},
                        {"hardware", SwitchText(phy.hardware)}});
    Json profiles = Json::array();
    for (const StoredProfile& profile : adapter.profiles)
        profiles.push_back({{"xml", profile.xml}});
    Json result = {{"guid", adapter.guid},
                   {"description", adapter.description},
                   {"address", AddressText(adapter.address)},
                   {"phys", phys},
                   {"scanMilliseconds", adapter.scanMilliseconds},
                   {"connectMilliseconds", adapter.connectMilliseconds},
                   {"profiles", profiles}};
    if (adapter.connection)
    {
        result["connection"] = {{"profile", adapter.connection->profile}};
        if (adapter.connection->bssid)
            result["connection"]["bssid"] = AddressText(*adapter.connection->bssid);
    }
    result["statistics"] = {{"transmitted", adapter.statistics.transmitted}, {"received", adapter.statistics.received}};
    // What follows is rarely used, and left out where it says nothing.
    if (!adapter.autoConfiguration)
        result["autoConfiguration"] = false;
    if (!adapter.backgroundScan)
        result["backgroundScan"] = false;
    if (!adapter.ihv.empty())
        result["ihv"] = WriteIhv(adapter);
    return result;
}

Json WriteAccessPoint(const AccessPoint& point)
{
    Json result;
    const std::string ssid(point.ssid.begin(), point.ssid.end());
    if (IsUtf8(ssid))
        result["ssid"] = ssid;
    else
        result["ssidHex"] = HexText(point.ssid);
    result["hidden"] = point.hidden;
    result["bssid"] = AddressText(point.bssid);
    result["frequencyKhz"] = point.frequencyKhz;
    result["rssi"] = point.rssi;
    result["phy"] = Named(kPhyNames, point.phyType);
    result["bssType"] = Named(kBssTypeNames, point.bssType);
    result["authentication"] = point.authentication;
    result["encryption"] = point.encryption;
    result["beaconPeriod"] = point.beaconPeriod;
    if (!point.informationElements.empty())
        result["informationElements"] = HexText(point.informationElements);
    if (!point.key.empty())
        result["key"] = point.key;
    if (!point.answers)
        result["answers"] = false;
    if (point.channelWidth != 0)
        result["channelWidth"] = point.channelWidth;
    if (!point.timetable.empty())
        result["timetable"] = WriteTimetable(point);
    return result;
}

/// Adds a member, unless it says what is so anyway.
template <typename Type>
void PutUnless(Json& object, const char* name, const Type& value, const Type& otherwise)
{
    if (value != otherwise)
        object[name] = value;
}

template <typename Type>
Json OrNull(const std::optional<Type>& value)
{
    return value ? Json(*value) : Json(nullptr);
}

Json WritePowerSchemes(const std::vector<PowerScheme>& schemes)
{
    Json result = Json::array();
    for (const PowerScheme& scheme : schemes)
    {
        Json entry = {{"guid", scheme.guid}};
        if (const std::optional<std::string> name = TextOfFriendlyName(scheme.name))
            entry["name"] = *name;
        else
            entry["nameHex"] = HexText(scheme.name);
        for (const PowerValue& value : scheme.values)
            entry["values"].push_back(
                {{"subgroup", value.subgroup}, {"setting", value.setting}, {"ac", value.ac}, {"dc", value.dc}});
        result.push_back(entry);
    }
    return result;
}

Json WriteLegacyPowerSchemes(const std::vector<LegacyPowerScheme>& schemes)
{
    Json result = Json::array();
    for (const LegacyPowerScheme& scheme : schemes)
        result.push_back({{"id", scheme.id},
                          {"name", scheme.name},
                          {"idleTimeoutAc", scheme.idleTimeoutAc},
                          {"idleTimeoutDc", scheme.idleTimeoutDc},
                          {"videoTimeoutAc", scheme.videoTimeoutAc},
                          {"videoTimeoutDc", scheme.videoTimeoutDc}});
    return result;
}

Json WritePower(const PowerDescription& power)
{
    const PowerDescription usual;
    Json result = Json::object();
    PutUnless(result, "suspendAllowed", power.suspendAllowed, usual.suspendAllowed);
    PutUnless(result, "hibernateAllowed", power.hibernateAllowed, usual.hibernateAllowed);
    PutUnless(result, "shutdownAllowed", power.shutdownAllowed, usual.shutdownAllowed);
    PutUnless(result, "modernStandby", power.modernStandby, usual.modernStandby);
    PutUnless(result, "battery", power.battery, usual.battery);
    PutUnless(result, "upMilliseconds", power.upMilliseconds, usual.upMilliseconds);
    PutUnless(result, "lastSleepTime", power.lastSleepTime, usual.lastSleepTime);
    PutUnless(result, "lastWakeTime", power.lastWakeTime, usual.lastWakeTime);
    PutUnless(result, "sleepMilliseconds", power.sleepMilliseconds, usual.sleepMilliseconds);
    PutUnless(result, "resumesAutomatically", power.resumesAutomatically, usual.resumesAutomatically);
    PutUnless(result, "enumerationError", power.enumerationError, usual.enumerationError);
    if (power.schemes != usual.schemes)
        result["schemes"] = WritePowerSchemes(power.schemes);
    if (power.schemes != usual.schemes || power.activeScheme != usual.activeScheme)
        result["activeScheme"] = OrNull(power.activeScheme);
    if (power.legacySchemes != usual.legacySchemes)
        result["legacySchemes"] = WriteLegacyPowerSchemes(power.legacySchemes);
    if (power.legacySchemes != usual.legacySchemes || power.activeLegacyScheme != usual.activeLegacyScheme)
        result["activeLegacyScheme"] = OrNull(power.activeLegacyScheme);
    return result;
}

Json WritePrivileges(const std::vector<Privilege>& privileges)
{
    Json result = Json::array();
    for (const Privilege& each : privileges)
        result.push_back({{"name", each.name}, {"enabled", each.enabled}});
    return result;
}

Json WritePrograms(const std::vector<Program>& programs)
{
    Json result = Json::array();
    for (const Program& each : programs)
        result.push_back(
            {{"path", each.path}, {"milliseconds", OrNull(each.milliseconds)}, {"exitCode", each.exitCode}});
    return result;
}

Json WriteProcesses(const std::vector<RunningProcess>& processes)
{
    Json result = Json::array();
    for (const RunningProcess& each : processes)
        result.push_back({{"id", each.id},
                          {"path", each.path},
                          {"milliseconds", OrNull(each.milliseconds)},
                          {"exitCode", each.exitCode},
                          {"foreign", each.foreign}});
    return result;
}

/// What the computer is beside its adapters.
void WriteSystem(const Scenario& scenario, Json& document)
{
    const Scenario usual;
    if (scenario.power != usual.power)
        document["power"] = WritePower(scenario.power);
    PutUnless(document, "tokens", scenario.tokens, usual.tokens);
    if (scenario.privileges != usual.privileges)
        document["privileges"] = WritePrivileges(scenario.privileges);
    PutUnless(document, "programPath", scenario.programPath, usual.programPath);
    if (scenario.wow64 != usual.wow64)
        document["wow64"] = OrNull(scenario.wow64);
    if (!scenario.programs.empty())
        document["programs"] = WritePrograms(scenario.programs);
    if (!scenario.processes.empty())
        document["processes"] = WriteProcesses(scenario.processes);
    if (scenario.internet != usual.internet)
        for (const InternetName& known : kInternetNames)
            if (known.access == scenario.internet)
                document["internet"] = known.name;
}

} // namespace

std::string WriteScenario(const Scenario& scenario)
{
    Json adapters = Json::array();
    for (const AdapterDescription& adapter : scenario.adapters)
        adapters.push_back(WriteAdapter(adapter));
    Json points = Json::array();
    for (const AccessPoint& point : scenario.accessPoints)
        points.push_back(WriteAccessPoint(point));
    Json document = {{"description", scenario.description},
                     {"codePage", scenario.codePage},
                     {"service", scenario.serviceRunning ? "running" : "stopped"},
                     {"locationConsent", scenario.locationConsent}};
    if (!scenario.administrator)
        document["administrator"] = false;
    if (scenario.powerSetting != 0)
        document["powerSetting"] = Named(kPowerSettingNames, scenario.powerSetting);
    WriteSystem(scenario, document);
    document["adapters"] = adapters;
    document["accessPoints"] = points;
    return document.dump(2) + "\n";
}

} // namespace calvix::simulation
