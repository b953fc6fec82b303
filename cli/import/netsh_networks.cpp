#include "import/capture_encoding.h"
#include "import/capture_fields.h"
#include "import/capture_values.h"
#include "import/read_capture.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

/// For "SSID 12" and the keyword "SSID": true.
bool IsNumbered(std::string_view name, std::string_view keyword)
{
    return name.starts_with(keyword) && name.size() > keyword.size() && name[keyword.size()] == ' ' &&
           WholeNumber(Trim(name.substr(keyword.size()))) >= 0;
}

/// "SSID n" and "BSSID n", which are never translated. German systems print "BSSIDD n" as well.
bool BeginsNetwork(const CaptureField& field)
{
    return IsNumbered(field.name, "SSID");
}

bool BeginsAccessPoint(const CaptureField& field)
{
    return IsNumbered(field.name, "BSSID") || IsNumbered(field.name, "BSSIDD");
}

bool BeginsEither(const CaptureField& field)
{
    return BeginsNetwork(field) || BeginsAccessPoint(field);
}

/// Reads the lines from top to bottom. Only "SSID n" and "BSSID n" give a capture its structure.
class NetworksReader
{
public:
    NetworksReader(CaptureFields fields, const ExplainedWords& explained, NetworksCapture& capture)
        : m_fields(fields), m_vocabulary{IsForeign(fields), explained}, m_capture(capture)
    {
    }

    void Read()
    {
        const auto network = std::find_if(m_fields.begin(), m_fields.end(), BeginsNetwork);
        if (network != m_fields.end() && std::none_of(m_fields.begin(), m_fields.end(), BeginsAccessPoint))
            throw LineError(network->line,
                            "no network has a BSSID: capture with \"netsh wlan show networks mode=bssid\"");
        m_at = FirstHeader();
        while (m_at < m_fields.size())
        {
            const CaptureFields section = NextSection();
            if (BeginsNetwork(section.front()))
                ReadNetwork(section);
            else if (BeginsAccessPoint(section.front()))
                RefuseAccessPoint(section);
            else
                ReadHeader(section);
        }
        EndList();
        WarnOfUnknown(m_fields, m_capture);
    }

private:
    /// The adapter's name and the number of its networks stand above the first network. Above them is what the terminal
    /// showed: a prompt, a command line, a code page.
    std::size_t FirstHeader()
    {
        const auto first = std::find_if(m_fields.begin(), m_fields.end(), BeginsEither);
        const std::size_t at = static_cast<std::size_t>(first - m_fields.begin());
        if (at < 2 || !m_fields[at - 2].hasColon || FirstNumber(m_fields[at - 1].Text()) < 0)
            return 0;
        m_adapterLabel = m_fields[at - 2].name;
        return at - 2;
    }

    bool NamesAdapter(const CaptureField& field) const
    {
        return field.hasColon && (SameButForCase(field.name, "Interface name") || field.name == m_adapterLabel);
    }

    CaptureFields NextSection()
    {
        const std::size_t begin = m_at;
        do
            ++m_at;
        while (m_at < m_fields.size() && !BeginsEither(m_fields[m_at]) && !NamesAdapter(m_fields[m_at]));
        return m_fields.subspan(begin, m_at - begin);
    }

    /// The adapter's name, then how many networks there are. Some languages print that with a colon.
    void ReadHeader(CaptureFields section)
    {
        EndList();
        for (CaptureField& field : section)
            if (&field == &section.front() && field.hasColon && WholeNumber(field.value) < 0)
            {
                field.key = "Interface name";
                m_capture.AddAdapterName(field.value);
            }
            else if (m_announcement == nullptr && FirstNumber(field.Text()) >= 0)
            {
                field.key = kUnused;
                m_announcement = &field;
            }
    }

    /// Reads a network and its access points. Without "mode=bssid" the same command lists none at all.
    void ReadNetwork(CaptureFields section)
    {
        ++m_listed;
        CaptureField& start = section.front();
        start.key = kUnused;
        const std::string title =
            start.value.empty() ? "this network without a name" : "the network \"" + start.value + "\"";
        LabelEnglish(section);
        if (section.size() == 4 &&
            std::all_of(section.begin(), section.end(), [](auto& each) { return each.hasColon; }))
            Label(section, 1, {"Network type", "Authentication", "Encryption"});
        std::optional<simulation::AccessPoint> common;
        m_capture.OrWarn(title + " is left out", [&] { common = ReadCommon({title, section}); });
        if (m_at == m_fields.size() || !BeginsAccessPoint(m_fields[m_at]))
            m_capture.Warn(start.line, title + " is listed without access points and left out");
        while (m_at < m_fields.size() && BeginsAccessPoint(m_fields[m_at]))
            m_capture.OrWarn("the access point is left out", [&] { ReadAccessPoint(NextSection(), common); });
    }

