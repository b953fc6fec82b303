#include "report/spectrum_picture.h"

#include "report/html_text.h"
#include "report/picture_labels.h"
#include "report/spectrum.h"
#include "view/describe.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

constexpr unsigned kColours = 10;
constexpr double kPanelHeight = 300;
constexpr double kBelow = 40; ///< for the channel numbers
constexpr double kAbove = 26;
constexpr double kBefore = 44; ///< for the dBm
constexpr double kBehind = 14;

/// Where frequencies and signals lie in a panel.
struct PanelScale
{
    const SpectrumBand& band;
    double width;

    double X(double mhz) const
    {
        return kBefore + (mhz - band.firstMhz) / (band.lastMhz - band.firstMhz) * (width - kBefore - kBehind);
    }
    static double Y(long dbm)
    {
        const long shown = std::clamp(dbm, kWeakestShown, kStrongestShown);
        const auto part = static_cast<double>(kStrongestShown - shown) / (kStrongestShown - kWeakestShown);
        return kAbove + part * (Bottom() - kAbove);
    }
    static double Bottom() { return kPanelHeight - kBelow; }
};

double WidthOf(const SpectrumBand& band)
{
    const unsigned span = band.lastMhz - band.firstMhz;
    return span < 200 ? 520 : span < 1000 ? 740 : 1280;
}

std::string Attribute(const char* name, double value)
{
    return std::string(" ") + name + "=\"" + DecimalText(value) + "\"";
}

std::string Line(const char* kind, double x1, double y1, double x2, double y2)
{
    return std::string("<line class=\"") + kind + "\"" + Attribute("x1", x1) + Attribute("y1", y1) +
           Attribute("x2", x2) + Attribute("y2", y2) + "/>";
}

std::string Text(const char* kind, double x, double y, const std::string& text)
{
    return std::string("<text class=\"") + kind + "\"" + Attribute("x", x) + Attribute("y", y) + ">" +
           EscapeHtml(text) + "</text>";
}

std::string SignalGrid(const PanelScale& scale)
{
    std::string svg;
    for (long dbm = kWeakestShown; dbm <= kStrongestShown; dbm += 10)
    {
        const double y = PanelScale::Y(dbm);
        svg += Line(dbm == kWeakestShown ? "axis" : "grid", kBefore, y, scale.width - kBehind, y);
        if (dbm % 20 == 0)
            svg += Text("dbm", kBefore - 8, y + 4, std::to_string(dbm));
    }
    return svg + Text("unit", kBefore - 8, kAbove - 10, "dBm");
}

std::string ChannelGrid(const PanelScale& scale)
{
    std::string svg;
    for (const unsigned channel : scale.band.channels)
    {
        const double x = scale.X(CentreMhz(scale.band, channel));
        svg += Line("tick", x, PanelScale::Bottom(), x, PanelScale::Bottom() + 5);
        svg += Text("channel", x, PanelScale::Bottom() + 18, std::to_string(channel));
    }
    return svg + Text("axisname", (kBefore + scale.width - kBehind) / 2, kPanelHeight - 6, "Channel");
}

/// An arch from side to side of the channel, its top level where the signal is.
std::string ArchPath(double left, double right, double top, double bottom)
{
    const double width = right - left;
    const double middle = left + width / 2;
    const auto point = [](double x, double y) { return DecimalText(x) + "," + DecimalText(y); };
    return "M" + point(left, bottom) + "C" + point(left + width * 0.06, top) + " " + point(left + width * 0.22, top) +
           " " + point(middle, top) + "C" + point(right - width * 0.22, top) + " " + point(right - width * 0.06, top) +
           " " + point(right, bottom) + "Z";
}

std::string LabelOf(const AirAccessPoint& point)
{
    constexpr std::size_t longest = 20;
    const std::string name = Shortened(SsidName(point.facts.ssid), longest);
    return point.inUse ? "\xe2\x97\x8f " + name : name;
}

/// The label, and a line to the top of the arch if the label is far from it.
std::string Label(const AirAccessPoint& point, double x, double y, LabelPlacing& placing)
{
    const std::string text = LabelOf(point);
    const LabelPlace place = placing.Place(x, y, LabelWidth(text));
    std::string svg;
    if (place.y < y - LabelPlacing::kLineHeight)
        svg += Line("leader", x, y - 2, place.x, place.y + 3);
    return svg + Text("name", place.x, place.y, text);
}

std::string Arch(const AirAccessPoint& point, const PanelScale& scale, LabelPlacing& placing, bool first)
{
    // A frequency outside the band is drawn at its edge.
    const double centre = std::clamp(static_cast<double>(point.beacon.centreKhz) / 1000,
                                     static_cast<double>(scale.band.firstMhz), static_cast<double>(scale.band.lastMhz));
    const double half = point.beacon.widthMhz / 2.0;
    const double x = scale.X(centre);
    const double y = PanelScale::Y(point.facts.rssi);
    const std::string number = std::to_string(point.number);
    std::string svg = "<g class=\"ap " + ColourClass(point) + (point.inUse ? " used" : "") +
                      (point.inView ? "" : " off") + "\" id=\"arch-" + number + "\" data-ap=\"" + number +
                      "\" role=\"img\" tabindex=\"" + (first ? "0" : "-1") + "\" aria-label=\"" +
                      EscapeHtml(InWords(point)) + "\">";
    svg += "<path d=\"" + ArchPath(scale.X(centre - half), scale.X(centre + half), y, PanelScale::Bottom()) + "\"/>";
    return svg + Label(point, x, y, placing) + "</g>";
}

