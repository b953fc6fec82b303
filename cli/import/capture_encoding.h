#pragma once

#include "import/capture_text.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace calvix::host
{

/// Turns the bytes of a capture into UTF-8. A byte order mark decides; then zero bytes, which only UTF-16 has; then whether
/// the text is UTF-8; else it is of a narrow code page, the one that the user names or the likeliest. `codePage`, where the
/// user names one, comes before UTF-8. Warns of what was guessed, and of bytes that the code page does not have. Throws
/// CaptureError for a code page that there is no converter for, and for ill-formed Unicode.
std::string DecodeCapture(std::string_view bytes, std::optional<std::uint32_t> codePage, CaptureWarnings& warnings);

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

/// What a text was before its UTF-8 was read in another code page: "Café" for "CafÃ©". Nothing for any other text.
std::optional<std::string> MisreadUtf8(std::string_view text);

/// Warns of an SSID that was misread, or of which characters were lost, before it came here. It is kept: what its bytes
/// were is a guess.
void WarnOfMisread(const std::string& ssid, std::size_t line, CaptureWarnings& warnings);

} // namespace calvix::host
