#pragma once

#include <string>
#include <vector>

namespace calvix::host
{

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
