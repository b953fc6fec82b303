#include "forms/hex_text.h"
#include "import/capture_encoding.h"
#include "import/capture_fields.h"
#include "import/capture_values.h"
#include "import/read_capture.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

using simulation::RadioSwitch;

constexpr std::string_view kNoAdapter = "There is no wireless interface on the system.";

/// A whole number or one with a fraction, as rates are.
bool IsNumber(std::string_view text)
{
    return IsNumberList(text) && text.find(' ') == std::string_view::npos;
}

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

/// An adapter begins with its name, two lines above its GUID.
bool BeginsAdapter(CaptureFields fields, std::size_t index)
{
    const CaptureField& name = fields[index];
    const bool isAboveGuid = index + 2 < fields.size() && fields[index + 1].hasColon && IsGuid(fields[index + 2].value);
    return name.hasColon && !name.value.empty() &&
           (SameButForCase(name.name, "Name") || (name.beginsParagraph && isAboveGuid));
}

/// Access points beside the one of the connection stand further in. Those of a connection over several links say what
/// others say in lines of their own.
void LabelNested(CaptureFields fields)
{
    for (CaptureField& field : fields)
        if (field.hasColon && field.indent > fields.front().indent && field.name != "LinkID")
            field.key = kUnused;
}

void LabelConnected(CaptureFields fields, std::size_t address, std::size_t bssid)
{
    Label(fields, bssid - 1, {"SSID", "BSSID"});
    for (std::size_t i = address + 1; i < bssid; ++i)
        Label(fields, i, {kUnused}); // the state, and with newer systems the interface's type
    const std::size_t signal = FindValue(fields, bssid, IsPercentage);
    const std::size_t band = FindValue(fields, bssid, IsBand);
    const bool hasRates = signal >= bssid + 3 && signal < fields.size() && IsNumber(fields[signal - 1].value) &&
                          IsNumber(fields[signal - 2].value);
    Label(fields, signal, {"Signal"});
    Label(fields, band, {"Band", "Channel"});
    if (hasRates)
        Label(fields, signal - 2, {"Receive rate (Mbps)", "Transmit rate (Mbps)"});
    // Systems that do not print the band have the channel before the two rates.
    if (hasRates && band == fields.size() && IsNumber(fields[signal - 3].value))
        Label(fields, signal - 3, {"Channel"});
    if (const std::size_t radio = FindValue(fields, bssid, IsRadioType); radio < fields.size())
        Label(fields, radio - 1, {"Network type", "Radio type", "Authentication", "Cipher", "Connection mode"});
    std::size_t profile = signal + 1;
    if (profile < fields.size() && fields[profile].key == "Rssi")
        ++profile;
    if (profile < fields.size() && !fields[profile].beginsParagraph)
        Label(fields, profile, {"Profile"});
    for (std::size_t i = bssid; i < fields.size(); ++i)
        if (IsNumber(fields[i].value) || fields[i].value.starts_with('['))
            Label(fields, i, {kUnused}); // suites in brackets, priorities
}

/// The radio's two switches come last, the second in a line without a label.
void LabelNotConnected(CaptureFields fields, std::size_t address)
{
    for (std::size_t i = address + 1; i < fields.size() && !fields[i].beginsParagraph; ++i)
    {
        const bool isSwitches = fields[i - 1].hasColon && !fields[i].hasColon;
        if (isSwitches && i > address + 1)
        {
            fields[i - 1].key = "Radio status";
            fields[i].key = kUnused;
        }
        else if (i + 1 == fields.size() || fields[i + 1].hasColon)
            Label(fields, i, {kUnused}); // the state, and with newer systems the interface's type
    }
}

/// Sets the keys of one adapter's lines, from its name on.
void LabelAdapter(CaptureFields fields)
{
    LabelNested(fields);
    LabelEnglish(fields);
    Label(fields, 0, {"Name", "Description", "GUID"});
    const std::size_t address = FindValue(fields, 3, IsAddress);
    Label(fields, address, {"Physical address"});
    if (const std::size_t bssid = FindValue(fields, address + 1, IsAddress); bssid < fields.size())
        LabelConnected(fields, address, bssid);
    else
        LabelNotConnected(fields, address);
    // Whether the computer is an access point itself.
    if (fields.back().beginsParagraph)
        Label(fields, fields.size() - 1, {kUnused});
}

