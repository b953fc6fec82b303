#include "import/netsh_networks.h"

#include "import/capture_terms.h"
#include "import/capture_text.h"
#include "import/field_roles.h"
#include "import/misread_text.h"

#include <algorithm>
#include <optional>

namespace calvix::host
{

namespace
{

struct NetworkRecord
{
    CaptureField start; ///< "SSID n : name"
    simulation::Bytes ssid;
    CaptureRecord fields;
    std::vector<std::pair<simulation::MacAddress, CaptureRecord>> accessPoints;
};

/// What one adapter heard: "There are n networks", then the networks.
struct Listing
{
    std::optional<CaptureField> announcement;
    std::vector<NetworkRecord> networks;
};

std::string NetworkTitle(const std::string& ssid)
{
    return ssid.empty() ? "this network without a name" : "the network \"" + ssid + "\"";
}

/// Sorts the lines by what they belong to. Only "SSID n" and "BSSID n" give the capture its structure, and those are the
/// same in every language of the system.
class NetworksReader
{
public:
    explicit NetworksReader(bool foreign) : m_foreign(foreign) {}

    void Read(CaptureField& field)
    {
        if (IsNumbered(field.name, "SSID"))
            BeginNetwork(field);
        else if (IsNumbered(field.name, "BSSID"))
            BeginAccessPoint(field);
        else if (!field.hasColon)
            ReadSentence(field);
        else if (SameWord(field.Key(), "Interface name"))
            BeginAdapter(field);
        else if (m_current != nullptr)
            m_current->Add(field);
    }

    std::vector<std::string> adapterNames;
    std::vector<Listing> listings;

private:
    void BeginAdapter(const CaptureField& field)
    {
        adapterNames.push_back(field.value);
        listings.emplace_back();
        m_current = nullptr;
    }

    Listing& CurrentListing()
    {
        if (listings.empty())
            listings.emplace_back();
        return listings.back();
    }

    /// What an English capture says between its fields is damage; nobody knows what other languages say there.
    void ReadSentence(CaptureField& field)
    {
        field.understood = m_current == nullptr;
        if (m_current != nullptr && m_foreign)
            return;
        if (m_current != nullptr)
            throw LineError(field.line, "\"" + field.name + "\" has no value");
        if (FirstNumber(field.name) < 0)
            throw LineError(field.line, "\"" + field.name + "\" is no line of a list of networks");
        CurrentListing().announcement = field;
    }

    void BeginNetwork(const CaptureField& field)
    {
        if (!field.hasColon)
            throw LineError(field.line, "\"" + field.name + "\" has no value");
        std::vector<NetworkRecord>& networks = CurrentListing().networks;
        networks.push_back({field, Ssid(field), CaptureRecord(NetworkTitle(field.value), field.line), {}});
        m_current = &networks.back().fields;
    }

    void BeginAccessPoint(const CaptureField& field)
    {
        if (m_current == nullptr)
            throw LineError(field.line, "a BSSID before any SSID");
        auto& accessPoints = listings.back().networks.back().accessPoints;
        const simulation::MacAddress address = Address(field);
        accessPoints.emplace_back(address, CaptureRecord("the access point " + field.value, field.line));
        m_current = &accessPoints.back().second;
    }