    /// What the access points of a network have in common.
    simulation::AccessPoint ReadCommon(const CaptureRecord& record)
    {
        const CaptureField& start = record.fields.front();
        if (!start.hasColon)
            throw LineError(start.line, "\"" + start.name + "\" has no value");
        simulation::AccessPoint common;
        common.ssid = Ssid(start.value, start.line);
        common.hidden = common.ssid.empty();
        record.WarnOfTwice(m_capture);
        m_capture.OrWarn("infrastructure is assumed",
                         [&] { common.bssType = BssType(record.Need("Network type"), m_vocabulary); });
        ReadSecurity(record.Need("Authentication"), record.Need("Encryption"), m_vocabulary, common);
        WarnOfMisread(start.value, start.line, m_capture);
        return common;
    }

    /// Access points of a network that is left out are read for the sake of the warnings.
    void ReadAccessPoint(CaptureFields section, const std::optional<simulation::AccessPoint>& common)
    {
        LabelAccessPoint(section);
        simulation::AccessPoint heard = common.value_or(simulation::AccessPoint());
        heard.bssid = Address(section.front());
        const CaptureRecord record{"the access point " + section.front().value, section};
        record.WarnOfTwice(m_capture);
        Hear(record, heard);
        if (common)
            m_capture.accessPoints.push_back(std::move(heard));
    }

    void RefuseAccessPoint(CaptureFields section)
    {
        LabelAccessPoint(section);
        m_capture.Warn(section.front().line, "a BSSID before any SSID; the access point is left out");
    }

    static void LabelAccessPoint(CaptureFields section)
    {
        section.front().key = kUnused;
        LabelNested(section);
        LabelEnglish(section);
        LabelByShape(section);
    }

    /// How busy the access point is, and which others stand at the same place, in lines of their own below a title.
    static void LabelNested(CaptureFields section)
    {
        for (std::size_t i = 1; i < section.size(); ++i)
        {
            const CaptureField& title = section[i];
            if (!title.hasColon || (!title.value.empty() && !title.value.starts_with(':')))
                continue;
            for (std::size_t k = i + 1; k < section.size() && section[k].indent > title.indent; ++k)
                section[i].key = section[k].key = kUnused;
        }
    }

    /// A percentage; the radio's type, below it the band, if the system prints it, and the channel; then lists of rates.
    static void LabelByShape(CaptureFields section)
    {
        Label(section, FindValue(section, 1, IsPercentage), {"Signal"});
        const std::size_t radio = FindValue(section, 1, IsRadioType);
        const std::size_t band = FindValue(section, radio, IsBand);
        Label(section, radio, {"Radio type"});
        Label(section, band, {"Band"});
        const auto isWhole = [](const std::string& value) { return WholeNumber(value) >= 0; };
        const std::size_t channel = FindValue(section, band < section.size() ? band : radio, isWhole);
        Label(section, channel, {"Channel"});
        for (std::size_t i = channel + 1; i < section.size(); ++i)
            if (IsNumberList(section[i].value))
                Label(section, i, {kUnused});
    }

    void EndList()
    {
        WarnOfCut(m_announcement, m_listed, "networks", m_capture);
        m_announcement = nullptr;
        m_listed = 0;
    }

    CaptureFields m_fields;
    Vocabulary m_vocabulary;
    NetworksCapture& m_capture;
    std::string m_adapterLabel; ///< what this language calls the adapter
    const CaptureField* m_announcement = nullptr;
    std::size_t m_listed = 0; ///< networks since then
    std::size_t m_at = 0;     ///< the next field to read
};

} // namespace

void NetworksCapture::AddAdapterName(std::string_view name)
{
    if (!name.empty() && std::find(adapterNames.begin(), adapterNames.end(), name) == adapterNames.end())
        adapterNames.emplace_back(name);
}

void NetworksCapture::AddConnection(const simulation::AccessPoint& accessPoint)
{
    const std::string ssid(accessPoint.ssid.begin(), accessPoint.ssid.end());
    if (!ssid.empty())
        connections.push_back({ssid, ssid, true, accessPoint, 0, 0});
}

bool ReadNetshNetworks(std::string_view text, const ExplainedWords& explained, NetworksCapture& capture)
{
    std::vector<CaptureField> fields = ReadFields(text);
    const bool hasNone = fields.size() == 2 && fields[0].hasColon && !fields[0].value.empty() &&
                         FirstNumber(fields[1].Text()) == 0 && fields[1].value.size() <= 2;
    const auto belongsToList = [](const CaptureField& field)
    { return BeginsEither(field) || field.name.ends_with("networks currently visible."); };
    if (!hasNone && std::none_of(fields.begin(), fields.end(), belongsToList))
        return false;
    NetworksReader(fields, explained, capture).Read();
    capture.RefuseUnless(!capture.accessPoints.empty());
    return true;
}

} // namespace calvix::host
