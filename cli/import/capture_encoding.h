#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace calvix::host
{

/// A capture's text in UTF-8.
struct DecodedCapture
{
    std::string text;
    std::vector<std::string> warnings; ///< which code page was guessed, and what it does not have
};

/// Turns the bytes of a capture into text. A byte order mark decides; then zero bytes, which only UTF-16 has; then whether
/// the text is UTF-8; else it is of a narrow code page, the one that the user names or the likeliest. `codePage`, where the
/// user names one, comes before UTF-8. `source` is what messages call the capture. Throws CaptureError for a code page that
/// there is no converter for, and for ill-formed Unicode.
DecodedCapture DecodeCapture(std::string_view bytes, const std::string& source, std::optional<std::uint32_t> codePage);

/// Whether this computer can read the code page.
bool CanReadCodePage(std::uint32_t codePage);

} // namespace calvix::host
