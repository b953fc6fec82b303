#include "report/report_json.h"

#include "output/json_output.h"

namespace calvix::host
{

JsonRecord Describe(const AirAccessPoint& point)
{
    std::vector<unsigned> rates;
    for (const auto rate : point.beacon.rates)
        rates.push_back(rate * 500U);
    return JsonRecord("An access point in view, with what its beacons contain.", "point")
        .Add("number", point.number)
        .Join(Describe(point.facts))
        .Add("inUse", point.inUse)
        .Add("inView", point.inView)
        .Add("widthMhz", point.beacon.widthMhz)
        .Add("widthKnown", point.beacon.widthKnown)
        .Add("centreKhz", point.beacon.centreKhz)
        .Add("security", point.beacon.security)
        .Add("streams", point.beacon.streams, kTextOrNull)
        .Add("fastestKbps", point.beacon.fastestKbps, kTextOrNull)
        .Add("ratesKbps", rates);
}

JsonRecord Describe(const ChoiceFacts& choice)
{
    return JsonRecord("What an automatic method would do.")
        .Add("method", choice.method)
        .Add("command", choice.command)
        .Add("asks", choice.asked)
        .Add("now", choice.now)
        .Add("rule", choice.rule);
}

JsonRecord Describe(const SignalSample& sample)
{
    return JsonRecord("The link at a second.")
        .Add("second", sample.second, {"Since the beginning"})
        .Join(Describe(sample.link));
}

JsonRecord Describe(const LinkEvent& event)
{
    return JsonRecord()
        .Add("second", event.second, {"Since the beginning"})
        .Add("from", event.from, kTextOrNull)
        .Add("to", event.to, kTextOrNull);
}

JsonRecord Describe(const MissingPart& missing)
{
    return JsonRecord("A part that could not be read.")
        .Add("part", missing.part)
        .Add("message", missing.failure.message)
        .Add("advice", missing.failure.advice)
        .Add("exitCode", static_cast<int>(missing.failure.exitCode));
}

namespace
{

/// How each access point was heard, a value for each sample.
Json HeardInTime(const std::vector<SignalSample>& samples)
{
    Json json = Json::object();
    for (std::size_t i = 0; i < samples.size(); ++i)
    {
        for (const auto& [bssid, rssi] : samples[i].air)
        {
            if (!json.contains(bssid))
                json[bssid] = Json(samples.size(), nullptr);
            json[bssid][i] = rssi;
        }
    }
    return json;
}

} // namespace

JsonRecord Describe(const ReportFacts& report)
{
    const Json rssi = {{"type", {"integer", "null"}}};
    return JsonRecord()
        .Add("title", report.title)
        .Add("heardAt", report.heardAt, kTextOrNull)
        .Add("adapters", report.adapters)
        .Add("status", report.status)
        .Add("accessPoints", report.accessPoints)
        .Add("profiles", report.profiles)
        .Add("candidates", report.candidates)
        .Add("choices", report.choices)
        .Add("samples", report.history.samples)
        .AddPart("heard", {HeardInTime(report.history.samples),
                           {{"description", "By BSSID, dBm in each sample"},
                            {"type", "object"},
                            {"additionalProperties", {{"type", "array"}, {"items", rssi}}}}})
        .Add("events", report.history.events)
        .Add("missing", report.missing);
}

} // namespace calvix::host
