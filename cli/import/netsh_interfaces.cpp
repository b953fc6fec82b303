#include "import/netsh_interfaces.h"

#include "import/capture_terms.h"
#include "import/capture_text.h"
#include "import/field_roles.h"
#include "import/misread_text.h"

#include <algorithm>
#include <array>

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
};

/// Sorts the lines by adapter. Each begins with its "Name"; the radio's two switches stand in two lines, the second of
/// them without a name of its own.
class InterfacesReader
{
public:
    explicit InterfacesReader(bool foreign) : m_foreign(foreign) {}

    void Read(const CaptureField& field)
    {
        const bool continuesRadio = m_inRadioStatus && !field.hasColon;
        m_inRadioStatus = continuesRadio || SameWord(field.Key(), "Radio status");
        if (SameWord(field.Key(), "Name"))
            Begin(field);
        else if (continuesRadio)
            adapters.back().radioStatus.value += "\n" + field.name;
        else if (adapters.empty() && field.name == kNoAdapter)
            return;
        else if (!field.hasColon && adapters.empty() && FirstNumber(field.name) >= 0)
            ReadHeader(field);
        else if (!field.hasColon && m_foreign)
            return;
        else if (!field.hasColon)
            throw LineError(field.line, "\"" + field.name + "\" is no line of a list of interfaces");
        else if (adapters.empty())
            ReadHeader(field);
        else
            AddField(field);
    }

    std::vector<InterfaceRecord> adapters;
    std::optional<CaptureField> announcement;

private:
    void Begin(const CaptureField& field)
    {
        adapters.push_back({CaptureRecord("the interface \"" + field.value + "\"", field.line), {}});
        adapters.back().fields.Add(field);
    }

    void ReadHeader(const CaptureField& field)
    {
        if (!announcement && FirstNumber(FieldText(field)) >= 0)
            announcement = field;
        else if (SameWord(field.name, "GUID") || SameWord(field.name, "State"))
            throw LineError(field.line, "\"" + field.name + "\" before the \"Name\" of any interface");
        m_inRadioStatus = false;
    }

    void AddField(const CaptureField& field)
    {
        adapters.back().fields.Add(field);
        if (m_inRadioStatus)
            adapters.back().radioStatus = field;
    }

    bool m_foreign;
    bool m_inRadioStatus = false;
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
    if (!vocabulary.foreign)
        throw LineError(status.line, "\"" + status.name + "\" does not tell whether \"" + std::string(switchName) +
                                         "\" is On or Off");
    report(status.line, "\"" + std::string(line) + "\" is not understood; that switch of the radio is taken to be on");
    return RadioSwitch::on;
}

bool IsConnected(const CaptureField& state)
{
    constexpr std::array<std::string_view, 7> kOthers{"disconnected",   "associating", "disconnecting", "discovering",
                                                      "authenticating", "not ready",   "unknown"};
    if (SameWord(state.value, "connected") || SameWord(state.value, "ad hoc network formed"))
        return true;
    if (std::none_of(kOthers.begin(), kOthers.end(), [&](auto other) { return SameWord(state.value, other); }))
        throw LineError(state.line, "\"" + state.value + "\" is no known state of an interface");
    return false;
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
    return connection;
}

/// In a foreign capture it is the access point that shows the connection.
bool HasConnection(const CaptureRecord& record, bool foreign)
{
    const bool isHeard = record.Find("BSSID") != nullptr || record.Find("AP BSSID") != nullptr;
    return foreign ? isHeard && record.Find("SSID") != nullptr : IsConnected(record.Need("State"));
}

CapturedInterface Interpret(const InterfaceRecord& record, const Vocabulary& vocabulary, const CaptureReport& report)
{
    CapturedInterface adapter;
    adapter.name = record.fields.Need("Name").value;
    adapter.description = record.fields.Need("Description").value;
    adapter.guid = GuidText(record.fields.Need("GUID"));
    adapter.address = Address(record.fields.Need("Physical address"));
    adapter.hardware = SwitchState(record.radioStatus, "Hardware", vocabulary, report);
    adapter.software = SwitchState(record.radioStatus, "Software", vocabulary, report);
    if (!HasConnection(record.fields, vocabulary.foreign))
        return adapter;
    try
    {
        adapter.connection = InterpretConnection(record.fields, vocabulary, report);
        ReportMisread(adapter.connection->ssid, record.fields.Need("SSID").line, report);
    }
    catch (const UnknownWord& unknown)
    {
        report(unknown.line(),
               std::string(unknown.what()) + "; the connection of \"" + adapter.name + "\" is left out");
    }
    return adapter;
}

/// A list that is shorter than it says was cut off.
void CheckCount(const InterfacesReader& reader)
{
    const int announced = reader.announcement ? FirstNumber(FieldText(*reader.announcement)) : 0;
    if (reader.adapters.size() < static_cast<std::size_t>(announced))
        throw LineError(reader.announcement->line,
                        "this announces " + std::to_string(announced) + " interfaces, but only " +
                            std::to_string(reader.adapters.size()) + " follow: the capture is cut off");
}

/// Two captures in one file, as likely as not.
void CheckGuids(const InterfacesReader& reader, const std::vector<CapturedInterface>& adapters)
{
    for (std::size_t i = 1; i < adapters.size(); ++i)
    {
        const auto end = adapters.begin() + static_cast<std::ptrdiff_t>(i);
        if (std::any_of(adapters.begin(), end,
                        [&](const CapturedInterface& earlier) { return earlier.guid == adapters[i].guid; }))
            throw LineError(reader.adapters[i].fields.Need("GUID").line, "a second interface with this GUID");
    }
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

bool LooksLikeInterfaces(std::string_view text)
{
    const std::vector<CaptureField> fields = ReadFields(text);
    const bool hasNone = fields.size() == 1 && fields.front().name == kNoAdapter;
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
                           InterfacesReader reader(vocabulary.foreign);
                           for (const CaptureField& field : fields)
                               reader.Read(field);
                           InterfacesCapture capture;
                           capture.source = source;
                           const CaptureReport report = [&capture](std::size_t line, const std::string& what)
                           { capture.warnings.push_back(capture.source + ":" + std::to_string(line) + ": " + what); };
                           for (const InterfaceRecord& record : reader.adapters)
                               capture.adapters.push_back(Interpret(record, vocabulary, report));
                           CheckCount(reader);
                           CheckGuids(reader, capture.adapters);
                           const std::vector<std::string> others = NotUnderstood(fields, source);
                           capture.warnings.insert(capture.warnings.end(), others.begin(), others.end());
                           return capture;
                       });
}

} // namespace calvix::host
