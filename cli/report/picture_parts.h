#pragma once

#include <string>
#include <vector>

namespace calvix::host
{

/// What the pictures of signals are made of, as SVG.

std::string PointText(double x, double y);
std::string SvgLine(const char* kind, double x1, double y1, double x2, double y2);
std::string SvgText(const char* kind, double x, double y, const std::string& text);

/// Signals in dBm by something else, which runs from left to right.
struct SignalPanel
{
    static constexpr double kHeight = 300;
    static constexpr double kLeft = 44; ///< before it, the dBm
    static constexpr double kTop = 30;
    static constexpr double kBottom = kHeight - 40; ///< below it, what runs from left to right

    double width;

    double Right() const { return width - 14; }
    /// Where a part of the way from left to right ends, 0 to 1.
    double X(double part) const { return kLeft + part * (Right() - kLeft); }
    static double Y(long dbm);

    std::string SignalAxis() const;
    /// A mark of the other axis.
    static std::string Tick(double x, const std::string& text);
    std::string AxisName(const char* name) const;
};

/// The place of a label: the middle of its text's base line.
struct LabelPlace
{
    double x = 0;
    double y = 0;
};

/// Finds room for labels, each near the point that it belongs to, so that none covers another.
class LabelPlacing
{
public:
    LabelPlacing(double left, double right, double top, double bottom)
        : m_left(left), m_right(right), m_top(top), m_bottom(bottom)
    {
    }

    /// A place for a label of this width above a point, else below it; the last resort is right above it.
    LabelPlace Place(double x, double y, double width);

    static constexpr double kLineHeight = 17;

private:
    struct Box
    {
        double left;
        double right;
        double top;
        double bottom;
    };
    static Box BoxAt(const LabelPlace& place, double width);
    bool IsFree(const Box& box) const;

    double m_left;
    double m_right;
    double m_top;
    double m_bottom;
    std::vector<Box> m_taken;
};

/// The text, cut to so many columns.
std::string Shortened(const std::string& utf8, std::size_t columns);

/// Roughly how wide a text is at the size of the labels.
double LabelWidth(const std::string& utf8);

} // namespace calvix::host
