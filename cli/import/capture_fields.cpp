#include "import/capture_fields.h"

#include <algorithm>
#include <map>

namespace calvix::host
{

namespace
{

constexpr std::string_view kWideColon = "\xEF\xBC\x9A";

constexpr std::string_view kEnglishLabels =
    "|Interface name|Name|Description|GUID|Physical address|State|SSID|BSSID|AP BSSID|LinkID|Network type|Radio "
    "type|Authentication|Encryption|Cipher|Connection mode|Band|Channel|Channel Width|Receive rate (Mbps)|Transmit "
    "rate (Mbps)|Signal|Rssi|Profile|Radio status|";

constexpr std::string_view kUnusedLabels =
    "|Interface type|Primary interface|MLD AP BSSID|Connected Akm-cipher|Basic rates (Mbps)|Other rates (Mbps)|Hosted "
    "network status|Bss Load|Connected Stations|Channel Utilization|Medium Available Capacity|QoS MSCS Supported|QoS "
    "Map Supported|QoS MSCS Configured|QoS Map Configured|QoS Map Allowed by Policy|Hash-to-Element|Colocated "
    "APs|Primary Channel|Multi-Link|";

/// Labels that no other language shares with English.
constexpr std::string_view kOnlyEnglish = "|Interface name|Authentication|Physical address|Radio type|";

/// A no-break space in a name is as good as any other.
std::string PlainName(std::string_view name)
{
    std::string plain(Trim(name));
    for (std::size_t at = 0; (at = plain.find("\xC2\xA0", at)) != std::string::npos;)
        plain.replace(at, 2, " ");
    return plain;
}

CaptureField ReadField(std::string_view line, std::size_t number, bool beginsParagraph)
{
    const std::string_view text = Trim(line);
    const std::size_t wide = text.find(kWideColon);
    const std::size_t colon = std::min(text.find(':'), wide);
    CaptureField field;
    field.line = number;
    field.name = PlainName(text.substr(0, colon));
    field.hasColon = colon != std::string_view::npos;
    if (field.hasColon)
        field.value = Trim(text.substr(colon + (colon == wide ? kWideColon.size() : 1)));
    // Pages and terminals turn tabs into blanks.
    for (const char blank : line.substr(0, static_cast<std::size_t>(text.data() - line.data())))
        field.indent += blank == '\t' ? 8u : 1u;
    field.beginsParagraph = beginsParagraph;
    return field;
}

bool IsAmong(const CaptureField& field, std::string_view labels)
{
    return field.hasColon && labels.find("|" + field.name + "|") != std::string_view::npos;
}

} // namespace

std::vector<CaptureField> ReadFields(std::string_view text)
{
    std::vector<CaptureField> fields;
    bool isFirst = true;
    const std::vector<std::string_view> lines = LinesOf(text);
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        const bool isBlank = Trim(lines[i]).empty();
        if (!isBlank)
            fields.push_back(ReadField(lines[i], i + 1, isFirst));
        isFirst = isBlank;
    }
    return fields;
}

bool IsForeign(CaptureFields fields)
{
    return std::none_of(fields.begin(), fields.end(),
                        [](const CaptureField& field) { return IsAmong(field, kOnlyEnglish); });
}

void LabelEnglish(CaptureFields fields)
{
    for (std::size_t i = 0; i < fields.size(); ++i)
    {
        CaptureField& field = fields[i];
        const bool continuesList = i > 0 && !field.hasColon && !field.beginsParagraph && IsNumberList(field.name) &&
                                   IsNumberList(fields[i - 1].hasColon ? fields[i - 1].value : fields[i - 1].name);
        if (!field.key.empty())
            continue;
        if (continuesList || IsAmong(field, kUnusedLabels))
            field.key = kUnused;
        else if (IsAmong(field, kEnglishLabels))
            field.key = field.name;
    }
}

void Label(CaptureFields fields, std::size_t index, std::initializer_list<const char*> keys)
{
    for (const char* key : keys)
    {
        if (index < fields.size() && fields[index].hasColon && fields[index].key.empty())
            fields[index].key = key;
        ++index;
    }
}

const CaptureField* CaptureRecord::Find(std::string_view key) const
{
    const auto found =
        std::find_if(fields.begin(), fields.end(), [&](const CaptureField& field) { return field.key == key; });
    return found == fields.end() ? nullptr : &*found;
}

const CaptureField& CaptureRecord::Need(std::string_view key) const
{
    if (const CaptureField* field = Find(key))
        return *field;
    throw LineError(fields.front().line, title + " has no \"" + std::string(key) + "\"");
}

void CaptureRecord::WarnOfTwice(CaptureWarnings& warnings) const
{
    for (const CaptureField& field : fields)
        if (const CaptureField* first = Find(field.key);
            !field.key.empty() && field.key != kUnused && field.key != "LinkID" && first != &field)
            return warnings.Warn(field.line, "\"" + field.name + "\" is given twice for " + title + ", first in line " +
                                                 std::to_string(first->line) + "; only what comes first is used");
}

void WarnOfUnknown(CaptureFields fields, CaptureWarnings& warnings)
{
    std::map<std::string_view, std::size_t> counts;
    for (const CaptureField& field : fields)
        counts[field.name] += field.key.empty() ? 1u : 0u;
    for (const CaptureField& field : fields)
    {
        std::size_t& count = counts[field.name];
        if (!field.key.empty() || count == 0)
            continue;
        warnings.Warn(field.line,
                      "\"" + field.Text() + "\" is not understood and left out" +
                          (count > 1 ? " (and so are " + std::to_string(count - 1) + " more such lines)" : ""));
        count = 0;
    }
}

void WarnOfCut(const CaptureField* announcement, std::size_t count, const char* what, CaptureWarnings& warnings)
{
    const int announced = announcement != nullptr ? FirstNumber(announcement->Text()) : 0;
    if (announced > 0 && count < static_cast<std::size_t>(announced))
        warnings.Warn(announcement->line, "this announces " + std::to_string(announced) + " " + what + ", but only " +
                                              std::to_string(count) + " follow: the capture is cut off");
}

} // namespace calvix::host
