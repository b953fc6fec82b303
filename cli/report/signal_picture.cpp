#include "report/html_text.h"
#include "report/picture_parts.h"
#include "report/pictures.h"
#include "view/describe.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

/// Where moments lie.
struct TimeScale : SignalPanel
{
    explicit TimeScale(unsigned lastSecond) : SignalPanel{1280}, last(lastSecond) {}

    unsigned last;

    double XOf(unsigned second) const { return X(static_cast<double>(second) / (std::max)(last, 1U)); }
    /// Seconds between two marks of the time axis.
    unsigned Step() const
    {
        for (const unsigned step : {1U, 2U, 5U, 10U, 20U, 30U, 60U, 120U, 300U, 600U, 1800U})
            if (last / step <= 14)
                return step;
        return 3600;
    }
};

std::string TimeText(unsigned second)
{
    if (second < 60)
        return std::to_string(second) + " s";
    const std::string rest = std::to_string(second % 60);
    return std::to_string(second / 60) + ":" + (rest.size() < 2 ? "0" : "") + rest;
}

std::string TimeAxes(const TimeScale& scale)
{
    std::string svg = scale.SignalAxis();
    for (unsigned second = 0; second <= scale.last; second += scale.Step())
        svg += TimeScale::Tick(scale.XOf(second), TimeText(second));
    return svg + scale.AxisName("Time");
}

const AirAccessPoint* AccessPointOf(const ReportFacts& report, const std::string& bssid)
{
    for (const AirAccessPoint& point : report.accessPoints)
        if (point.facts.bssid == bssid)
            return &point;
    return nullptr;
}

/// The access points that the link has used, in order.
std::vector<std::string> UsedAccessPoints(const HistoryFacts& history)
{
    std::vector<std::string> used;
    for (const SignalSample& sample : history.samples)
        if (sample.link.connected && std::find(used.begin(), used.end(), sample.link.bssid) == used.end())
            used.push_back(sample.link.bssid);
    return used;
}

/// A line through the moments at which there is a value, broken where there is none.
class BrokenLine
{
public:
    void Add(const TimeScale& scale, unsigned second, std::optional<long> dbm)
    {
        if (dbm)
            m_path += (m_open ? "L" : "M") + PointText(scale.XOf(second), TimeScale::Y(*dbm));
        // A moment alone is a dot.
        if (dbm && !m_open)
            m_path += "h0.1";
        m_open = dbm.has_value();
    }
    std::string Draw(const std::string& kind) const
    {
        return m_path.empty() ? "" : "<path class=\"" + kind + "\" d=\"" + m_path + "\"/>";
    }

private:
    std::string m_path;
    bool m_open = false;
};

/// An access point that the link has used: the colour is its network's, as everywhere; the dashes are its own.
std::string LineClass(const ReportFacts& report, const std::string& bssid, std::size_t place)
{
    const AirAccessPoint* const point = AccessPointOf(report, bssid);
    return (point != nullptr ? ColourClass(*point) : "hidden-name") + " d" + std::to_string(place % 4);
}

/// How an access point that the link has used was heard all the time, and over it the link while it used the access point.
std::string
SignalLines(const HistoryFacts& history, const std::string& bssid, const std::string& kind, const TimeScale& scale)
{
    BrokenLine heard;
    BrokenLine link;
    for (const SignalSample& sample : history.samples)
    {
        const auto point = std::find_if(sample.air.begin(), sample.air.end(),
                                        [&bssid](const auto& each) { return each.first == bssid; });
        const bool isUsed = sample.link.connected && sample.link.bssid == bssid;
        heard.Add(scale, sample.second, point != sample.air.end() ? std::optional(point->second) : std::nullopt);
        link.Add(scale, sample.second, isUsed ? sample.link.rssi : std::nullopt);
    }
    return heard.Draw("heard " + kind) + link.Draw("link " + kind);
}

