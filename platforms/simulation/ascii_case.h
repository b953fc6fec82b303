#pragma once

#include <algorithm>
#include <string_view>

namespace calvix::simulation
{

/// Whether two texts are the same but for the case of ASCII letters, as the platform compares its names and paths.
inline bool SameButForCase(std::string_view left, std::string_view right)
{
    const auto lower = [](char character)
    { return character >= 'A' && character <= 'Z' ? static_cast<char>(character + 32) : character; };
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [lower](char one, char other) { return lower(one) == lower(other); });
}

} // namespace calvix::simulation
