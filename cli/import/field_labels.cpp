#include "import/field_labels.h"

#include "import/capture_terms.h"
#include "import/field_roles.h"

#include <algorithm>
#include <array>
#include <map>

namespace calvix::host
{

namespace
{

constexpr std::array<std::string_view, 45> kEnglishLabels{
    "Interface name",
    "Name",
    "Description",
    "GUID",
    "Physical address",
    "Interface type",
    "Primary interface",
    "MLD AP BSSID",
    "LinkID",
    "State",
    "SSID",
    "BSSID",
    "AP BSSID",
    "Network type",
    "Radio type",
    "Authentication",
    "Encryption",
    "Cipher",
    "Connected Akm-cipher",
    "Connection mode",
    "Band",
    "Channel",
    "Basic rates (Mbps)",
    "Other rates (Mbps)",
    "Receive rate (Mbps)",
    "Transmit rate (Mbps)",
    "Signal",
    "Rssi",
    "Profile",
    "Radio status",
    "Hosted network status",
    "Bss Load",
    "Connected Stations",
    "Channel Utilization",
    "Medium Available Capacity",
    "QoS MSCS Supported",
    "QoS Map Supported",
    "QoS MSCS Configured",
    "QoS Map Configured",
    "QoS Map Allowed by Policy",
    "Hash-to-Element",
    "Colocated APs",
    "Primary Channel",
    "Channel Width",
    "Multi-Link",
};

} // namespace

bool HasEnglishLabel(const CaptureField& field)
{
    return field.hasColon && std::any_of(kEnglishLabels.begin(), kEnglishLabels.end(),
                                         [&](std::string_view label) { return SameWord(field.name, label); });
}

void JoinBrokenLists(std::vector<CaptureField>& fields)
{
    for (std::size_t i = 1; i < fields.size();)
    {
        CaptureField& before = fields[i - 1];
        const bool continues = !fields[i].hasColon && !fields[i].beginsParagraph && IsNumberList(fields[i].name) &&
                               before.hasColon && IsNumberList(before.value);
        if (continues)
        {
            before.value += " " + fields[i].name;
            fields.erase(fields.begin() + static_cast<std::ptrdiff_t>(i));
        }
        else
        {
            ++i;
        }
    }
}

std::vector<std::string> NotUnderstood(const std::vector<CaptureField>& fields, const std::string& source)
{
    std::map<std::string_view, std::size_t> counts;
    for (const CaptureField& field : fields)
        counts[field.name] += field.understood ? 0u : 1u;
    std::vector<std::string> warnings;
    for (const CaptureField& field : fields)
    {
        std::size_t& count = counts[field.name];
        if (field.understood || count == 0)
            continue;
        warnings.push_back(source + ":" + std::to_string(field.line) + ": \"" + FieldText(field) +
                           "\" is not understood and left out" +
                           (count > 1 ? " (and so are " + std::to_string(count - 1) + " more such lines)" : ""));
        count = 0;
    }
    return warnings;
}

} // namespace calvix::host
