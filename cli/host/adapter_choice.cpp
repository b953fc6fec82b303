#include "host/adapter_choice.h"

#include <algorithm>
#include <cctype>

namespace calvix::host
{

bool SameGuidText(std::string_view left, std::string_view right)
{
    const auto letters = [](std::string_view text)
    {
        std::string kept;
        for (const char c : text)
            if (c != '{' && c != '}')
                kept += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        return kept;
    };
    return letters(left) == letters(right);
}

std::optional<std::size_t> PlaceOf(const std::string& text, std::size_t count)
{
    const bool digits = std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (text.empty() || text.size() > 3 || !digits)
        return std::nullopt;
    const auto number = static_cast<std::size_t>(std::stoul(text));
    return number >= 1 && number <= count ? std::optional(number - 1) : std::nullopt;
}

} // namespace calvix::host
