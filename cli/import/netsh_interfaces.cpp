#include "import/netsh_interfaces.h"

#include "import/capture_terms.h"
#include "import/capture_text.h"

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
    void Read(const CaptureField& field)
    {
        const bool continuesRadio = m_inRadioStatus && !field.hasColon;
        m_inRadioStatus = continuesRadio || SameWord(field.name, "Radio status");
        if (SameWord(field.name, "Name"))
            Begin(field);
        else if (continuesRadio)
            adapters.back().radioStatus.value += " " + field.name;
        else if (adapters.empty() && field.name == kNoAdapter)
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
        if (!announcement && field.value.empty() && FirstNumber(field.name) >= 0)
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

    bool m_inRadioStatus = false;
};

/// "Hardware On Software Off", where the switch called "Software" is off. Connected adapters do not have the field:
/// theirs are on.
RadioSwitch SwitchState(const CaptureField& status, std::string_view switchName)
{
    if (status.name.empty())
        return RadioSwitch::on;
    const std::size_t at = status.value.find(switchName);
    const std::string_view state =
        at == std::string::npos ? "" : Trim(std::string_view(status.value).substr(at + switchName.size()));
    if (state.starts_with("On"))
        return RadioSwitch::on;
    if (state.starts_with("Off"))
        return RadioSwitch::off;
    throw LineError(status.line,
                    "\"" + status.name + "\" does not tell whether \"" + std::string(switchName) + "\" is On or Off");
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

CapturedConnection InterpretConnection(const CaptureRecord& record)
{
    CapturedConnection connection;
    connection.profile = NeedText(record, "Profile");
    connection.ssid = NeedText(record, "SSID");
    const CaptureField* mode = record.Find("Connection mode");
    connection.automatic = mode != nullptr && mode->value.starts_with("Auto");
    simulation::AccessPoint& accessPoint = connection.accessPoint;
    // Newer systems call it "AP BSSID".
    const CaptureField* bssid = record.Find("AP BSSID");
    accessPoint.bssid = Address(bssid != nullptr ? *bssid : record.Need("BSSID"));
    accessPoint.ssid = Ssid(record.Need("SSID"));
    accessPoint.bssType = BssType(record.Need("Network type"));
    accessPoint.authentication = Authentication(record.Need("Authentication"));
    accessPoint.encryption = Encryption(record.Need("Cipher"));
    Hear(record, accessPoint);
    return connection;
}

CapturedInterface Interpret(const InterfaceRecord& record)
{
    CapturedInterface adapter;
    adapter.name = record.fields.Need("Name").value;
    adapter.description = record.fields.Need("Description").value;
    adapter.guid = GuidText(record.fields.Need("GUID"));
    adapter.address = Address(record.fields.Need("Physical address"));
    adapter.hardware = SwitchState(record.radioStatus, "Hardware");
    adapter.software = SwitchState(record.radioStatus, "Software");
    if (IsConnected(record.fields.Need("State")))
        adapter.connection = InterpretConnection(record.fields);
    return adapter;
}

/// A list that is shorter than it says was cut off.
void CheckCount(const InterfacesReader& reader)
{
    const int announced = reader.announcement ? FirstNumber(reader.announcement->name) : 0;
    if (reader.adapters.size() < static_cast<std::size_t>(announced))
        throw LineError(reader.announcement->line,
                        "this announces " + std::to_string(announced) + " interfaces, but only " +
                            std::to_string(reader.adapters.size()) + " follow: the capture is cut off");
}

bool HasField(const std::vector<CaptureField>& fields, std::string_view name)
{
    return std::any_of(fields.begin(), fields.end(),
                       [&](const CaptureField& field) { return field.hasColon && SameWord(field.name, name); });
}

} // namespace

bool LooksLikeInterfaces(std::string_view text)
{
    const std::vector<CaptureField> fields = ReadFields(text);
    const bool hasNone = fields.size() == 1 && fields.front().name == kNoAdapter;
    return hasNone || HasField(fields, "GUID") || HasField(fields, "Physical address");
}

InterfacesCapture ParseInterfaces(std::string_view text, const std::string& source)
{
    return ReadingFrom(source,
                       [&]
                       {
                           if (!LooksLikeInterfaces(text))
                               throw LineError(1, "this is no output of \"netsh wlan show interfaces\"");
                           InterfacesReader reader;
                           for (const CaptureField& field : ReadFields(text))
                               reader.Read(field);
                           InterfacesCapture capture;
                           capture.source = source;
                           for (const InterfaceRecord& record : reader.adapters)
                               capture.adapters.push_back(Interpret(record));
                           CheckCount(reader);
                           return capture;
                       });
}

} // namespace calvix::host
