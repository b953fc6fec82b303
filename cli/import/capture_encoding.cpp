#include "import/capture_encoding.h"

#include "forms/utf8.h"
#include "output/text_forms.h"
#include "simulation/narrow_encoding.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

constexpr std::uint32_t kUtf8CodePage = 65001;
constexpr std::uint32_t kUtf16LittleCodePage = 1200;
constexpr std::uint32_t kUtf16BigCodePage = 1201;

bool HasOnlyAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char letter) { return static_cast<unsigned char>(letter) < 0x80; });
}

/// The code page of UTF-16 without a mark, 0 for any other text: the blanks and line ends of a capture have a zero byte,
/// which is the second or the first of the two.
std::uint32_t Utf16Without(std::string_view bytes)
{
    std::size_t zeros[2] = {0, 0};
    for (std::size_t i = 0; i < bytes.size(); ++i)
        zeros[i % 2] += bytes[i] == '\0' ? 1u : 0u;
    if ((zeros[0] + zeros[1]) * 4 < bytes.size() || bytes.empty())
        return 0;
    return zeros[1] >= zeros[0] ? kUtf16LittleCodePage : kUtf16BigCodePage;
}

std::string FromCodePage(std::string_view bytes, std::uint32_t codePage, CaptureWarnings& warnings)
{
    if (codePage == kUtf16LittleCodePage || codePage == kUtf16BigCodePage)
        return ReadingFrom(warnings.source, [&] { return FromUtf16(bytes, codePage == kUtf16BigCodePage); });
    NarrowText narrow = DecodeNarrowText(codePage, bytes);
    if (narrow.illFormedLine != 0)
        warnings.Warn(narrow.illFormedLine, "code page " + std::to_string(codePage) +
                                                " has no characters for some bytes of this line; they were replaced");
    return narrow.text;
}

bool CanReadCodePage(std::uint32_t codePage)
{
    return codePage == kUtf8CodePage || codePage == kUtf16LittleCodePage || codePage == kUtf16BigCodePage ||
           simulation::HasNarrowEncoding(codePage);
}

} // namespace

std::string DecodeCapture(std::string_view bytes, std::optional<std::uint32_t> codePage, CaptureWarnings& warnings)
{
    const std::string& source = warnings.source;
    if (codePage && !CanReadCodePage(*codePage))
        throw CaptureError(source + ": this computer cannot read code page " + std::to_string(*codePage));
    const bool hasMark = HasByteOrderMark(bytes);
    if (const std::uint32_t utf16 = hasMark ? 0 : Utf16Without(bytes); utf16 != 0)
        return FromCodePage(bytes, utf16, warnings);
    if (hasMark || codePage == kUtf8CodePage || (!codePage && forms::IsUtf8(bytes)))
        return ReadingFrom(source, [&] { return ToUtf8(bytes); });
    if (codePage)
        return FromCodePage(bytes, *codePage, warnings);
    const std::uint32_t likely = LikelyCodePage(bytes);
    if (likely == 0)
        throw CaptureError(source + ": this is not Unicode, and this computer has no converter for any other text");
    warnings.warnings.push_back(source + ": this is not Unicode and was read as code page " + std::to_string(likely) +
                                ", the most likely one; give another with --code-page");
    return FromCodePage(bytes, likely, warnings);
}

std::optional<std::string> MisreadUtf8(std::string_view text)
{
    for (const std::uint32_t codePage : {1252u, 850u, 437u})
    {
        if (HasOnlyAscii(text) || !simulation::HasNarrowEncoding(codePage))
            continue;
        bool replaced = false;
        std::string bytes = simulation::EncodeNarrow(codePage, Widen(text), '?', true, replaced);
        if (!replaced && !HasOnlyAscii(bytes) && forms::IsUtf8(bytes))
            return bytes;
    }
    return std::nullopt;
}

void WarnOfMisread(const std::string& ssid, std::size_t line, CaptureWarnings& warnings)
{
    constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
    if (ssid.find(kReplacement) != std::string::npos)
        warnings.Warn(line, "the SSID \"" + ssid + "\" has lost characters; it is kept as it is");
    else if (const std::optional<std::string> meant = MisreadUtf8(ssid))
        warnings.Warn(line, "the SSID \"" + ssid + "\" looks like \"" + *meant +
                                "\", read in the wrong code page; it is kept as it is");
}

} // namespace calvix::host
