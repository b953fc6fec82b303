#include "report/report_json.h"

#include "forms/hex_text.h"
#include "output/json_forms.h"

#include <nlohmann/json.hpp>

namespace calvix::host
{

namespace
{

using ReportJsonValue = nlohmann::ordered_json;

ReportJsonValue ToReportJson(const AirAccessPoint& point)
{
    ReportJsonValue json = {{"number", point.number}};
    json.update(JsonOf(point.facts));
    json["inUse"] = point.inUse;
    json["inView"] = point.inView;
    json["widthMhz"] = point.beacon.widthMhz;
    json["widthTold"] = point.beacon.widthTold;
    json["centreKhz"] = point.beacon.centreKhz;
    json["security"] = point.beacon.security;
    json["streams"] = point.beacon.streams != 0 ? ReportJsonValue(point.beacon.streams) : ReportJsonValue(nullptr);
    json["fastestKbps"] =
        point.beacon.fastestKbps != 0 ? ReportJsonValue(point.beacon.fastestKbps) : ReportJsonValue(nullptr);
    ReportJsonValue rates = ReportJsonValue::array();
    for (const unsigned rate : point.beacon.rates)
        rates.push_back(rate * 500);
    json["ratesKbps"] = rates;
    return json;
}

ReportJsonValue ToReportJson(const ChoiceFacts& choice)
{
    return {{"method", choice.method},
            {"command", choice.command},
            {"asks", choice.asked},
            {"now", choice.now},
            {"rule", choice.rule}};
}

ReportJsonValue ToReportJson(const SignalSample& sample)
{
    ReportJsonValue json = {{"second", sample.second}};
    json.update(JsonOf(sample.link));
    return json;
}

/// How each access point was heard, a value for each sample.
ReportJsonValue HeardInTime(const std::vector<SignalSample>& samples)
{
    ReportJsonValue json = ReportJsonValue::object();
    for (std::size_t i = 0; i < samples.size(); ++i)
    {
        for (const auto& [bssid, rssi] : samples[i].air)
        {
            if (!json.contains(bssid))
                json[bssid] = ReportJsonValue(samples.size(), nullptr);
            json[bssid][i] = rssi;
        }
    }
    return json;
}

ReportJsonValue ToReportJson(const LinkEvent& event)
{
    const auto textOrNull = [](const std::string& text)
    { return text.empty() ? ReportJsonValue(nullptr) : ReportJsonValue(text); };
    return {{"second", event.second}, {"from", textOrNull(event.from)}, {"to", textOrNull(event.to)}};
}

template <typename Facts>
ReportJsonValue ToReportJson(const std::vector<Facts>& list)
{
    ReportJsonValue json = ReportJsonValue::array();
    for (const Facts& facts : list)
        json.push_back(ToReportJson(facts));
    return json;
}

template <typename Facts>
ReportJsonValue KnownForms(const std::vector<Facts>& list)
{
    ReportJsonValue json = ReportJsonValue::array();
    for (const Facts& facts : list)
        json.push_back(JsonOf(facts));
    return json;
}

ReportJsonValue Missing(const ReportFacts& report)
{
    ReportJsonValue json = ReportJsonValue::array();
    for (const MissingPart& missing : report.missing)
        json.push_back({{"part", missing.part},
                        {"message", missing.failure.message},
                        {"advice", missing.failure.advice},
                        {"exitCode", static_cast<int>(missing.failure.exitCode)}});
    return json;
}

ReportJsonValue ToReportJson(const std::optional<RecordingFacts>& recording)
{
    if (!recording)
        return nullptr;
    return {{"file", recording->file},
            {"simulated", recording->simulated},
            {"anonymised", recording->anonymised},
            {"notTold", recording->notTold}};
}

/// What an HTML parser looks for inside a script element.
std::string WithoutMarkup(const std::string& json)
{
    std::string safe;
    for (const char c : json)
        if (c == '<' || c == '>' || c == '&')
            safe += "\\u00" + forms::HexText(std::string_view(&c, 1), forms::Letters::lower);
        else
            safe += c;
    return safe;
}

} // namespace

std::string ReportJson(const ReportFacts& report, bool forPage)
{
    ReportJsonValue json;
    json["title"] = report.title;
    json["heardAt"] = report.heardAt.empty() ? ReportJsonValue(nullptr) : ReportJsonValue(report.heardAt);
    json["adapters"] = KnownForms(report.adapters);
    json["status"] = report.status ? JsonOf(*report.status) : ReportJsonValue(nullptr);
    json["accessPoints"] = ToReportJson(report.accessPoints);
    json["profiles"] = KnownForms(report.profiles);
    json["candidates"] = KnownForms(report.candidates);
    json["choices"] = ToReportJson(report.choices);
    json["samples"] = ToReportJson(report.history.samples);
    json["heard"] = HeardInTime(report.history.samples);
    json["events"] = ToReportJson(report.history.events);
    json["missing"] = Missing(report);
    json["recording"] = ToReportJson(report.recording);
    constexpr auto replace = ReportJsonValue::error_handler_t::replace;
    return forPage ? WithoutMarkup(json.dump(-1, ' ', true, replace)) : json.dump(2, ' ', false, replace);
}

} // namespace calvix::host
