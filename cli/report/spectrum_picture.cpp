#include "report/html_text.h"
#include "report/picture_parts.h"
#include "report/pictures.h"
#include "report/spectrum.h"
#include "view/describe.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

double WidthOf(const SpectrumBand& band)
{
    const unsigned span = band.lastMhz - band.firstMhz;
    return span < 200 ? 520 : span < 1000 ? 740 : 1280;
}

/// Where frequencies lie.
struct BandScale : SignalPanel
{
    explicit BandScale(const SpectrumBand& shown) : SignalPanel{WidthOf(shown)}, band(shown) {}

    const SpectrumBand& band;

    double XOf(double mhz) const { return X((mhz - band.firstMhz) / (band.lastMhz - band.firstMhz)); }
};

std::string ChannelAxes(const BandScale& scale)
{
    std::string svg = scale.SignalAxis();
    for (const unsigned channel : scale.band.channels)
        svg += BandScale::Tick(scale.XOf(CentreMhz(scale.band, channel)), std::to_string(channel));
    return svg + scale.AxisName("Channel");
}

/// "Lindenhof, 02:1A:..., -55 dBm, channel 36, 80 MHz wide": an access point in words.
std::string PointInWords(const AirAccessPoint& point)
{
    return SsidName(point.facts.ssid) + ", " + point.facts.bssid + ", " + std::to_string(point.facts.rssi) +
           " dBm, channel " + std::to_string(point.facts.channel) + ", " + std::to_string(point.beacon.widthMhz) +
           " MHz wide, " + point.beacon.security + (point.inUse ? ", in use" : "") +
           (point.inView ? "" : ", not heard any more");
}

/// An arch from side to side of the channel, its top level where the signal is.
std::string ArchPath(double left, double right, double top, double bottom)
{
    const double width = right - left;
    const double middle = left + width / 2;
    return "M" + PointText(left, bottom) + "C" + PointText(left + width * 0.06, top) + " " +
           PointText(left + width * 0.22, top) + " " + PointText(middle, top) + "C" +
           PointText(right - width * 0.22, top) + " " + PointText(right - width * 0.06, top) + " " +
           PointText(right, bottom) + "Z";
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
        svg += SvgLine("leader", x, y - 2, place.x, place.y + 3);
    return svg + SvgText("name", place.x, place.y, text);
}

std::string Arch(const AirAccessPoint& point, const BandScale& scale, LabelPlacing& placing, bool first)
{
    // A frequency outside the band is drawn at its edge.
    const double centre = std::clamp(static_cast<double>(point.beacon.centreKhz) / 1000,
                                     static_cast<double>(scale.band.firstMhz), static_cast<double>(scale.band.lastMhz));
    const double half = point.beacon.widthMhz / 2.0;
    const double x = scale.XOf(centre);
    const double y = BandScale::Y(point.facts.rssi);
    const std::string number = std::to_string(point.number);
    std::string svg = "<g class=\"ap " + ColourClass(point) + (point.inUse ? " used" : "") +
                      (point.inView ? "" : " off") + "\" id=\"arch-" + number + "\" data-ap=\"" + number +
                      "\" role=\"img\" tabindex=\"" + (first ? "0" : "-1") + "\" aria-label=\"" +
                      EscapeHtml(PointInWords(point)) + "\">";
    svg += "<path d=\"" + ArchPath(scale.XOf(centre - half), scale.XOf(centre + half), y, BandScale::kBottom) + "\"/>";
    return svg + Label(point, x, y, placing) + "</g>";
}

/// The weaker arches are in front of the stronger ones, so that the pointer reaches each.
std::string Arches(const std::vector<const AirAccessPoint*>& points, const BandScale& scale)
{
    LabelPlacing placing(BandScale::kLeft, scale.width - 2, 2, BandScale::kBottom - 2);
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
           " band: " + Counted(points.size(), "access point") + ". The strongest is " + PointInWords(*points.front()) +
           ". The table below holds the same in words.";
}

std::string Drawing(const std::vector<const AirAccessPoint*>& points, const SpectrumBand& band)
{
    const BandScale scale(band);
    const std::string id = PanelId(band);
    return "<div class=\"scroll\" role=\"region\" tabindex=\"0\" aria-label=\"" + std::string(band.name) +
           " spectrum\"><svg viewBox=\"0 0 " + DecimalText(scale.width) + " " + DecimalText(BandScale::kHeight) +
           "\" data-strongest=\"" + std::to_string(kStrongestShown) + "\" data-weakest=\"" +
           std::to_string(kWeakestShown) + "\" data-top=\"" + DecimalText(BandScale::kTop) + "\" data-bottom=\"" +
           DecimalText(BandScale::kBottom) + "\" role=\"group\" aria-labelledby=\"" + id + "-title " + id +
           "-desc\"><title id=\"" + id + "-title\">" + band.name + " band</title><desc id=\"" + id + "-desc\">" +
           EscapeHtml(Summary(points, band)) + "</desc>\n" + "<g aria-hidden=\"true\">" + ChannelAxes(scale) +
           "</g>\n" + Arches(points, scale) +
           (points.empty() ? SvgText("nothing", scale.width / 2, BandScale::kHeight / 2, kNothingHeard) : "") +
           "</svg></div>";
}

/// The band that most computers hear nothing in takes less room then.
std::string Panel(const ReportFacts& report, const SpectrumBand& band)
{
    const std::vector<const AirAccessPoint*> points = InBand(report.accessPoints, band);
    const auto inView =
        std::count_if(points.begin(), points.end(), [](const AirAccessPoint* point) { return point->inView; });
    const bool isShort = points.empty() && WidthOf(band) > 1000;
    return "<figure class=\"panel " + PanelId(band) + (isShort ? " empty" : "") + "\"><figcaption><h3>" + band.name +
           " <span class=\"count\">" + std::to_string(inView) + "</span></h3></figcaption>\n" +
           (isShort ? "<p>" + std::string(kNothingHeard) + "</p>" : Drawing(points, band)) + "</figure>\n";
}

} // namespace

std::string ColourClass(const AirAccessPoint& point)
{
    constexpr unsigned kColours = 10;
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
