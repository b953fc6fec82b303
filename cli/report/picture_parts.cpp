#include "report/picture_parts.h"

#include "forms/utf8.h"
#include "output/text_forms.h"
#include "report/html_text.h"
#include "report/spectrum.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

std::string Attribute(const char* name, double value)
{
    return std::string(" ") + name + "=\"" + DecimalText(value) + "\"";
}

} // namespace

std::string PointText(double x, double y)
{
    return DecimalText(x) + "," + DecimalText(y);
}

std::string SvgLine(const char* kind, double x1, double y1, double x2, double y2)
{
    return std::string("<line class=\"") + kind + "\"" + Attribute("x1", x1) + Attribute("y1", y1) +
           Attribute("x2", x2) + Attribute("y2", y2) + "/>";
}

std::string SvgText(const char* kind, double x, double y, const std::string& text)
{
    return std::string("<text class=\"") + kind + "\"" + Attribute("x", x) + Attribute("y", y) + ">" +
           EscapeHtml(text) + "</text>";
}

double SignalPanel::Y(long dbm)
{
    const long shown = std::clamp(dbm, kWeakestShown, kStrongestShown);
    const auto part = static_cast<double>(kStrongestShown - shown) / (kStrongestShown - kWeakestShown);
    return kTop + part * (kBottom - kTop);
}

std::string SignalPanel::SignalAxis() const
{
    std::string svg;
    for (long dbm = kWeakestShown; dbm <= kStrongestShown; dbm += 10)
    {
        svg += SvgLine(dbm == kWeakestShown ? "axis" : "grid", kLeft, Y(dbm), Right(), Y(dbm));
        if (dbm % 20 == 0)
            svg += SvgText("dbm", kLeft - 8, Y(dbm) + 4, std::to_string(dbm));
    }
    return svg + SvgText("unit", kLeft - 8, kTop - 10, "dBm");
}

std::string SignalPanel::Tick(double x, const std::string& text)
{
    return SvgLine("tick", x, kBottom, x, kBottom + 5) + SvgText("channel", x, kBottom + 18, text);
}

std::string SignalPanel::AxisName(const char* name) const
{
    return SvgText("axisname", X(0.5), kHeight - 6, name);
}

LabelPlacing::Box LabelPlacing::BoxAt(const LabelPlace& place, double width)
{
    return {place.x - width / 2, place.x + width / 2, place.y - kLineHeight + 3, place.y + 3};
}

bool LabelPlacing::IsFree(const Box& box) const
{
    if (box.top < m_top || box.bottom > m_bottom)
        return false;
    return std::none_of(m_taken.begin(), m_taken.end(),
                        [&box](const Box& taken) {
                            return box.left < taken.right && taken.left < box.right && box.top < taken.bottom &&
                                   taken.top < box.bottom;
                        });
}

LabelPlace LabelPlacing::Place(double x, double y, double width)
{
    constexpr double gap = 6;
    const double inside = (std::max)(m_left + width / 2, (std::min)(x, m_right - width / 2));
    const auto placeAt = [&](int linesAbove) { return LabelPlace{inside, y - gap - linesAbove * kLineHeight}; };
    constexpr int nearestFirst[] = {0, 1, 2, 3, 4, 5, -1, -2, -3, -4};
    const auto* const free = std::find_if(std::begin(nearestFirst), std::end(nearestFirst),
                                          [&](int lines) { return IsFree(BoxAt(placeAt(lines), width)); });
    const LabelPlace place = placeAt(free != std::end(nearestFirst) ? *free : 0);
    m_taken.push_back(BoxAt(place, width));
    return place;
}

std::string Shortened(const std::string& utf8, std::size_t columns)
{
    if (DisplayWidth(utf8) <= columns)
        return utf8;
    std::size_t kept = 0;
    for (std::size_t next = 0; DisplayWidth(utf8.substr(0, next)) < columns; forms::NextCharacter(utf8, next))
        kept = next;
    return utf8.substr(0, kept) + "\xe2\x80\xa6";
}

double LabelWidth(const std::string& utf8)
{
    constexpr double perColumn = 7.2;
    return static_cast<double>(DisplayWidth(utf8)) * perColumn + 4;
}

} // namespace calvix::host
