#include "report/html_text.h"

#include "forms/xml_text.h"

#include <cmath>
#include <stdexcept>

namespace calvix::host
{

std::string EscapeHtml(std::string_view text)
{
    std::string allowed;
    for (const char c : text)
        if (static_cast<unsigned char>(c) >= 0x20 && c != 0x7f)
            allowed += c;
        else
            allowed += c == '\n' || c == '\t' ? " " : "\xef\xbf\xbd";
    return forms::EscapedXml(allowed);
}

std::string SsidName(const SsidFacts& ssid)
{
    return ssid.hex.empty() ? "(hidden)" : ssid.text;
}

std::string SsidHtml(const SsidFacts& ssid)
{
    if (ssid.hex.empty())
        return "<i>(hidden)</i>";
    return "<bdi class=\"ssid\">" + EscapeHtml(ssid.text) + "</bdi>";
}

std::string FillTemplate(std::string_view text, const std::map<std::string, std::string, std::less<>>& values)
{
    std::string filled;
    for (std::size_t at = 0;;)
    {
        const std::size_t begin = text.find("{{", at);
        filled += text.substr(at, begin == std::string_view::npos ? begin : begin - at);
        if (begin == std::string_view::npos)
            return filled;
        const std::size_t end = text.find("}}", begin);
        const auto value = values.find(text.substr(begin + 2, end - begin - 2));
        if (end == std::string_view::npos || value == values.end())
            throw std::logic_error("the page's template names a value that there is not");
        filled += value->second;
        at = end + 2;
    }
}

std::string DecimalText(double number)
{
    const long long tenths = std::llround(number * 10);
    const long long whole = tenths < 0 ? -tenths : tenths;
    std::string text = (tenths < 0 ? "-" : "") + std::to_string(whole / 10);
    if (whole % 10 != 0)
        text += "." + std::to_string(whole % 10);
    return text;
}

} // namespace calvix::host
