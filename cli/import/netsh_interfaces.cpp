#include "import/netsh_interfaces.h"

#include "forms/address_text.h"
#include "import/capture_terms.h"
#include "import/capture_text.h"
#include "import/field_roles.h"
#include "import/misread_text.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace calvix::host
{

namespace
{

using simulation::RadioSwitch;

constexpr std::string_view kNoAdapter = "There is no wireless interface on the system.";

struct InterfaceRecord
{
    CaptureRecord fields;
    CaptureField radioStatus; ///< its value over all its lines: "Hardware On Software On"
    bool hasLink = false;     ///< the first of a connection over several links
};

/// "LinkID: 0, Local: 02:..., AP: 02:..., RSSI: -53, Channel: 48, Band: 5 GHz, BW: 80", of a connection over several
/// links: what others tell in lines of their own.
std::vector<CaptureField> FieldsOfLink(const CaptureField& link)
{
    constexpr std::array<std::pair<std::string_view, const char*>, 5> kNames{
        {{"AP", "AP BSSID"}, {"RSSI", "Rssi"}, {"Channel", "Channel"}, {"Band", "Band"}, {"BW", "Channel Width"}}};
    std::vector<CaptureField> fields;
    for (std::string_view rest = link.value; !rest.empty();)
    {
        const std::string_view part = rest.substr(0, rest.find(','));
        const std::size_t colon = std::min(part.find(':'), part.size());
        for (const auto& [name, key] : kNames)
            if (Trim(part.substr(0, colon)) == name)
            {
                CaptureField field = link;
                field.name = field.key = key;
                field.value = Trim(part.substr(std::min(colon + 1, part.size())));
                fields.push_back(std::move(field));
            }
        rest.remove_prefix(std::min(part.size() + 1, rest.size()));
    }
    return fields;
}

/// Sorts the lines by adapter. Each begins with its "Name"; the radio's two switches stand in two lines, the second of
/// them without a name of its own. A line that cannot be used costs itself.
class InterfacesReader
{
public:
    explicit InterfacesReader(CaptureReport report) : m_report(std::move(report)) {}

    void Read(CaptureField& field)
    {
        const bool continuesRadio = m_inRadioStatus && !field.hasColon && !field.beginsParagraph;
        m_inRadioStatus = !adapters.empty() && SameWord(field.Key(), "Radio status");
        if (SameWord(field.Key(), "Name"))
            Begin(field);
        else if (continuesRadio)
            AddSwitch(field);
        else if (adapters.empty())
            ReadHeader(field);
        else if (SameWord(field.name, "LinkID"))
            AddLink(field);
        else if (field.hasColon)
            AddField(field);
    }

    std::vector<InterfaceRecord> adapters;
    std::optional<CaptureField> announcement;

private:
    void Begin(const CaptureField& field)
    {
        adapters.push_back({CaptureRecord("the interface \"" + field.value + "\"", field.line), {}, false});
        adapters.back().fields.Add(field);
        m_isLost = false;
    }

    void ReadHeader(CaptureField& field)
    {
        if (FirstNumber(FieldText(field)) >= 0 && !SameWord(field.name, "GUID"))
            announcement = field;
        else if (SameWord(field.name, "GUID") || SameWord(field.name, "State"))
            m_report(field.line, "\"" + field.name + "\" before the \"Name\" of any interface; it is left out");
        field.understood |= field.name == kNoAdapter;
    }

    void AddSwitch(CaptureField& field)
    {
        adapters.back().radioStatus.value += "\n" + field.name;
        field.understood = true;
    }

    void AddField(const CaptureField& field)
    {
        if (m_isLost)
            return;
        try
        {
            adapters.back().fields.Add(field);
            if (m_inRadioStatus)
                adapters.back().radioStatus = field;
        }
        catch (const LineError& error)
        {
            m_report(error.line(), std::string(error.what()) + "; it is left out, and what follows of it");
            m_isLost = true;
        }
    }

    void AddLink(const CaptureField& link)
    {
        if (adapters.back().hasLink)
            return m_report(link.line, "\"" + FieldText(link) + "\" is a second link of the connection and left out");
        adapters.back().hasLink = true;
        for (const CaptureField& field : FieldsOfLink(link))
            AddField(field);
    }

    CaptureReport m_report;
    bool m_inRadioStatus = false;
    bool m_isLost = false; ///< whether the lines are those of an adapter whose name was lost
};

/// The line of a radio status, "Hardware On" and "Software Off", for one of its switches. In other languages than English
/// the first is the hardware's.
std::string_view SwitchLine(const CaptureField& status, std::string_view switchName, bool foreign)
{
    const std::string_view text = status.value;
    const std::size_t end = text.find('\n');
    const std::size_t second = end == std::string_view::npos ? text.size() : end + 1;
    const std::size_t at = text.find(switchName);
    if (at != std::string_view::npos)
        return text.substr(at, at < second && second < text.size() ? second - at - 1 : std::string_view::npos);
    return !foreign ? std::string_view() : switchName == "Hardware" ? text.substr(0, end) : text.substr(second);
}

/// Connected adapters do not have the field: theirs are on.
RadioSwitch SwitchState(const CaptureField& status,
                        std::string_view switchName,
                        const Vocabulary& vocabulary,
                        const CaptureReport& report)
{
    if (status.name.empty())
        return RadioSwitch::on;
    const std::string_view line = SwitchLine(status, switchName, vocabulary.foreign);
    const std::optional<std::string_view> meaning = SwitchOf(line);
    if (meaning)
        return *meaning == "on" ? RadioSwitch::on : RadioSwitch::off;
    report(status.line, "\"" + (line.empty() ? std::string(switchName) : std::string(line)) +
                            "\" is not understood; that switch of the radio is taken to be on");
    return RadioSwitch::on;
}

bool IsOneOf(const std::string& word, std::initializer_list<std::string_view> words)
{
    return std::any_of(words.begin(), words.end(), [&](std::string_view each) { return SameWord(word, each); });
}

const std::string& NeedText(const CaptureRecord& record, std::string_view name)
{
    const CaptureField& field = record.Need(name);
    if (field.value.empty())
        throw LineError(field.line, "\"" + field.name + "\" has no value");
    return field.value;
}

/// Whether the service made the connection by itself.
bool IsAutomatic(const CaptureRecord& record, const Vocabulary& vocabulary, const CaptureReport& report)
{
    const CaptureField* mode = record.Find("Connection mode");
    if (mode == nullptr)
        return false;
    const std::optional<std::string> explained = Explained(vocabulary, mode->value);
    const std::optional<std::string_view> meaning =
        explained ? std::optional<std::string_view>(*explained) : MeaningOf(WordKind::connectionMode, mode->value);
    if (!meaning && vocabulary.foreign)
        report(mode->line, "\"" + mode->name + "\" is \"" + mode->value +
                               "\", which is not understood; the connection is taken for one that somebody asked for");
    return meaning == "auto" || mode->value.starts_with("Auto");
}

CapturedConnection
InterpretConnection(const CaptureRecord& record, const Vocabulary& vocabulary, const CaptureReport& report)
{
    CapturedConnection connection;
    connection.profile = NeedText(record, "Profile");
    connection.ssid = NeedText(record, "SSID");
    connection.automatic = IsAutomatic(record, vocabulary, report);
    simulation::AccessPoint& accessPoint = connection.accessPoint;
    // Newer systems call it "AP BSSID".
    const CaptureField* bssid = record.Find("AP BSSID");
    accessPoint.bssid = Address(bssid != nullptr ? *bssid : record.Need("BSSID"));
    accessPoint.ssid = Ssid(record.Need("SSID"));
    accessPoint.bssType = BssType(record.Need("Network type"), vocabulary);
    const NetworkSecurity security = Security(record.Need("Authentication"), record.Need("Cipher"), vocabulary);
    accessPoint.authentication = security.authentication;
    accessPoint.encryption = security.encryption;
    Hear(record, accessPoint);
    // Only a connection over several links tells it.
    if (const CaptureField* width = record.Find("Channel Width");
        width && IsOneOf(width->value, {"20", "40", "80", "160", "320"}))
        accessPoint.channelWidth = static_cast<std::uint32_t>(WholeNumber(width->value));
    return connection;
}

/// Where the language's word for the state is not known, an access point shows the connection.
bool HasConnection(const CaptureRecord& record, const Vocabulary& vocabulary, const CaptureReport& report)
{
    const CaptureField* state = record.Find("State");
    if (state != nullptr && IsOneOf(state->value, {"connected", "ad hoc network formed"}))
        return true;
    if (state != nullptr && IsOneOf(state->value, {"disconnected", "associating", "disconnecting", "discovering",
                                                   "authenticating", "not ready", "unknown"}))
        return false;
    if (state != nullptr && !vocabulary.foreign)
        report(state->line, "\"" + state->value + "\" is no known state of an interface");
    const bool isHeard = record.Find("BSSID") != nullptr || record.Find("AP BSSID") != nullptr;
    return isHeard && record.Find("SSID") != nullptr;
}

/// What identifies the adapter, made up where the capture does not tell it.
CapturedInterface Identify(const CaptureRecord& record, std::size_t index, const CaptureReport& report)
{
    CapturedInterface adapter = MadeUpInterface(record.Need("Name").value, index);
    const auto read = [&](const char* name, auto& member, auto meaning)
    {
        try
        {
            member = meaning(record.Need(name));
        }
        catch (const LineError& error)
        {
            report(error.line(), std::string(error.what()) + "; the adapter has a made-up one");
        }
    };
    read("Description", adapter.description, [](const CaptureField& field) { return field.value; });
    read("GUID", adapter.guid, GuidText);
    read("Physical address", adapter.address, Address);
    return adapter;
}

CapturedInterface
Interpret(const InterfaceRecord& record, std::size_t index, const Vocabulary& vocabulary, const CaptureReport& report)
{
    CapturedInterface adapter = Identify(record.fields, index, report);
    adapter.hardware = SwitchState(record.radioStatus, "Hardware", vocabulary, report);
    adapter.software = SwitchState(record.radioStatus, "Software", vocabulary, report);
    if (!HasConnection(record.fields, vocabulary, report))
        return adapter;
    try
    {
        adapter.connection = InterpretConnection(record.fields, vocabulary, report);
        ReportMisread(adapter.connection->ssid, record.fields.Need("SSID").line, report);
    }
    catch (const LineError& error)
    {
        report(error.line(), std::string(error.what()) + "; the connection of \"" + adapter.name + "\" is left out");
    }
    return adapter;
}

/// A list that is shorter than it says was cut off.
void CheckCount(const InterfacesReader& reader, const CaptureReport& report)
{
    const int announced = reader.announcement ? FirstNumber(FieldText(*reader.announcement)) : 0;
    if (reader.adapters.size() < static_cast<std::size_t>(announced))
        report(reader.announcement->line, "this announces " + std::to_string(announced) + " interfaces, but only " +
                                              std::to_string(reader.adapters.size()) +
                                              " follow: the capture is cut off");
}

/// Two captures in one file, as likely as not: the first tells.
void AddAdapter(InterfacesCapture& capture,
                const InterfaceRecord& record,
                CapturedInterface adapter,
                const CaptureReport& report)
{
    const bool isKnown = std::any_of(capture.adapters.begin(), capture.adapters.end(),
                                     [&](const CapturedInterface& earlier) { return earlier.guid == adapter.guid; });
    if (isKnown)
        report(record.fields.Need("GUID").line, "a second interface with this GUID; it is left out");
    else
        capture.adapters.push_back(std::move(adapter));
}

bool HasField(const std::vector<CaptureField>& fields, std::string_view name)
{
    return std::any_of(fields.begin(), fields.end(),
                       [&](const CaptureField& field) { return field.hasColon && SameWord(field.name, name); });
}

/// A GUID and, in the next line, an address: no language has that otherwise.
bool HasAdapter(const std::vector<CaptureField>& fields)
{
    return std::adjacent_find(fields.begin(), fields.end(),
                              [](const CaptureField& one, const CaptureField& next)
                              { return one.hasColon && IsGuid(one.value) && IsAddress(next.value); }) != fields.end();
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

bool LooksLikeInterfaces(std::string_view text)
{
    const std::vector<CaptureField> fields = ReadFields(text);
    const bool hasNone =
        std::any_of(fields.begin(), fields.end(), [](const CaptureField& field) { return field.name == kNoAdapter; });
    return hasNone || HasField(fields, "GUID") || HasField(fields, "Physical address") || HasAdapter(fields);
}

InterfacesCapture ParseInterfaces(std::string_view text, const std::string& source, const ExplainedWords& explained)
{
    return ReadingFrom(source,
                       [&]
                       {
                           if (!LooksLikeInterfaces(text))
                               throw LineError(1, "this is no output of \"netsh wlan show interfaces\"");
                           std::vector<CaptureField> fields = ReadFields(text);
                           const Vocabulary vocabulary{RecogniseInterfaceLines(fields), explained};
                           InterfacesCapture capture;
                           capture.source = source;
                           const CaptureReport report = ReportTo(capture);
                           InterfacesReader reader(report);
                           for (CaptureField& field : fields)
                               if (!field.passedOver)
                                   reader.Read(field);
                           for (const InterfaceRecord& record : reader.adapters)
                               AddAdapter(capture, record,
                                          Interpret(record, capture.adapters.size(), vocabulary, report), report);
                           CheckCount(reader, report);
                           const std::vector<std::string> others = NotUnderstood(fields, source);
                           capture.warnings.insert(capture.warnings.end(), others.begin(), others.end());
                           if (capture.adapters.empty() && !capture.warnings.empty())
                               throw CaptureError(capture.warnings.front());
                           return capture;
                       });
}

} // namespace calvix::host