std::string EventWords(const LinkEvent& event)
{
    if (event.from.empty())
        return "connected to " + event.to;
    if (event.to.empty())
        return "connection to " + event.from + " lost";
    return "moved from " + event.from + " to " + event.to;
}

std::string EventMarks(const HistoryFacts& history, const TimeScale& scale)
{
    LabelPlacing placing(TimeScale::kLeft, scale.width - 4, 2, TimeScale::kBottom);
    std::string svg;
    for (const LinkEvent& event : history.events)
    {
        const double x = scale.XOf(event.second);
        const bool lost = event.to.empty();
        const char* const kind = lost ? "mark lost" : "mark";
        svg += SvgLine(kind, x, TimeScale::kTop - 6, x, TimeScale::kBottom);
        const std::string text = std::string(lost                 ? "\xe2\x9c\x95 lost"
                                             : event.from.empty() ? "\xe2\x97\x8f connected"
                                                                  : "\xe2\x97\x86 roam") +
                                 " " + TimeText(event.second);
        const LabelPlace place = placing.Place(x, TimeScale::kTop - 6, LabelWidth(text));
        svg += SvgText(lost ? "marked lost" : "marked", place.x, place.y, text);
    }
    return svg;
}

std::string NameAndAddress(const ReportFacts& report, const std::string& bssid)
{
    const AirAccessPoint* const point = AccessPointOf(report, bssid);
    if (point == nullptr)
        return bssid;
    return SsidName(point->facts.ssid) + ", " + bssid + ", channel " + std::to_string(point->facts.channel) + " (" +
           point->facts.band + ")";
}

std::string Legend(const ReportFacts& report, const std::vector<std::string>& used)
{
    std::string html = "<ul class=\"legend\">";
    for (std::size_t place = 0; place < used.size(); ++place)
        html += "<li><svg class=\"dashes\" viewBox=\"0 0 40 8\" aria-hidden=\"true\"><path class=\"heard " +
                LineClass(report, used[place], place) + "\" d=\"M0,4h40\"/></svg>" +
                EscapeHtml(NameAndAddress(report, used[place])) + "</li>";
    return html + "<li class=\"note\">dashed: as the last scan heard it; thick: the link</li></ul>\n";
}

std::string EventList(const HistoryFacts& history)
{
    if (history.events.empty())
        return "<p>The link stayed as it was.</p>\n";
    std::string html = "<ol class=\"events\">";
    for (const LinkEvent& event : history.events)
        html += "<li><b>" + TimeText(event.second) + "</b> " + EscapeHtml(EventWords(event)) + "</li>";
    return html + "</ol>\n";
}

} // namespace

std::string SignalPicture(const ReportFacts& report)
{
    const HistoryFacts& history = report.history;
    const TimeScale scale(history.samples.back().second);
    const std::vector<std::string> used = UsedAccessPoints(history);
    std::string lines;
    for (std::size_t place = 0; place < used.size(); ++place)
    {
        const std::string kind = LineClass(report, used[place], place);
        lines += SignalLines(history, used[place], kind, scale);
    }
    lines += EventMarks(history, scale);
    const std::string description = "Signal of the link in dBm over " + Counted(scale.last, "second") + ", with " +
                                    Counted(history.events.size(), "event") + ", which the list below names.";
    return "<figure class=\"panel time\"><div class=\"scroll\" role=\"region\" tabindex=\"0\" "
           "aria-label=\"Signal over time\"><svg viewBox=\"0 0 " +
           DecimalText(scale.width) + " " + DecimalText(TimeScale::kHeight) +
           "\" role=\"img\" aria-labelledby=\"time-title time-desc\"><title id=\"time-title\">Signal over time</title>"
           "<desc id=\"time-desc\">" +
           description + "</desc>\n" + TimeAxes(scale) + "\n" + lines + "\n</svg></div>\n<figcaption>" +
           Legend(report, used) + "</figcaption></figure>\n" + EventList(history);
}

} // namespace calvix::host
