#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace calvix::host
{

/// A text of a narrow code page, in UTF-8.
struct NarrowText
{
    std::string text;
    std::size_t illFormedLine = 0; ///< the first with bytes that the code page does not have, 0: none
};

/// Decodes line by line. The converter must know the code page.
NarrowText DecodeNarrowText(std::uint32_t codePage, std::string_view bytes);

/// The code page, of those that versions of Windows print and redirect in, in which a capture makes the best sense: letters
/// of one script in each word, capitals only where words begin, and the characters that the tool's lines are made of. What
/// follows "SSID" counts only where nothing else has characters beyond ASCII, because it can be anything.
std::uint32_t LikelyCodePage(std::string_view bytes);

} // namespace calvix::host