std::vector<const AirAccessPoint*> InBand(const ReportFacts& report, const SpectrumBand& band)
{
    std::vector<const AirAccessPoint*> points;
    for (const AirAccessPoint& point : report.accessPoints)
        if (point.facts.band == band.name)
            points.push_back(&point);
    return points;
}

/// The weaker arches are in front of the stronger ones, so that the pointer reaches each.
std::string Arches(const std::vector<const AirAccessPoint*>& points, const PanelScale& scale)
{
    LabelPlacing placing(kBefore, scale.width - 2, 2, PanelScale::Bottom() - 2);
    std::string svg;
    for (const AirAccessPoint* point : points)
        svg += Arch(*point, scale, placing, point == points.front()) + "\n";
    return svg;
}

std::string PanelId(const SpectrumBand& band)
{
    std::string id = "band-";
    for (const char c : std::string(band.name))
        if (c >= '0' && c <= '9')
            id += c;
    return id;
}

constexpr const char* kNothingHeard = "No access point is heard in this band.";

std::string Summary(const std::vector<const AirAccessPoint*>& points, const SpectrumBand& band)
{
    if (points.empty())
        return kNothingHeard;
    return std::string("Signal in dBm over the channels of the ") + band.name +
           " band: " + Counted(points.size(), "access point") + ". The strongest is " + InWords(*points.front()) +
           ". The table below holds the same in words.";
}

std::string Drawing(const std::vector<const AirAccessPoint*>& points, const SpectrumBand& band)
{
    const PanelScale scale{band, WidthOf(band)};
    const std::string id = PanelId(band);
    return "<div class=\"scroll\" role=\"region\" tabindex=\"0\" aria-label=\"" + std::string(band.name) +
           " spectrum\"><svg viewBox=\"0 0 " + DecimalText(scale.width) + " " + DecimalText(kPanelHeight) +
           "\" data-strongest=\"" + std::to_string(kStrongestShown) + "\" data-weakest=\"" +
           std::to_string(kWeakestShown) + "\" data-top=\"" + DecimalText(kAbove) + "\" data-bottom=\"" +
           DecimalText(PanelScale::Bottom()) + "\" role=\"group\" aria-labelledby=\"" + id + "-title " + id +
           "-desc\"><title id=\"" + id + "-title\">" + band.name + " band</title><desc id=\"" + id + "-desc\">" +
           EscapeHtml(Summary(points, band)) + "</desc>\n" + "<g aria-hidden=\"true\">" + SignalGrid(scale) +
           ChannelGrid(scale) + "</g>\n" + Arches(points, scale) +
           (points.empty() ? Text("nothing", scale.width / 2, kPanelHeight / 2, kNothingHeard) : "") + "</svg></div>";
}

/// The band that most computers hear nothing in takes less room then.
std::string Panel(const ReportFacts& report, const SpectrumBand& band)
{
    const std::vector<const AirAccessPoint*> points = InBand(report, band);
    const auto inView =
        std::count_if(points.begin(), points.end(), [](const AirAccessPoint* point) { return point->inView; });
    const bool isShort = points.empty() && WidthOf(band) > 1000;
    return "<figure class=\"panel " + PanelId(band) + (isShort ? " empty" : "") + "\"><figcaption><h3>" + band.name +
           " <span class=\"count\">" + std::to_string(inView) + "</span></h3></figcaption>\n" +
           (isShort ? "<p>" + std::string(kNothingHeard) + "</p>" : Drawing(points, band)) + "</figure>\n";
}

} // namespace

std::string InWords(const AirAccessPoint& point)
{
    return SsidName(point.facts.ssid) + ", " + point.facts.bssid + ", " + std::to_string(point.facts.rssi) +
           " dBm, channel " + std::to_string(point.facts.channel) + ", " + std::to_string(point.beacon.widthMhz) +
           " MHz wide, " + point.beacon.security + (point.inUse ? ", in use" : "") +
           (point.inView ? "" : ", not heard any more");
}

std::string ColourClass(const AirAccessPoint& point)
{
    return point.network ? "c" + std::to_string(*point.network % kColours) : "hidden-name";
}

std::string SpectrumPicture(const ReportFacts& report)
{
    if (!report.airKnown)
        return "<p class=\"unknown\">The access points in view are not known.</p>\n";
    std::string html =
        "<p class=\"hint\">Each arch is an access point: as wide as its channel, as high as its signal; "
        "\xe2\x97\x8f is the one in use. Point at one, tap it, or go from one to the next with the arrow "
        "keys.</p>\n<div class=\"panels\">\n";
    for (const SpectrumBand& band : SpectrumBands())
        html += Panel(report, band);
    return html + "</div>\n";
}

} // namespace calvix::host
