#include "import/capture_encoding.h"

#include "forms/utf8.h"
#include "import/capture_text.h"
#include "import/code_page_guess.h"
#include "simulation/narrow_encoding.h"

namespace calvix::host
{

namespace
{

constexpr std::uint32_t kUtf8CodePage = 65001;
constexpr std::uint32_t kUtf16LittleCodePage = 1200;
constexpr std::uint32_t kUtf16BigCodePage = 1201;

bool HasMark(std::string_view bytes)
{
    return bytes.starts_with("\xEF\xBB\xBF") || bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
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

DecodedCapture Decoded(std::string_view bytes, const std::string& source, std::uint32_t codePage)
{
    DecodedCapture capture;
    if (codePage == kUtf16LittleCodePage || codePage == kUtf16BigCodePage)
    {
        capture.text = ReadingFrom(source, [&] { return FromUtf16(bytes, codePage == kUtf16BigCodePage); });
        return capture;
    }
    NarrowText narrow = DecodeNarrowText(codePage, bytes);
    capture.text = std::move(narrow.text);
    if (narrow.illFormedLine != 0)
        capture.warnings.push_back(source + ":" + std::to_string(narrow.illFormedLine) + ": code page " +
                                   std::to_string(codePage) +
                                   " has no characters for some bytes of this line; they were replaced");
    return capture;
}

} // namespace

bool CanReadCodePage(std::uint32_t codePage)
{
    return codePage == kUtf8CodePage || codePage == kUtf16LittleCodePage || codePage == kUtf16BigCodePage ||
           simulation::HasNarrowEncoding(codePage);
}

DecodedCapture DecodeCapture(std::string_view bytes, const std::string& source, std::optional<std::uint32_t> codePage)
{
    if (codePage && !CanReadCodePage(*codePage))
        throw CaptureError(source + ": this computer cannot read code page " + std::to_string(*codePage));
    const std::uint32_t utf16 = HasMark(bytes) ? 0 : Utf16Without(bytes);
    if (utf16 != 0)
        return Decoded(bytes, source, utf16);
    const bool isNamed = codePage && *codePage != kUtf8CodePage;
    if (HasMark(bytes) || codePage == kUtf8CodePage || (!isNamed && forms::IsUtf8(bytes)))
        return {ReadingFrom(source, [&] { return ToUtf8(bytes); }), {}};
    if (isNamed)
        return Decoded(bytes, source, *codePage);
    const std::uint32_t likely = LikelyCodePage(bytes);
    if (likely == 0)
        throw CaptureError(source + ": this is not Unicode, and this computer has no converter for any other text");
    DecodedCapture capture = Decoded(bytes, source, likely);
    capture.warnings.insert(capture.warnings.begin(), source + ": this is not Unicode and was read as code page " +
                                                          std::to_string(likely) +
                                                          ", the likeliest; name another with --code-page");
    return capture;
}

} // namespace calvix::host
