#include "output/json_output.h"

#include <span>

namespace calvix::host
{

namespace
{

JsonRecord& AddSsid(JsonRecord& record, const SsidFacts& ssid)
{
    return record.Add("ssid", ssid.text, {.definition = "ssid"}).Add("ssidHex", ssid.hex, {.definition = "ssidHex"});
}

Shape AmongTexts(std::span<const char* const> texts)
{
    return {.among = {texts.begin(), texts.end()}};
}

JsonRecord AtMoment(const char* meaning, const char* event, unsigned long long milliseconds, const JsonRecord& rest)
{
    return JsonRecord(meaning)
        .Add("event", event, {.among = {event}})
        .Add("milliseconds", milliseconds, {"Since the beginning"})
        .Join(rest);
}

} // namespace

JsonRecord Describe(const ConnectionFacts& connection)
{
    JsonRecord record("What an adapter is connected to.", "connection");
    record.Add("profile", connection.profile).Add("mode", connection.mode);
    AddSsid(record, connection.ssid);
    return record.Add("bssid", connection.bssid, kBssid)
        .Add("bssType", connection.bssType)
        .Add("phy", connection.phy)
        .Add("security", connection.security)
        .Add("quality", connection.quality, {.definition = "quality"})
        .Add("rssi", connection.rssi, {"dBm"})
        .Add("accessPoints", connection.accessPoints, {"Of the network, in view"})
        .Add("receiveKbps", connection.receiveKbps)
        .Add("transmitKbps", connection.transmitKbps)
        .Add("framesSent", connection.framesSent)
        .Add("framesReceived", connection.framesReceived);
}

JsonRecord Describe(const AdapterFacts& adapter)
{
    return JsonRecord("A wireless adapter.", "adapter")
        .Add("number", adapter.number, {"As --interface takes it"})
        .Add("guid", adapter.guid, {.pattern = "^\\{[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}\\}$"})
        .Add("description", adapter.description)
        .Add("state", adapter.state, {"The service's number"})
        .Add("stateText", adapter.stateText);
}

JsonRecord Describe(const NetworkFacts& network)
{
    JsonRecord record("A network in view, once for each profile that matches it.", "network");
    return AddSsid(record, network.ssid)
        .Add("profile", network.profile, kTextOrNull)
        .Add("quality", network.quality, {.definition = "quality"})
        .Add("security", network.security)
        .Add("bssType", network.bssType)
        .Add("phys", network.phys)
        .Add("accessPoints", network.accessPoints)
        .Add("connected", network.connected)
        .Add("connectable", network.connectable)
        .Add("reason", network.reason, {.meaning = "Why it cannot be joined", .emptyIsNull = true});
}

JsonRecord Describe(const AccessPointFacts& accessPoint)
{
    JsonRecord record("An access point in view.", "accessPoint");
    return AddSsid(record, accessPoint.ssid)
        .Add("bssid", accessPoint.bssid, kBssid)
        .Add("rssi", accessPoint.rssi, {"dBm"})
        .Add("quality", accessPoint.quality, {.definition = "quality"})
        .Add("frequencyKhz", accessPoint.frequencyKhz)
        .Add("channel", accessPoint.channel, {"The customary number"})
        .Add("band", accessPoint.band, {.among = {"2.4 GHz", "5 GHz", "6 GHz"}})
        .Add("phy", accessPoint.phy)
        .Add("bssType", accessPoint.bssType)
        .Add("beaconPeriod", accessPoint.beaconPeriod, {"In 1024 microseconds"});
}

JsonRecord Describe(const ProfileFacts& profile)
{
    return JsonRecord("A stored profile.", "profile")
        .Add("position", profile.position, {"The preferred one is 1"})
        .Add("name", profile.name)
        .Add("mode", profile.mode, {.among = {"auto", "manual", "unknown"}})
        .Add("groupPolicy", profile.groupPolicy)
        .Add("perUser", profile.perUser);
}

JsonRecord Describe(const StatusFacts& status)
{
    return JsonRecord("An adapter and its connection.", "status")
        .Add("adapter", status.adapter)
        .Add("connection", status.connection);
}

JsonRecord Describe(const CandidateFacts& candidate)
{
    JsonRecord record("A network that best may request.", "candidate");
    record.Add("order", candidate.order, {"In which they are requested"}).Add("profile", candidate.profile);
    return AddSsid(record, candidate.ssid)
        .Add("quality", candidate.quality, {.definition = "quality"})
        .Add("fiveGhz", candidate.fiveGhz, {"Access points that earned the bonus"})
        .Add("bonus", candidate.bonus)
        .Add("score", candidate.score)
        .Add("outcome", OutcomeText(candidate.outcome), AmongTexts(kOutcomeTexts))
        .Add("error", candidate.error, {.meaning = "The platform's error number", .emptyIsNull = true});
}

JsonRecord Describe(const CheckFacts& check)
{
    return JsonRecord("One check of doctor.", "check")
        .Add("adapter", check.adapter, {.meaning = "Its number; null: about the computer", .emptyIsNull = true})
        .Add("check", check.check)
        .Add("verdict", VerdictText(check.verdict), AmongTexts(kVerdictTexts))
        .Add("finding", check.finding)
        .Add("advice", check.advice, {.meaning = "What to do about it", .emptyIsNull = true});
}

JsonRecord Describe(const RoamFacts& roam)
{
    const Shape bssidOrNull{.definition = "bssid", .emptyIsNull = true};
    return JsonRecord("The result of roaming.", "roamDecision")
        .Add("decision", roam.decision, {.among = {"roam", "stay", "none"}})
        .Add("code", roam.code, {"The library's result"})
        .Add("why", roam.why)
        .Add("from", roam.from, bssidOrNull)
        .Add("to", roam.to, bssidOrNull);
}

JsonRecord Describe(const SignalFacts& signal)
{
    const bool connected = signal.connected;
    return JsonRecord("The link at a moment.")
        .Add("state", signal.state)
        .Add("connected", connected)
        .AddIf(connected, "profile", signal.profile)
        .AddIf(connected, "ssid", signal.ssid.text, {.definition = "ssid"})
        .AddIf(connected, "ssidHex", signal.ssid.hex, {.definition = "ssidHex"})
        .AddIf(connected, "bssid", signal.bssid, kBssid)
        .AddIf(connected, "quality", signal.quality, {.definition = "quality"})
        .AddIf(connected, "rssi", signal.rssi, {"dBm"});
}

JsonRecord Describe(const NoticeFacts& notice)
{
    return JsonRecord("A notification of the service.")
        .Add("code", notice.code)
        .Add("name", notice.name)
        .Add("profile", notice.profile, kTextOrNull)
        .Add("ssid", notice.ssid.text, kTextOrNull)
        .Add("ssidHex", notice.ssid.hex, kTextOrNull)
        .Add("reasonCode", notice.reasonCode)
        .Add("reason", notice.reason, kTextOrNull);
}

JsonRecord Describe(const IdlePolicyFacts& policy)
{
    return JsonRecord("Seconds without use; 0: never.", "powerPolicy")
        .Add("sleepAfter", policy.sleepAfter)
        .Add("displayOffAfter", policy.displayOffAfter);
}

JsonRecord Describe(const ImportFacts& import)
{
    return JsonRecord()
        .Add("adapters", import.counts.adapters)
        .Add("accessPoints", import.counts.accessPoints)
        .Add("networks", import.counts.networks)
        .Add("hidden", import.counts.hidden)
        .Add("profiles", import.counts.profiles)
        .Add("warnings", import.warnings)
        .Add("output", import.output);
}

JsonRecord Describe(const FailureReport& failure)
{
    const auto error =
        JsonRecord()
            .Add("exitCode", static_cast<int>(failure.exitCode), {.among = {1, 2, 3, 4, 5}})
            .Add("message", failure.message)
            .Add("advice", failure.advice, kTextOrNull)
            .Add("method", failure.method, {.meaning = "Of the library", .emptyIsNull = true})
            .Add("code", failure.code, {"Its result"})
            .Add("operation", failure.operation, {.meaning = "Of the platform: the refused one", .emptyIsNull = true})
            .Add("platformError", failure.platformError, {.meaning = "Its error number", .emptyIsNull = true})
            .Add("reasonCode", failure.reasonCode, {.meaning = "Of the WLAN service", .emptyIsNull = true})
            .Add("reason", failure.reason, {.meaning = "In its words", .emptyIsNull = true});
    return JsonRecord()
        .AddIf(!failure.candidates.empty(), "candidates", failure.candidates,
               {"Of best: the requests that were refused"})
        .AddIf(!failure.checks.empty(), "checks", failure.checks, {"Of doctor: some of them failed"})
        .Add("error", error);
}

JsonRecord LiveRecord(unsigned long long milliseconds, const SignalFacts& signal)
{
    return AtMoment("Once a second.", "signal", milliseconds, Describe(signal));
}

JsonRecord LiveRecord(unsigned long long milliseconds, const NoticeFacts& notice)
{
    return AtMoment("A notification of the service, with its time.", "notification", milliseconds, Describe(notice));
}

JsonRecord LiveRecord(unsigned long long milliseconds, const RoamFacts& roam)
{
    return AtMoment("A decision about roaming.", "roam", milliseconds, Describe(roam));
}

JsonRecord MoveRecord(unsigned long long milliseconds, const std::string& from, const std::string& to)
{
    return AtMoment("The link is at another access point.", "moved", milliseconds,
                    JsonRecord().Add("from", from, kBssid).Add("to", to, kBssid));
}

std::vector<JsonRecord> LiveRecords()
{
    return {LiveRecord(0, SignalFacts{}), LiveRecord(0, NoticeFacts{}), LiveRecord(0, RoamFacts{}),
            MoveRecord(0, "", "")};
}

void PrintLine(std::ostream& out, const JsonRecord& record)
{
    out << record.value().dump(-1, ' ', false, Json::error_handler_t::replace) << std::endl;
}

} // namespace calvix::host
