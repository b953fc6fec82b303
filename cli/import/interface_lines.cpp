#include "import/field_roles.h"

#include "import/capture_terms.h"
#include "import/field_labels.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

/// A whole number or one with a fraction, as rates are.
bool IsNumber(const CaptureField& field)
{
    return IsNumberList(field.value) && field.value.find(' ') == std::string::npos;
}

/// The lines of one adapter, from its name on.
class AdapterLines
{
public:
    AdapterLines(std::vector<CaptureField>& fields, std::size_t begin, std::size_t end)
        : m_fields(fields), m_begin(begin), m_end(end)
    {
    }

    bool Recognise()
    {
        for (std::size_t i = m_begin; i < m_end; ++i)
            Nested(m_fields[i], m_fields[m_begin].indent);
        Set(m_begin, "Name");
        Set(m_begin + 1, "Description");
        Set(m_begin + 2, "GUID");
        const std::size_t address = Find(m_begin + 3, [](const CaptureField& field) { return IsAddress(field.value); });
        Set(address, "Physical address");
        const std::size_t bssid = Find(address + 1, [](const CaptureField& field) { return IsAddress(field.value); });
        if (bssid < m_end)
            Connected(address, bssid);
        else
            NotConnected(address);
        return m_foreign;
    }

private:
    /// Access points beside the one of the connection stand further in. Those of a connection over several links tell what
    /// others tell in lines of their own.
    static void Nested(CaptureField& field, std::size_t indent)
    {
        field.passedOver = field.hasColon && field.indent > indent && !SameWord(field.name, "LinkID");
        field.understood = field.passedOver || HasEnglishLabel(field);
    }

    template <typename Test>
    std::size_t Find(std::size_t from, Test test) const
    {
        while (from < m_end && !(m_fields[from].hasColon && test(m_fields[from])))
            ++from;
        return std::min(from, m_end);
    }

    std::size_t FindKey(const char* key) const
    {
        return Find(m_begin, [key](const CaptureField& field) { return SameWord(field.Key(), key); });
    }

    bool IsLine(std::size_t index) const { return index < m_end && m_fields[index].hasColon; }

    void Set(std::size_t index, const char* key)
    {
        if (IsLine(index))
            m_foreign |= host::Recognise(m_fields[index], key);
    }

    void Connected(std::size_t address, std::size_t bssid)
    {
        const std::size_t ssid = std::min(FindKey("SSID"), bssid - 1);
        Set(ssid, "SSID");
        Set(bssid, "BSSID");
        BetweenAddressAndState(address, ssid - 1);
        const std::size_t signal = Find(bssid, [](const CaptureField& field) { return IsPercentage(field.value); });
        Set(signal, "Signal");
        Security(bssid);
        Frequency(bssid, signal);
        AfterSignal(signal);
    }

    /// Newer systems tell the interface's type there.
    void BetweenAddressAndState(std::size_t address, std::size_t state)
    {
        if (state > address)
            Set(state, "State");
        if (state > address + 1)
            Set(address + 1, "Interface type");
    }

    /// The network's type, the radio's, authentication, cipher and who asked for the connection, in a row.
    void Security(std::size_t bssid)
    {
        const std::size_t radio = Find(bssid, [](const CaptureField& field) { return IsRadioType(field.value); });
        if (radio == m_end)
            return;
        Set(radio - 1, "Network type");
        Set(radio, "Radio type");
        Set(radio + 1, "Authentication");
        Set(radio + 2, "Cipher");
        Set(radio + 3, "Connection mode");
    }

    /// The channel follows the band; systems that do not tell the band have it before the two rates.
    void Frequency(std::size_t bssid, std::size_t signal)
    {
        const std::size_t band = Find(bssid, [](const CaptureField& field) { return IsBand(field.value); });
        Set(band, "Band");
        if (IsLine(band + 1) && WholeNumber(m_fields[band + 1].value) >= 0)
            Set(band + 1, "Channel");
        const bool threeNumbers = signal >= bssid + 4 && IsNumber(m_fields[signal - 1]) &&
                                  IsNumber(m_fields[signal - 2]) && IsNumber(m_fields[signal - 3]);
        if (band == m_end && threeNumbers && signal < m_end)
            Set(signal - 3, "Channel");
        for (std::size_t i = bssid + 1; i < signal; ++i)
            if (m_fields[i].key.empty() && (IsNumber(m_fields[i]) || m_fields[i].value.starts_with('[')))
                m_fields[i].understood = true; // rates and suites
    }