    bool m_foreign;
    CaptureRecord* m_current = nullptr; ///< what the next field belongs to
};

std::uint32_t BssTypeOf(const NetworkRecord& record, const Vocabulary& vocabulary, const CaptureReport& report)
{
    const CaptureField& field = record.fields.Need("Network type");
    try
    {
        return BssType(field, vocabulary);
    }
    catch (const UnknownWord& unknown)
    {
        report(field.line, std::string(unknown.what()) + "; it is taken for infrastructure");
        return 1;
    }
}

CapturedNetwork Interpret(const NetworkRecord& record, const Vocabulary& vocabulary, const CaptureReport& report)
{
    simulation::AccessPoint common;
    common.ssid = record.ssid;
    common.hidden = record.ssid.empty();
    common.bssType = BssTypeOf(record, vocabulary, report);
    const NetworkSecurity security =
        Security(record.fields.Need("Authentication"), record.fields.Need("Encryption"), vocabulary);
    common.authentication = security.authentication;
    common.encryption = security.encryption;
    CapturedNetwork network{record.start.value, {}};
    for (const auto& [address, fields] : record.accessPoints)
    {
        network.accessPoints.push_back(common);
        network.accessPoints.back().bssid = address;
        Hear(fields, network.accessPoints.back());
    }
    return network;
}

/// A list that is shorter than it says was cut off.
void CheckCount(const Listing& listing)
{
    const int announced = listing.announcement ? FirstNumber(listing.announcement->name) : 0;
    if (listing.networks.size() < static_cast<std::size_t>(announced))
        throw LineError(listing.announcement->line,
                        "this announces " + std::to_string(announced) + " networks, but only " +
                            std::to_string(listing.networks.size()) + " follow: the capture is cut off");
}

void Append(NetworksCapture& capture, const Listing& listing, const Vocabulary& vocabulary)
{
    const CaptureReport report = [&capture](std::size_t line, const std::string& what)
    { capture.warnings.push_back(capture.source + ":" + std::to_string(line) + ": " + what); };
    for (const NetworkRecord& record : listing.networks)
    {
        const std::string title = NetworkTitle(record.start.value);
        try
        {
            capture.networks.push_back(Interpret(record, vocabulary, report));
            ReportMisread(record.start.value, record.start.line, report);
        }
        catch (const UnknownWord& unknown)
        {
            report(unknown.line(), std::string(unknown.what()) + "; " + title + " is left out");
        }
        if (record.accessPoints.empty())
            report(record.start.line, title + " is listed without access points and left out");
    }
    CheckCount(listing);
}

/// Without "mode=bssid" the same command lists no access points at all.
void CheckAccessPoints(const NetworksReader& reader)
{
    const NetworkRecord* first = nullptr;
    for (const Listing& listing : reader.listings)
        for (const NetworkRecord& record : listing.networks)
        {
            if (!record.accessPoints.empty())
                return;
            first = first == nullptr ? &record : first;
        }
    if (first != nullptr)
        throw LineError(first->start.line,
                        "no network has a BSSID: capture with \"netsh wlan show networks mode=bssid\"");
}

} // namespace

bool LooksLikeNetworks(std::string_view text)
{
    const std::vector<CaptureField> fields = ReadFields(text);
    const bool hasNone = fields.size() == 2 && fields[0].hasColon && !fields[0].value.empty() &&
                         FirstNumber(FieldText(fields[1])) == 0 && fields[1].value.size() <= 2;
    return hasNone || std::any_of(fields.begin(), fields.end(),
                                  [](const CaptureField& field)
                                  {
                                      return IsNumbered(field.name, "SSID") || IsNumbered(field.name, "BSSID") ||
                                             field.name.ends_with("networks currently visible.");
                                  });
}

NetworksCapture ParseNetworks(std::string_view text, const std::string& source, const ExplainedWords& explained)
{
    return ReadingFrom(source,
                       [&]
                       {
                           if (!LooksLikeNetworks(text))
                               throw LineError(1, "this is no output of \"netsh wlan show networks mode=bssid\"");
                           std::vector<CaptureField> fields = ReadFields(text);
                           const Vocabulary vocabulary{RecogniseNetworkLines(fields), explained};
                           NetworksReader reader(vocabulary.foreign);
                           for (CaptureField& field : fields)
                               reader.Read(field);
                           NetworksCapture capture;
                           capture.source = source;
                           capture.adapterNames = std::move(reader.adapterNames);
                           for (const Listing& listing : reader.listings)
                               Append(capture, listing, vocabulary);
                           CheckAccessPoints(reader);
                           const std::vector<std::string> others = NotUnderstood(fields, source);
                           capture.warnings.insert(capture.warnings.end(), others.begin(), others.end());
                           return capture;
                       });
}

} // namespace calvix::host