/// "LinkID: 0, Local: 02:..., AP: 02:..., RSSI: -53, Channel: 48, Band: 5 GHz, BW: 80", of a connection over several
/// links: what others have in lines of their own.
std::vector<CaptureField> FieldsOfLink(const CaptureField& link)
{
    constexpr std::pair<std::string_view, const char*> kNames[] = {
        {"AP", "AP BSSID"}, {"RSSI", "Rssi"}, {"Channel", "Channel"}, {"Band", "Band"}, {"BW", "Channel Width"}};
    std::vector<CaptureField> fields;
    for (std::string_view rest = link.value; !rest.empty();)
    {
        const std::string_view part = Trim(rest.substr(0, rest.find(',')));
        for (const auto& [name, key] : kNames)
            if (part.starts_with(name) && part.substr(name.size()).starts_with(':'))
            {
                fields.push_back(link);
                fields.back().name = fields.back().key = key;
                fields.back().value = Trim(part.substr(name.size() + 1));
            }
        rest.remove_prefix(std::min(rest.find(','), rest.size() - 1) + 1);
    }
    return fields;
}

/// What identifies the adapter, invented if the capture does not have it.
CapturedInterface Identify(const CaptureRecord& record, std::size_t index, CaptureWarnings& warnings)
{
    CapturedInterface adapter = MadeUpInterface(record.Need("Name").value, index);
    const std::string loss = "the adapter gets an invented one";
    warnings.OrWarn(loss, [&] { adapter.description = record.Need("Description").value; });
    warnings.OrWarn(loss, [&] { adapter.guid = GuidText(record.Need("GUID")); });
    warnings.OrWarn(loss, [&] { adapter.address = Address(record.Need("Physical address")); });
    return adapter;
}

RadioSwitch SwitchState(const std::string& text, std::size_t line, CaptureWarnings& warnings)
{
    const std::string_view meaning = SwitchOf(text);
    if (meaning.empty())
        warnings.Warn(line, (text.empty() ? "a switch of the radio is missing" : "\"" + text + "\" is not understood") +
                                "; it is assumed to be on");
    return meaning == "off" ? RadioSwitch::off : RadioSwitch::on;
}

/// "Hardware On" and, in a line of its own, "Software Off". Connected adapters do not have the field: theirs are on.
void ReadSwitches(const CaptureRecord& record, CapturedInterface& adapter, CaptureWarnings& warnings)
{
    const CaptureField* hardware = record.Find("Radio status");
    if (hardware == nullptr)
        return;
    adapter.hardware = SwitchState(hardware->value, hardware->line, warnings);
    const CaptureField* software = hardware + 1;
    const bool isThere = software != record.fields.data() + record.fields.size() && !software->hasColon;
    adapter.software = SwitchState(isThere ? software->name : "", hardware->line + 1, warnings);
}

const CaptureField& NeedText(const CaptureRecord& record, std::string_view key)
{
    const CaptureField& field = record.Need(key);
    if (field.value.empty())
        throw LineError(field.line, "\"" + field.name + "\" has no value");
    return field;
}

/// Whether the service made the connection by itself.
bool IsAutomatic(const CaptureField* mode, const Vocabulary& vocabulary, CaptureWarnings& warnings)
{
    if (mode == nullptr)
        return false;
    const std::string meaning = vocabulary.MeaningOf(mode->value, {"auto", "manual"});
    if (meaning.empty() && vocabulary.foreign)
        warnings.Warn(mode->line,
                      "\"" + mode->name + "\" is \"" + mode->value +
                          "\", which is not understood; the connection is assumed to be one that the user requested");
    return meaning == "auto";
}

CapturedConnection ReadConnection(const CaptureRecord& record, const Vocabulary& vocabulary, CaptureWarnings& warnings)
{
    CapturedConnection connection;
    connection.profile = NeedText(record, "Profile").value;
    const CaptureField& ssid = NeedText(record, "SSID");
    connection.ssid = ssid.value;
    connection.automatic = IsAutomatic(record.Find("Connection mode"), vocabulary, warnings);
    connection.receiveKbps = RateKbps(record.Find("Receive rate (Mbps)"));
    connection.transmitKbps = RateKbps(record.Find("Transmit rate (Mbps)"));
    simulation::AccessPoint& accessPoint = connection.accessPoint;
    // Newer systems call it "AP BSSID".
    const CaptureField* bssid = record.Find("AP BSSID");
    accessPoint.bssid = Address(bssid != nullptr ? *bssid : record.Need("BSSID"));
    accessPoint.ssid = Ssid(ssid.value, ssid.line);
    accessPoint.bssType = BssType(record.Need("Network type"), vocabulary);
    ReadSecurity(record.Need("Authentication"), record.Need("Cipher"), vocabulary, accessPoint);
    Hear(record, accessPoint);
    // Only a connection over several links says it.
    const CaptureField* width = record.Find("Channel Width");
    for (const int known : {20, 40, 80, 160, 320})
        if (width != nullptr && WholeNumber(width->value) == known)
            accessPoint.channelWidth = static_cast<std::uint32_t>(known);
    WarnOfMisread(ssid.value, ssid.line, warnings);
    return connection;
}