    /// The newest systems put the strength in dBm between the signal and the profile. What follows the profile is of no
    /// use: settings of priorities, and, in a paragraph of its own, whether the computer is an access point itself.
    void AfterSignal(std::size_t signal)
    {
        std::size_t profile = signal + 1;
        if (IsLine(profile) && m_fields[profile].value.starts_with('-') && SameWord(m_fields[profile].name, "Rssi"))
            ++profile;
        if (!IsLine(profile) || m_fields[profile].beginsParagraph)
            return;
        Set(profile, "Profile");
        for (std::size_t i = profile + 1; i < m_end && IsNumber(m_fields[i]); ++i)
            m_fields[i].understood = true;
        LastParagraph();
    }

    void LastParagraph()
    {
        const std::size_t last = m_end - 1;
        if (last > m_begin && last + 1 == m_fields.size() && m_fields[last].beginsParagraph)
            m_fields[last].understood = true;
    }

    /// The state is the last line, but for the radio's two switches, of which the second has no label.
    void NotConnected(std::size_t address)
    {
        std::size_t end = address + 1;
        while (IsLine(end) && !m_fields[end].beginsParagraph)
            ++end;
        const bool hasSwitches = end < m_end && !m_fields[end].hasColon && !m_fields[end].beginsParagraph;
        if (hasSwitches && end > address + 1)
        {
            Set(end - 1, "Radio status");
            m_fields[end].understood = true;
            --end;
        }
        BetweenAddressAndState(address, end - 1);
        LastParagraph();
    }

    std::vector<CaptureField>& m_fields;
    std::size_t m_begin;
    std::size_t m_end;
    bool m_foreign = false;
};

/// A description that a narrow window broke goes on in a line without a colon, before the GUID.
void JoinBrokenDescriptions(std::vector<CaptureField>& fields)
{
    for (std::size_t i = 3; i < fields.size(); ++i)
        if (fields[i].hasColon && IsGuid(fields[i].value) && !fields[i - 1].hasColon && fields[i - 2].hasColon)
        {
            fields[i - 2].value += " " + fields[i - 1].name;
            fields.erase(fields.begin() + static_cast<std::ptrdiff_t>(i - 1));
        }
}

/// Where adapters begin: at their names, which stand two lines above their GUIDs.
std::vector<std::size_t> AdapterStarts(const std::vector<CaptureField>& fields)
{
    std::vector<std::size_t> starts;
    for (std::size_t i = 2; i < fields.size(); ++i)
    {
        const CaptureField& name = fields[i - 2];
        const bool isGuid = fields[i].hasColon && IsGuid(fields[i].value);
        const bool isName = SameWord(name.name, "Name") || (!HasEnglishLabel(name) && name.beginsParagraph);
        if (isGuid && name.hasColon && !name.value.empty() && fields[i - 1].hasColon && isName)
            starts.push_back(i - 2);
    }
    return starts;
}

} // namespace

bool RecogniseInterfaceLines(std::vector<CaptureField>& fields)
{
    JoinBrokenLists(fields);
    JoinBrokenDescriptions(fields);
    const std::vector<std::size_t> starts = AdapterStarts(fields);
    bool foreign = false;
    for (std::size_t i = 0; i < fields.size() && (starts.empty() || i < starts.front()); ++i)
        fields[i].understood = HasEnglishLabel(fields[i]) || (!starts.empty() && i + 1 == starts.front());
    for (std::size_t i = 0; i < starts.size(); ++i)
        foreign |= AdapterLines(fields, starts[i], i + 1 < starts.size() ? starts[i + 1] : fields.size()).Recognise();
    return foreign;
}

} // namespace calvix::host
