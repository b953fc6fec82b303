#include "report/page.h"

#include "forms/hex_text.h"
#include "output/text_forms.h"
#include "report/html_text.h"
#include "report/pictures.h"
#include "report/report_json.h"
#include "view/describe.h"

#include <functional>
#include <set>

namespace calvix::host
{

namespace
{

std::string Named(const char* name, const std::string& html)
{
    return "<div><dt>" + std::string(name) + "</dt><dd>" + html + "</dd></div>";
}

std::string UpperFirst(std::string text)
{
    if (!text.empty() && text.front() >= 'a' && text.front() <= 'z')
        text.front() = static_cast<char>(text.front() - 'a' + 'A');
    return text;
}

/// "6 to 54 Mbit/s"
std::string RatesText(const std::vector<unsigned>& rates)
{
    if (rates.empty())
        return "unknown";
    return DecimalText(rates.front() / 2.0) + "\xe2\x80\x93" + DecimalText(rates.back() / 2.0) + " Mbit/s";
}

std::string FastestText(const BeaconFacts& beacon)
{
    if (beacon.streams == 0 || beacon.fastestKbps == 0)
        return "";
    return ", " + std::to_string(beacon.streams) + "\xc3\x97 up to " + std::to_string(beacon.fastestKbps / 1000);
}

/// A cell, with the value that it is sorted by where that is not its text.
std::string TableCell(const std::string& html, const std::string& sortedBy = {})
{
    return sortedBy.empty() ? "<td>" + html + "</td>" : "<td data-v=\"" + EscapeHtml(sortedBy) + "\">" + html + "</td>";
}

std::string NumberCell(const std::string& html, const std::string& sortedBy)
{
    return "<td class=\"n\" data-v=\"" + sortedBy + "\">" + html + "</td>";
}

/// A meter as wide as the quality, with the number beside it.
std::string SignalHtml(const AccessPointFacts& facts)
{
    return "<svg class=\"meter\" viewBox=\"0 0 50 8\" aria-hidden=\"true\">"
           "<rect class=\"rail\" width=\"50\" height=\"8\" rx=\"2\"/><rect class=\"fill\" width=\"" +
           DecimalText(facts.quality / 2.0) + "\" height=\"8\" rx=\"2\"/></svg> " + std::to_string(facts.rssi);
}

std::string AccessPointRow(const AirAccessPoint& point)
{
    const AccessPointFacts& facts = point.facts;
    const BeaconFacts& beacon = point.beacon;
    const std::string number = std::to_string(point.number);
    std::string row = "<tr id=\"row-" + number + "\" data-ap=\"" + number + "\" class=\"" + ColourClass(point) +
                      (point.inUse ? " used" : "") + (point.inView ? "" : " gone") + "\">";
    row += "<th scope=\"row\" data-v=\"" + EscapeHtml(SsidName(facts.ssid)) + "\"><span class=\"swatch\"></span>" +
           SsidHtml(facts.ssid) + (facts.bssType == "infrastructure" ? "" : " <small>" + facts.bssType + "</small>") +
           "</th>";
    row += TableCell(point.inUse    ? "<span class=\"tag\">in use</span>"
                     : point.inView ? ""
                                    : "<span class=\"tag quiet\">gone</span>",
                     point.inUse    ? "0"
                     : point.inView ? "1"
                                    : "2");
    row += NumberCell(SignalHtml(facts), std::to_string(facts.rssi));
    row += NumberCell(std::to_string(facts.channel), std::to_string(facts.channel));
    row += NumberCell(std::to_string(beacon.widthMhz) +
                          (beacon.widthKnown ? "" : "<abbr title=\"unknown: at least\">*</abbr>"),
                      std::to_string(beacon.widthMhz));
    row += TableCell(facts.band, std::to_string(facts.frequencyKhz));
    row += TableCell(EscapeHtml(beacon.security));
    row += TableCell(EscapeHtml(facts.phy));
    row += TableCell(RatesText(beacon.rates) + FastestText(beacon), std::to_string(beacon.fastestKbps));
    row += "<td class=\"mono\">" + EscapeHtml(facts.bssid) + "</td>";
    return row + "</tr>\n";
}

std::string OptionalNumber(const std::optional<int>& number, const char* unit)
{
    return number ? std::to_string(*number) + unit : "unknown";
}

std::string MegabitText(unsigned long kbps)
{
    return kbps != 0 ? DecimalText(static_cast<double>(kbps) / 1000) + " Mbit/s" : "unknown";
}

std::string KeyFact(const std::string& value, const std::string& name)
{
    return "<li><b>" + value + "</b> <span>" + name + "</span></li>\n";
}

std::string ChoiceRow(const ChoiceFacts& choice)
{
    return "<tr><th scope=\"row\">" + EscapeHtml(choice.method) + "<br><code>" + EscapeHtml(choice.command) +
           "</code></th><td class=\"now" + (choice.asked.empty() ? " nothing" : "") + "\">" + EscapeHtml(choice.now) +
           "</td><td>" + EscapeHtml(choice.rule) + "</td></tr>\n";
}

std::string CandidateTable(const std::vector<CandidateFacts>& candidates)
{
    std::string html =
        "<div class=\"scroll\" role=\"region\" tabindex=\"0\" aria-label=\"Ranking of ConnectBestAP\">"
        "<table class=\"plain\"><caption>The ranking of ConnectBestAP: the lowest score is asked for "
        "first</caption><thead><tr><th scope=\"col\" class=\"n\">Order</th><th scope=\"col\">Profile</th>"
        "<th scope=\"col\">Network</th><th scope=\"col\" class=\"n\">Quality</th><th scope=\"col\" "
        "class=\"n\">Bonus</th>"
        "<th scope=\"col\" class=\"n\">Score</th></tr></thead><tbody>\n";
    for (const CandidateFacts& candidate : candidates)
        html += "<tr><td class=\"n\">" + std::to_string(candidate.order) + "</td><th scope=\"row\"><bdi>" +
                EscapeHtml(VisibleText(candidate.profile)) + "</bdi></th><td>" + SsidHtml(candidate.ssid) +
                "</td><td class=\"n\">" + std::to_string(candidate.quality) + "</td><td class=\"n\">+" +
                std::to_string(candidate.bonus) + "</td><td class=\"n\">" + std::to_string(candidate.score) +
                "</td></tr>\n";
    return html + "</tbody></table></div>\n";
}

/// What could not be found out and what to do about it; empty where nothing is missing.
std::string MissingParts(const ReportFacts& report)
{
    std::string html;
    std::set<std::string> shown;
    for (const MissingPart& missing : report.missing)
    {
        const FailureReport& failure = missing.failure;
        html += "<li><b>" + UpperFirst(missing.part) + ":</b> " + EscapeHtml(failure.message) + ".";
        // Several parts may have the same cause: its advice is shown once.
        if (!failure.advice.empty() && shown.insert(failure.advice).second)
            html += "<br><span class=\"advice\">What to do: " + EscapeHtml(failure.advice) + ".</span>";
        html += "</li>\n";
    }
    if (html.empty())
        return html;
    return "<section class=\"missing\" aria-labelledby=\"missing\">"
           "<h2 id=\"missing\">This picture is not complete</h2>\n<ul>\n" +
           html + "</ul></section>\n";
}

/// The most important numbers.
std::string KeyFacts(const ReportFacts& report)
{
    std::string html;
    if (report.airKnown)
    {
        std::set<std::string> networks;
        std::size_t inView = 0;
        for (const AirAccessPoint& point : report.accessPoints)
        {
            inView += point.inView ? 1 : 0;
            networks.insert(point.inView ? point.facts.ssid.hex : "");
        }
        networks.erase("");
        html += KeyFact(std::to_string(inView), inView == 1 ? "access point in view" : "access points in view");
        html += KeyFact(std::to_string(networks.size()), networks.size() == 1 ? "named network" : "named networks");
        if (inView > 0)
            html += KeyFact(std::to_string(report.accessPoints.front().facts.rssi) + " dBm",
                            "strongest: " + SsidHtml(report.accessPoints.front().facts.ssid));
    }
    if (report.status && report.status->connection)
        html += KeyFact(std::to_string(report.status->connection->quality) + "%",
                        "link to " + SsidHtml(report.status->connection->ssid));
    else if (report.status)
        html += KeyFact("\xe2\x80\x93", EscapeHtml(report.status->adapter.stateText));
    return html.empty() ? html : "<ul class=\"keys\">\n" + html + "</ul>\n";
}

/// The rows of the table of the access points.
std::string AccessPointRows(const ReportFacts& report)
{
    std::string rows;
    for (const AirAccessPoint& point : report.accessPoints)
        rows += AccessPointRow(point);
    if (rows.empty())
        return "<tr><td colspan=\"10\">" +
               std::string(report.airKnown ? "No access point is in view."
                                           : "The access points in view are not known.") +
               "</td></tr>\n";
    return rows;
}

std::string AdapterItems(const ReportFacts& report)
{
    if (report.adapters.empty())
        return "<p>No adapter is known.</p>\n";
    std::string html = "<ul class=\"adapters\">\n";
    for (const AdapterFacts& adapter : report.adapters)
    {
        const bool isChosen = report.status && report.status->adapter.guid == adapter.guid;
        html += "<li><b>" + EscapeHtml(VisibleText(adapter.description)) + "</b> <span class=\"tag" +
                (adapter.stateText == "connected" ? "" : " quiet") + "\">" + EscapeHtml(adapter.stateText) + "</span>" +
                (isChosen && report.adapters.size() > 1 ? " <span class=\"tag\">this picture</span>" : "") +
                "<br><small class=\"mono\">" + EscapeHtml(adapter.guid) + "</small></li>\n";
    }
    return html + "</ul>\n";
}

std::string ConnectionItems(const ReportFacts& report)
{
    if (!report.status)
        return "<p>Not known.</p>\n";
    if (!report.status->connection)
        return "<p>There is no connection.</p>\n";
    const ConnectionFacts& connection = *report.status->connection;
    std::string html = "<dl>" + Named("Network", SsidHtml(connection.ssid));
    html += Named("Profile", "<bdi>" + EscapeHtml(VisibleText(connection.profile)) + "</bdi>");
    html += Named("Access point", "<span class=\"mono\">" + connection.bssid + "</span>");
    html += Named("Signal", std::to_string(connection.quality) + "%, " + OptionalNumber(connection.rssi, " dBm"));
    html += Named("Security", EscapeHtml(connection.security));
    html += Named("PHY", EscapeHtml(connection.phy));
    html += Named("Rates", "receive " + MegabitText(connection.receiveKbps) + ", transmit " +
                               MegabitText(connection.transmitKbps));
    return html + "</dl>\n";
}

std::string ProfileItems(const ReportFacts& report)
{
    if (report.profiles.empty())
        return "<p>No profile is stored.</p>\n";
    const std::string connected =
        report.status && report.status->connection ? report.status->connection->profile : std::string();
    std::string html = "<ol class=\"profiles\">\n";
    for (const ProfileFacts& profile : report.profiles)
    {
        const char* const mode = profile.mode == "auto"     ? "automatic"
                                 : profile.mode == "manual" ? "manual"
                                                            : "mode not known";
        html += "<li><bdi>" + EscapeHtml(VisibleText(profile.name)) + "</bdi> <span class=\"tag quiet\">" + mode +
                "</span>" + (profile.groupPolicy ? " <span class=\"tag quiet\">group policy</span>" : "") +
                (profile.name == connected ? " <span class=\"tag\">in use</span>" : "") + "</li>\n";
    }
    return html + "</ol>\n";
}

/// What the automatic methods would do.
std::string ChoiceTable(const ReportFacts& report)
{
    if (report.choices.empty())
        return "<p>Not known.</p>\n";
    std::string html =
        "<div class=\"scroll\" role=\"region\" tabindex=\"0\" aria-label=\"Automatic methods\">"
        "<table class=\"plain\"><caption>What each automatic method would do now; no request was sent to "
        "the service</caption><thead><tr><th scope=\"col\">Method</th><th scope=\"col\">Now</th>"
        "<th scope=\"col\">How it decides</th></tr></thead><tbody>\n";
    for (const ChoiceFacts& choice : report.choices)
        html += ChoiceRow(choice);
    html += "</tbody></table></div>\n";
    return report.candidates.empty() ? html : html + CandidateTable(report.candidates);
}

std::string SubtitleText(const ReportFacts& report)
{
    std::string text = report.status ? VisibleText(report.status->adapter.description) : std::string();
    if (!report.heardAt.empty())
        text += (text.empty() ? "" : " \xc2\xb7 ") + ("heard until " + report.heardAt);
    return EscapeHtml(text);
}

std::string SignalSection(const ReportFacts& report)
{
    if (report.history.samples.size() < 2)
        return {};
    return "<section aria-labelledby=\"signal\"><h2 id=\"signal\">Signal over time</h2>\n" + SignalPicture(report) +
           "</section>\n";
}

/// Everything that the page shows, as it may stand in a script element: in plain ASCII without any character that ends the
/// element or begins another.
std::string DataText(const ReportFacts& report)
{
    const std::string json = Describe(report).value().dump(-1, ' ', true, Json::error_handler_t::replace);
    std::string safe;
    for (const char c : json)
        if (c == '<' || c == '>' || c == '&')
            safe += "\\u00" + forms::HexText(std::string_view(&c, 1), forms::Letters::lower);
        else
            safe += c;
    return safe;
}

/// What identifies style and script to the page's policy. It follows from everything that was heard, so a person who chooses
/// one network's name cannot foretell it, and the same report is the same page.
std::string Nonce(const std::string& data)
{
    return std::to_string(std::hash<std::string>()(data));
}

} // namespace

std::string ReportPage(const ReportFacts& report)
{
    const std::string data = DataText(report);
    return FillTemplate(kPageTemplate, {{"title", EscapeHtml(report.title)},
                                        {"subtitle", SubtitleText(report)},
                                        {"style", kPageStyle},
                                        {"nonce", Nonce(data)},
                                        {"script", kPageScript},
                                        {"data", data},
                                        {"missing", MissingParts(report)},
                                        {"keys", KeyFacts(report)},
                                        {"spectrum", SpectrumPicture(report)},
                                        {"signal", SignalSection(report)},
                                        {"rows", AccessPointRows(report)},
                                        {"adapters", AdapterItems(report)},
                                        {"connection", ConnectionItems(report)},
                                        {"profiles", ProfileItems(report)},
                                        {"choices", ChoiceTable(report)}});
}

} // namespace calvix::host