/// An access point shows the connection; the English words for the states also show one that is still being made.
bool HasConnection(const CaptureRecord& record)
{
    constexpr std::string_view kOthers[] = {"disconnected", "associating",    "disconnecting",
                                            "discovering",  "authenticating", "not ready"};
    const CaptureField* state = record.Find("State");
    const bool isOther =
        state != nullptr && std::any_of(std::begin(kOthers), std::end(kOthers),
                                        [&](auto& each) { return SameButForCase(state->value, each); });
    return !isOther &&
           (record.Find("SSID") != nullptr || record.Find("BSSID") != nullptr || record.Find("AP BSSID") != nullptr);
}

class InterfacesReader
{
public:
    InterfacesReader(std::vector<CaptureField>& fields, const ExplainedWords& explained, InterfacesCapture& capture)
        : m_fields(fields), m_vocabulary{IsForeign(fields), explained}, m_capture(capture)
    {
    }

    void Read()
    {
        std::size_t count = 0;
        const std::size_t first = Next(0);
        // Only the line right above the first adapter has the number of adapters.
        CaptureField* const announcement = first > 0 && first < m_fields.size() ? &m_fields[first - 1] : nullptr;
        for (std::size_t at = first; at < m_fields.size(); ++count)
        {
            const std::size_t end = Next(at + 1);
            ReadAdapter(CaptureFields(m_fields).subspan(at, end - at));
            at = end;
        }
        if (announcement != nullptr && FirstNumber(announcement->Text()) >= 0)
        {
            announcement->key = kUnused;
            WarnOfCut(announcement, count, "interfaces", m_capture);
        }
        for (CaptureField& field : m_fields)
            field.key = field.name == kNoAdapter ? kUnused : field.key;
        WarnOfUnknown(m_fields, m_capture);
    }

private:
    std::size_t Next(std::size_t at) const
    {
        while (at < m_fields.size() && !BeginsAdapter(m_fields, at))
            ++at;
        return at;
    }

    void ReadAdapter(CaptureFields fields)
    {
        LabelAdapter(fields);
        CaptureRecord record{"the interface \"" + fields.front().value + "\"", fields};
        record.WarnOfTwice(m_capture);
        CapturedInterface adapter = Identify(record, m_capture.adapters.size(), m_capture);
        for (const CapturedInterface& earlier : m_capture.adapters)
            if (earlier.guid == adapter.guid)
                return m_capture.Warn(record.Need("GUID").line, "a second interface with this GUID; it is left out");
        ReadSwitches(record, adapter, m_capture);
        std::vector<CaptureField> withLink(fields.begin(), fields.end());
        AddLink(withLink);
        record.fields = withLink;
        if (HasConnection(record))
            m_capture.OrWarn("the connection of \"" + adapter.name + "\" is left out",
                             [&] { adapter.connection = ReadConnection(record, m_vocabulary, m_capture); });
        m_capture.adapters.push_back(std::move(adapter));
    }

    void AddLink(std::vector<CaptureField>& fields)
    {
        std::vector<CaptureField> links;
        for (const CaptureField& field : fields)
            if (field.key == "LinkID" && links.empty())
                links = FieldsOfLink(field);
            else if (field.key == "LinkID")
                m_capture.Warn(field.line, "\"" + field.Text() + "\" is a second link of the connection and left out");
        fields.insert(fields.end(), links.begin(), links.end());
    }

    std::vector<CaptureField>& m_fields;
    Vocabulary m_vocabulary;
    InterfacesCapture& m_capture;
};

/// A GUID and, in the next line, an address: no language has that otherwise.
bool LooksLikeInterfaces(CaptureFields fields)
{
    for (std::size_t i = 0; i < fields.size(); ++i)
        if (fields[i].name == kNoAdapter || SameButForCase(fields[i].name, "Physical address") ||
            (fields[i].hasColon && SameButForCase(fields[i].name, "GUID")) ||
            (IsGuid(fields[i].value) && i + 1 < fields.size() && IsAddress(fields[i + 1].value)))
            return true;
    return false;
}

} // namespace

CapturedInterface MadeUpInterface(const std::string& name, std::size_t index)
{
    CapturedInterface madeUp;
    madeUp.name = name;
    madeUp.description = "Wireless adapter";
    madeUp.guid = "{0D5C7C4E-6B0B-4F43-9C0E-3D1F5A2B7E" +
                  forms::HexText(std::vector{static_cast<std::uint8_t>(index + 1)}, forms::Letters::lower) + "}";
    madeUp.address = {0x02, 0x00, 0x5E, 0x10, 0x00, static_cast<std::uint8_t>(index + 1)};
    return madeUp;
}

bool ReadNetshInterfaces(std::string_view text, const ExplainedWords& explained, InterfacesCapture& capture)
{
    std::vector<CaptureField> fields = ReadFields(text);
    if (!LooksLikeInterfaces(fields))
        return false;
    JoinBrokenDescriptions(fields);
    InterfacesReader(fields, explained, capture).Read();
    capture.RefuseUnless(!capture.adapters.empty());
    return true;
}

} // namespace calvix::host
