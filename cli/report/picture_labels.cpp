#include "report/picture_labels.h"

#include "output/text_forms.h"

#include <algorithm>

namespace calvix::host
{

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
    constexpr int furthestAbove = 5;
    constexpr int furthestBelow = -4;
    const double inside = (std::max)(m_left + width / 2, (std::min)(x, m_right - width / 2));
    const LabelPlace rightAbove{inside, y - gap};
    const auto isFree = [&](int lines) { return IsFree(BoxAt({inside, rightAbove.y - lines * kLineHeight}, width)); };
    int lines = 0;
    while (lines <= furthestAbove && !isFree(lines))
        ++lines;
    if (lines > furthestAbove)
    {
        lines = -1;
        while (lines >= furthestBelow && !isFree(lines))
            --lines;
    }
    const bool isFound = lines >= furthestBelow;
    const LabelPlace place{inside, isFound ? rightAbove.y - lines * kLineHeight : rightAbove.y};
    m_taken.push_back(BoxAt(place, width));
    return place;
}

std::string Shortened(const std::string& utf8, std::size_t columns)
{
    if (DisplayWidth(utf8) <= columns)
        return utf8;
    std::string kept;
    for (std::size_t at = 0; at < utf8.size();)
    {
        std::size_t next = at + 1;
        while (next < utf8.size() && (static_cast<unsigned char>(utf8[next]) & 0xc0U) == 0x80U)
            ++next;
        if (DisplayWidth(utf8.substr(0, next)) >= columns)
            break;
        kept = utf8.substr(0, next);
        at = next;
    }
    return kept + "\xe2\x80\xa6";
}

double LabelWidth(const std::string& utf8)
{
    constexpr double perColumn = 7.2;
    return static_cast<double>(DisplayWidth(utf8)) * perColumn + 4;
}

} // namespace calvix::host
