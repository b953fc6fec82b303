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
/// same in every language of the system. A line that cannot be used costs itself, and what it begins.
class NetworksReader
{
public:
    explicit NetworksReader(CaptureReport report) : m_report(std::move(report)) {}

    void Read(CaptureField& field)
    {
        try
        {
            if (BeginsNetwork(field))
                BeginNetwork(field);
            else if (BeginsAccessPoint(field))
                BeginAccessPoint(field);
            else if (!field.hasColon)
                ReadSentence(field);
            else if (SameWord(field.Key(), "Interface name"))
                BeginAdapter(field);
            else if (m_current != nullptr)
                m_current->Add(field);
        }
        catch (const LineError& error)
        {
            m_report(error.line(), std::string(error.what()) + "; it is left out, and what follows of it");
            m_current = nullptr;
        }
    }

    std::vector<std::string> adapterNames;
    std::vector<Listing> listings;

private:
    void BeginAdapter(const CaptureField& field)
    {
        if (std::find(adapterNames.begin(), adapterNames.end(), field.value) == adapterNames.end())
            adapterNames.push_back(field.value);
        listings.emplace_back();
        m_network = nullptr;
        m_current = nullptr;
    }

    Listing& CurrentListing()
    {
        if (listings.empty())
            listings.emplace_back();
        return listings.back();
    }

    void ReadSentence(CaptureField& field)
    {
        field.understood = CurrentListing().networks.empty() && FirstNumber(field.name) >= 0;
        if (field.understood)
            CurrentListing().announcement = field;
    }

    void BeginNetwork(const CaptureField& field)
    {
        m_network = nullptr;
        if (!field.hasColon)
            throw LineError(field.line, "\"" + field.name + "\" has no value");
        NetworkRecord record{field, Ssid(field), CaptureRecord(NetworkTitle(field.value), field.line), {}};
        m_network = &CurrentListing().networks.emplace_back(std::move(record));
        m_current = &m_network->fields;
    }

    void BeginAccessPoint(const CaptureField& field)
    {
        if (m_network == nullptr)
            throw LineError(field.line, "a BSSID before any SSID");
        const simulation::MacAddress address = Address(field);
        CaptureRecord record("the access point " + field.value, field.line);
        m_current = &m_network->accessPoints.emplace_back(address, std::move(record)).second;
    }

    CaptureReport m_report;
    NetworkRecord* m_network = nullptr; ///< what the next access point belongs to; null: something left out
    CaptureRecord* m_current = nullptr; ///< what the next field belongs to
};

std::uint32_t BssTypeOf(const NetworkRecord& record, const Vocabulary& vocabulary, const CaptureReport& report)
{
    try
    {
        return BssType(record.fields.Need("Network type"), vocabulary);
    }
    catch (const LineError& error)
    {
        report(error.line(), std::string(error.what()) + "; it is taken for infrastructure");
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
        simulation::AccessPoint heard = common;
        heard.bssid = address;
        try
        {
            Hear(fields, heard);
            network.accessPoints.push_back(heard);
        }
        catch (const LineError& error)
        {
            report(error.line(), std::string(error.what()) + "; the access point is left out");
        }
    }
    return network;
}

/// A list that is shorter than it says was cut off.
void CheckCount(const Listing& listing, const CaptureReport& report)
{
    const int announced = listing.announcement ? FirstNumber(listing.announcement->name) : 0;
    if (listing.networks.size() < static_cast<std::size_t>(announced))
        report(listing.announcement->line, "this announces " + std::to_string(announced) + " networks, but only " +
                                               std::to_string(listing.networks.size()) +
                                               " follow: the capture is cut off");
}

void Append(NetworksCapture& capture, const Listing& listing, const Vocabulary& vocabulary, const CaptureReport& report)
{
    for (const NetworkRecord& record : listing.networks)
    {
        const std::string title = NetworkTitle(record.start.value);
        if (record.accessPoints.empty())
            report(record.start.line, title + " is listed without access points and left out");
        try
        {
            capture.networks.push_back(Interpret(record, vocabulary, report));
            ReportMisread(record.start.value, record.start.line, report);
        }
        catch (const LineError& error)
        {
            report(error.line(), std::string(error.what()) + "; " + title + " is left out");
        }
    }
    CheckCount(listing, report);
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

void RefuseUseless(const NetworksCapture& capture)
{
    const bool any = std::any_of(capture.networks.begin(), capture.networks.end(),
                                 [](const CapturedNetwork& network) { return !network.accessPoints.empty(); });
    if (!any && !capture.warnings.empty())
        throw CaptureError(capture.warnings.front());
}

bool LooksLikeNetworks(std::string_view text)
{
    const std::vector<CaptureField> fields = ReadFields(text);
    const bool hasNone = fields.size() == 2 && fields[0].hasColon && !fields[0].value.empty() &&
                         FirstNumber(FieldText(fields[1])) == 0 && fields[1].value.size() <= 2;
    return hasNone || std::any_of(fields.begin(), fields.end(),
                                  [](const CaptureField& field) {
                                      return BeginsNetwork(field) || BeginsAccessPoint(field) ||
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
                           NetworksCapture capture;
                           capture.source = source;
                           const CaptureReport report = ReportTo(capture);
                           NetworksReader reader(report);
                           for (CaptureField& field : fields)
                               if (!field.passedOver)
                                   reader.Read(field);
                           capture.adapterNames = std::move(reader.adapterNames);
                           for (const Listing& listing : reader.listings)
                               Append(capture, listing, vocabulary, report);
                           CheckAccessPoints(reader);
                           const std::vector<std::string> others = NotUnderstood(fields, source);
                           capture.warnings.insert(capture.warnings.end(), others.begin(), others.end());
                           RefuseUseless(capture);
                           return capture;
                       });
}

} // namespace calvix::host
