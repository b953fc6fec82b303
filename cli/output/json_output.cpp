#include "output/json_output.h"

#include "output/json_forms.h"

#include <nlohmann/json.hpp>

#include <sstream>

namespace calvix::host
{

namespace
{

using Json = nlohmann::ordered_json;

template <typename Value>
Json OrNull(const std::optional<Value>& value)
{
    return value ? Json(*value) : Json(nullptr);
}

Json TextOrNull(const std::string& text)
{
    return text.empty() ? Json(nullptr) : Json(text);
}

void AddSsid(Json& json, const SsidFacts& ssid)
{
    json["ssid"] = ssid.text;
    json["ssidHex"] = ssid.hex;
}

Json ToJson(const AdapterFacts& adapter)
{
    return {{"number", adapter.number},
            {"guid", adapter.guid},
            {"description", adapter.description},
            {"state", adapter.state},
            {"stateText", adapter.stateText}};
}

Json ToJson(const NetworkFacts& network)
{
    Json json;
    AddSsid(json, network.ssid);
    json["profile"] = TextOrNull(network.profile);
    json["quality"] = network.quality;
    json["security"] = network.security;
    json["bssType"] = network.bssType;
    json["phys"] = network.phys;
    json["accessPoints"] = network.accessPoints;
    json["connected"] = network.connected;
    json["connectable"] = network.connectable;
    json["reason"] = TextOrNull(network.reason);
    return json;
}

Json ToJson(const AccessPointFacts& accessPoint)
{
    Json json;
    AddSsid(json, accessPoint.ssid);
    json["bssid"] = accessPoint.bssid;
    json["rssi"] = accessPoint.rssi;
    json["quality"] = accessPoint.quality;
    json["frequencyKhz"] = accessPoint.frequencyKhz;
    json["channel"] = accessPoint.channel;
    json["band"] = accessPoint.band;
    json["phy"] = accessPoint.phy;
    json["bssType"] = accessPoint.bssType;
    json["beaconPeriod"] = accessPoint.beaconPeriod;
    return json;
}

Json ToJson(const ProfileFacts& profile)
{
    return {{"position", profile.position},
            {"name", profile.name},
            {"mode", profile.mode},
            {"groupPolicy", profile.groupPolicy},
            {"perUser", profile.perUser}};
}

Json ToJson(const ConnectionFacts& connection)
{
    Json json;
    json["profile"] = connection.profile;
    json["mode"] = connection.mode;
    AddSsid(json, connection.ssid);
    json["bssid"] = connection.bssid;
    json["bssType"] = connection.bssType;
    json["phy"] = connection.phy;
    json["security"] = connection.security;
    json["quality"] = connection.quality;
    json["rssi"] = OrNull(connection.rssi);
    json["accessPoints"] = OrNull(connection.accessPoints);
    json["receiveKbps"] = connection.receiveKbps;
    json["transmitKbps"] = connection.transmitKbps;
    json["framesSent"] = OrNull(connection.framesSent);
    json["framesReceived"] = OrNull(connection.framesReceived);
    return json;
}

Json ToJson(const StatusFacts& status)
{
    Json json;
    json["adapter"] = ToJson(status.adapter);
    json["connection"] = status.connection ? ToJson(*status.connection) : Json(nullptr);
    return json;
}

Json ToJson(const CandidateFacts& candidate)
{
    Json json;
    json["order"] = candidate.order;
    json["profile"] = candidate.profile;
    AddSsid(json, candidate.ssid);
    json["quality"] = candidate.quality;
    json["fiveGhz"] = candidate.fiveGhz;
    json["bonus"] = candidate.bonus;
    json["score"] = candidate.score;
    json["outcome"] = OutcomeText(candidate.outcome);
    json["error"] = candidate.error != 0 ? Json(candidate.error) : Json(nullptr);
    return json;
}

Json ToJson(const std::optional<IdlePolicyFacts>& policy)
{
    if (!policy)
        return nullptr;
    return {{"sleepAfter", policy->sleepAfter}, {"displayOffAfter", policy->displayOffAfter}};
}

Json ToJson(const RoamFacts& roam)
{
    return {{"decision", roam.decision},
            {"code", roam.code},
            {"why", roam.why},
            {"from", TextOrNull(roam.from)},
            {"to", TextOrNull(roam.to)}};
}

Json ToJson(const SignalFacts& signal)
{
    Json json;
    json["state"] = signal.state;
    json["connected"] = signal.connected;
    if (!signal.connected)
        return json;
    json["profile"] = signal.profile;
    AddSsid(json, signal.ssid);
    json["bssid"] = signal.bssid;
    json["quality"] = signal.quality;
    json["rssi"] = OrNull(signal.rssi);
    return json;
}

Json ToJson(const NoticeFacts& notice)
{
    Json json;
    json["code"] = notice.code;
    json["name"] = notice.name;
    json["profile"] = TextOrNull(notice.profile);
    json["ssid"] = TextOrNull(notice.ssid.text);
    json["ssidHex"] = TextOrNull(notice.ssid.hex);
    json["reasonCode"] = notice.reasonCode;
    json["reason"] = TextOrNull(notice.reason);
    return json;
}

/// One line that a reader can take in as soon as it is there.
void PrintLive(std::ostream& out, unsigned long long milliseconds, const char* event, const Json& rest)
{
    Json json = {{"event", event}, {"milliseconds", milliseconds}};
    json.update(rest);
    out << json.dump(-1, ' ', false, Json::error_handler_t::replace) << std::endl;
}

template <typename Facts>
Json ToJson(const std::vector<Facts>& list)
{
    Json json = Json::array();
    for (const Facts& facts : list)
        json.push_back(ToJson(facts));
    return json;
}

} // namespace

void PrintObject(std::ostream& out, const Json& json)
{
    // Texts from the air and from documents may hold anything: what is not UTF-8 must not end the output.
    out << json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

nlohmann::ordered_json JsonOf(const AdapterFacts& adapter)
{
    return ToJson(adapter);
}

nlohmann::ordered_json JsonOf(const AccessPointFacts& accessPoint)
{
    return ToJson(accessPoint);
}

nlohmann::ordered_json JsonOf(const ProfileFacts& profile)
{
    return ToJson(profile);
}

nlohmann::ordered_json JsonOf(const StatusFacts& status)
{
    return ToJson(status);
}

nlohmann::ordered_json JsonOf(const CandidateFacts& candidate)
{
    return ToJson(candidate);
}

nlohmann::ordered_json JsonOf(const SignalFacts& signal)
{
    return ToJson(signal);
}

void PrintJson(std::ostream& out, const std::vector<AdapterFacts>& adapters)
{
    PrintObject(out, {{"adapters", ToJson(adapters)}});
}

void PrintJson(std::ostream& out, const std::vector<NetworkFacts>& networks)
{
    PrintObject(out, {{"networks", ToJson(networks)}});
}

void PrintJson(std::ostream& out, const std::vector<AccessPointFacts>& accessPoints)
{
    PrintObject(out, {{"accessPoints", ToJson(accessPoints)}});
}

void PrintJson(std::ostream& out, const std::vector<ProfileFacts>& profiles)
{
    PrintObject(out, {{"profiles", ToJson(profiles)}});
}

void PrintJson(std::ostream& out, const ScanFacts& scan)
{
    PrintObject(
        out,
        {{"scan",
          {{"completed", scan.completed}, {"milliseconds", scan.milliseconds}, {"accessPoints", scan.accessPoints}}}});
}

void PrintJson(std::ostream& out, const StatusFacts& status)
{
    PrintObject(out, ToJson(status));
}

void PrintJson(std::ostream& out, const MatchFacts& match)
{
    PrintObject(out, {{"profiles", match.profiles}, {"accessPoints", ToJson(match.accessPoints)}});
}

void PrintJson(std::ostream& out, const BestFacts& best)
{
    PrintObject(out, {{"candidates", ToJson(best.candidates)}, {"status", ToJson(best.status)}});
}

void PrintJson(std::ostream& out, const RadioFacts& radio)
{
    PrintObject(out, {{"radio", {{"on", radio.on}, {"software", radio.software}, {"hardware", radio.hardware}}}});
}

void PrintJson(std::ostream& out, const SettingsFacts& settings)
{
    PrintObject(out, {{"settings",
                       {{"powerLevel", settings.powerLevel},
                        {"powerSetting", settings.powerSetting},
                        {"automaticConnection", OrNull(settings.automaticConnection)},
                        {"backgroundScan", OrNull(settings.backgroundScan)},
                        {"safeMode", OrNull(settings.safeMode)}}}});
}

void PrintJson(std::ostream& out, const PowerFacts& power)
{
    PrintObject(out, {{"power",
                       {{"sleep", power.sleep},
                        {"hibernate", power.hibernate},
                        {"shutDown", power.shutDown},
                        {"modernStandby", power.modernStandby},
                        {"lastSleepTime", power.lastSleepTime},
                        {"lastWakeTime", power.lastWakeTime},
                        {"wokeByItself", power.wokeByItself},
                        {"onMains", ToJson(power.onMains)},
                        {"onBattery", ToJson(power.onBattery)},
                        {"scheme", TextOrNull(power.scheme)}}}});
}

void PrintJson(std::ostream& out, const SoftApFacts& softAps)
{
    PrintObject(out, {{"softAps", softAps.names}, {"connectedToSoftAp", softAps.connected}});
}

void PrintJson(std::ostream& out, const RoamFacts& roam, const StatusFacts& status)
{
    PrintObject(out, {{"roam", ToJson(roam)}, {"status", ToJson(status)}});
}

void PrintLiveJson(std::ostream& out, unsigned long long milliseconds, const SignalFacts& signal)
{
    PrintLive(out, milliseconds, "signal", ToJson(signal));
}

void PrintLiveJson(std::ostream& out, unsigned long long milliseconds, const NoticeFacts& notice)
{
    PrintLive(out, milliseconds, "notification", ToJson(notice));
}

void PrintLiveJson(std::ostream& out, unsigned long long milliseconds, const RoamFacts& roam)
{
    PrintLive(out, milliseconds, "roam", ToJson(roam));
}

void PrintMoveJson(std::ostream& out, unsigned long long milliseconds, const std::string& from, const std::string& to)
{
    PrintLive(out, milliseconds, "moved", {{"from", from}, {"to", to}});
}

void PrintIhvJson(std::ostream& out, const std::string& request, const std::string& answer)
{
    PrintObject(out, {{"ihv", {{"request", request}, {"answer", answer}}}});
}

void PrintListingJson(std::ostream& out, const std::string& text)
{
    Json lines = Json::array();
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    PrintObject(out, {{"lines", lines}});
}

void PrintProfileJson(std::ostream& out, const std::string& name, const std::string& xml)
{
    PrintObject(out, {{"profile", {{"name", name}, {"xml", xml}}}});
}

void PrintChangeJson(std::ostream& out, const std::string& change, const std::string& profile)
{
    PrintObject(out, {{"change", change}, {"profile", TextOrNull(profile)}});
}

void PrintPrivilegeJson(std::ostream& out, const std::string& name)
{
    PrintObject(out, {{"privilege", {{"name", name}, {"enabled", true}}}});
}

void PrintRunJson(std::ostream& out, const std::string& what)
{
    PrintObject(out, {{"run", {{"started", what}}}});
}

void PrintEndedJson(std::ostream& out, const std::vector<unsigned long>& processes)
{
    PrintObject(out, {{"ended", processes}});
}

void PrintOnlineJson(std::ostream& out)
{
    PrintObject(out, {{"online", true}});
}

void PrintTextJson(std::ostream& out, const char* name, const std::string& text)
{
    PrintObject(out, {{name, text}});
}

void PrintJson(std::ostream& out, const ImportFacts& import)
{
    PrintObject(out, {{"adapters", import.counts.adapters},
                      {"accessPoints", import.counts.accessPoints},
                      {"networks", import.counts.networks},
                      {"hidden", import.counts.hidden},
                      {"profiles", import.counts.profiles},
                      {"warnings", import.warnings},
                      {"output", import.output}});
}

void PrintJson(std::ostream& out, const FailureReport& failure)
{
    Json error;
    error["exitCode"] = static_cast<int>(failure.exitCode);
    error["message"] = failure.message;
    error["advice"] = TextOrNull(failure.advice);
    error["method"] = TextOrNull(failure.method);
    error["code"] = OrNull(failure.code);
    error["operation"] = TextOrNull(failure.operation);
    error["platformError"] = failure.platformError != 0 ? Json(failure.platformError) : Json(nullptr);
    error["reasonCode"] = failure.reasonCode != 0 ? Json(failure.reasonCode) : Json(nullptr);
    error["reason"] = TextOrNull(failure.reason);
    Json json;
    if (!failure.candidates.empty())
        json["candidates"] = ToJson(failure.candidates);
    json["error"] = error;
    PrintObject(out, json);
}

} // namespace calvix::host
