#include "import/misread_text.h"

#include "forms/utf8.h"
#include "output/text_forms.h"
#include "simulation/narrow_encoding.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>

namespace calvix::host
{

namespace
{

bool HasOnlyAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char letter) { return static_cast<unsigned char>(letter) < 0x80; });
}

} // namespace

std::optional<std::string> MisreadUtf8(std::string_view text)
{
    if (HasOnlyAscii(text))
        return std::nullopt;
    for (const std::uint32_t codePage : {1252u, 850u, 437u})
    {
        if (!simulation::HasNarrowEncoding(codePage))
            continue;
        bool replaced = false;
        std::string bytes = simulation::EncodeNarrow(codePage, Widen(text), '?', true, replaced);
        if (!replaced && !HasOnlyAscii(bytes) && forms::IsUtf8(bytes))
            return bytes;
    }
    return std::nullopt;
}

void ReportMisread(const std::string& ssid, std::size_t line, const CaptureReport& report)
{
    constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
    if (ssid.find(kReplacement) != std::string::npos)
        report(line, "characters of the SSID \"" + ssid + "\" are lost; it is kept as it is");
    else if (const std::optional<std::string> meant = MisreadUtf8(ssid))
        report(line, "the SSID \"" + ssid + "\" is kept as it is, but looks like \"" + *meant +
                         "\", read in the wrong code page");
}

} // namespace calvix::host
