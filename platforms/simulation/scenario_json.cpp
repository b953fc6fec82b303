#include "simulation/ascii_case.h"
#include "simulation/embedded_texts.h"
#include "simulation/privileges.h"
#include "simulation/profile_document.h"
#include "simulation/scenario.h"
#include "simulation/scenario_names.h"
#include "simulation/scenario_schema.h"
#include "simulation/utf8.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>
#include <map>
#include <set>

namespace calvix::simulation
{

namespace
{

using nlohmann::json;

constexpr std::size_t kLongestSsid = 32;

/// A value of the file that knows where it stands. The schema has been checked, so types are what they should be.
class Value
{
public:
    Value(const json& value, const std::string& source, std::string pointer = "")
        : m_value(&value), m_source(&source), m_pointer(std::move(pointer))
    {
    }

    bool Has(const char* name) const { return m_value->contains(name); }
    bool IsNull(const char* name) const { return m_value->at(name).is_null(); }
    Value operator[](const char* name) const { return {m_value->at(name), *m_source, m_pointer + "/" + name}; }

    /// The elements of the array of this name, none if it is missing.
    std::vector<Value> Elements(const char* name) const
    {
        std::vector<Value> elements;
        if (Has(name))
            for (const json& element : m_value->at(name))
                elements.emplace_back(element, *m_source,
                                      m_pointer + "/" + name + "/" + std::to_string(elements.size()));
        return elements;
    }

    const std::string& Text() const { return m_value->get_ref<const std::string&>(); }

    /// Puts the member of this name into `target`, which keeps its default if there is none.
    template <typename Target>
    void Read(const char* name, Target& target) const
    {
        if (Has(name))
            target = m_value->at(name).get<Target>();
    }

    template <std::size_t Count>
    void ReadNamed(const char* name, const NumberName (&names)[Count], std::uint32_t& target) const
    {
        if (!Has(name))
            return;
        const json& value = m_value->at(name);
        if (value.is_number())
            target = value.get<std::uint32_t>();
        for (const NumberName& known : names)
            if (value == known.name)
                target = known.number;
    }

    /// A number of up to 64 bits, which the schema's validator, reckoning with a sign, cannot test for being one.
    void ReadCount(const char* name, std::uint64_t& target) const
    {
        if (Has(name) && !m_value->at(name).is_number_unsigned())
            (*this)[name].Refuse("less than 0");
        Read(name, target);
    }

    /// The same for a member whose null means that there is none.
    template <typename Target>
    void ReadOptional(const char* name, std::optional<Target>& target) const
    {
        if (!Has(name))
            return;
        target.reset();
        if (!IsNull(name))
            Read(name, target.emplace());
    }

    void ReadSwitch(const char* name, RadioSwitch& target) const
    {
        if (Has(name))
            target = m_value->at(name) == "on" ? RadioSwitch::on : RadioSwitch::off;
    }

    [[noreturn]] void Refuse(const std::string& problem) const
    {
        throw ScenarioError(*m_source + ": " + (m_pointer.empty() ? "/" : m_pointer) + ": " + problem);
    }

private:
    const json* m_value;
    const std::string* m_source;
    std::string m_pointer;
};

Bytes ReadHex(const Value& value)
{
    const std::optional<Bytes> bytes = BytesFromHex(value.Text());
    if (!bytes)
        value.Refuse("not pairs of hexadecimal digits");
    return *bytes;
}

MacAddress ReadAddress(const Value& value)
{
    const std::optional<MacAddress> address = AddressFromText(value.Text());
    if (!address)
        value.Refuse("not six bytes in hexadecimal with colons between");
    return *address;
}

Bytes ReadSsidText(const Value& value)
{
    const std::string& text = value.Text();
    if (text.size() > kLongestSsid)
        value.Refuse("an SSID has at most 32 bytes, and this text has " + std::to_string(text.size()) + " in UTF-8");
    return {text.begin(), text.end()};
}

/// The name of a network, given as text or in hexadecimal.
Bytes ReadSsid(const Value& owner, const char* otherwise = "ssid")
{
    if (owner.Has("ssidHex"))
        return ReadHex(owner["ssidHex"]);
    return ReadSsidText(owner[owner.Has("ssid") ? "ssid" : otherwise]);
}

std::string ReadShortProfile(const Value& value)
{
    ProfileSettings settings;
    settings.name = value["name"].Text();
    settings.ssid = ReadSsid(value, "name");
    value.ReadNamed("bssType", kBssTypeNames, settings.bssType);
    // Ad hoc networks are never joined automatically.
    settings.mode = settings.bssType == 2 ? "manual" : "auto";
    value.Read("mode", settings.mode);
    value.Read("authentication", settings.authentication);
    value.Read("encryption", settings.encryption);
    value.Read("key", settings.key);
    value.Read("hidden", settings.hidden);
    return MakeProfileXml(settings);
}

std::vector<StoredProfile> ReadProfiles(const Value& adapter, std::set<std::string>& names)
{
    std::vector<StoredProfile> profiles;
    for (const Value& value : adapter.Elements("profiles"))
    {
        const bool whole = value.Has("xml");
        const std::string xml = whole ? value["xml"].Text() : ReadShortProfile(value);
        ProfileRefusal refusal{};
        const std::optional<ProfileDocument> document = ParseProfile(xml, refusal);
        if (!document)
            (whole ? value["xml"] : value)
                .Refuse("the WLAN service does not take this profile: error " + std::to_string(refusal.error) +
                        ", reason code " + std::to_string(refusal.reason));
        if (!names.insert(Utf8FromWide(document->name)).second)
            value.Refuse("the adapter has another profile of this name");
        profiles.push_back({xml});
    }
    return profiles;
}

std::vector<PhyDescription> ReadPhys(const Value& adapter)
{
    std::vector<PhyDescription> phys;
    for (const Value& value : adapter.Elements("phys"))
    {
        PhyDescription phy;
        value.ReadNamed("type", kPhyNames, phy.type);
        value.ReadSwitch("software", phy.software);
        value.ReadSwitch("hardware", phy.hardware);
        phys.push_back(phy);
    }
    return phys;
}

Connection ReadConnection(const Value& value, const std::set<std::string>& profileNames)
{
    Connection connection{value["profile"].Text(), std::nullopt};
    if (profileNames.count(connection.profile) == 0)
        value["profile"].Refuse("the adapter has no profile of this name");
    if (value.Has("bssid"))
        connection.bssid = ReadAddress(value["bssid"]);
    return connection;
}

IhvAnswer ReadIhvAnswer(const Value& value)
{
    IhvAnswer answer;
    if (value.Has("answer"))
        answer.data = ReadHex(value["answer"]);
    value.Read("error", answer.error);
    return answer;
}

std::map<Bytes, IhvAnswer> ReadIhv(const Value& adapter)
{
    std::map<Bytes, IhvAnswer> answers;
    for (const Value& value : adapter.Elements("ihv"))
        if (!answers.emplace(ReadHex(value["request"]), ReadIhvAnswer(value)).second)
            value["request"].Refuse("there is another answer to this request");
    return answers;
}

AdapterDescription ReadAdapter(const Value& value)
{
    AdapterDescription adapter;
    adapter.guid = value["guid"].Text();
    adapter.description = value["description"].Text();
    adapter.address = ReadAddress(value["address"]);
    if (value.Has("phys"))
        adapter.phys = ReadPhys(value);
    value.Read("scanMilliseconds", adapter.scanMilliseconds);
    value.Read("connectMilliseconds", adapter.connectMilliseconds);
    value.Read("autoConfiguration", adapter.autoConfiguration);
    value.Read("backgroundScan", adapter.backgroundScan);
    adapter.ihv = ReadIhv(value);
    std::set<std::string> profileNames;
    adapter.profiles = ReadProfiles(value, profileNames);
    if (value.Has("connection"))
        adapter.connection = ReadConnection(value["connection"], profileNames);
    if (value.Has("statistics"))
    {
        value["statistics"].ReadCount("transmitted", adapter.statistics.transmitted);
        value["statistics"].ReadCount("received", adapter.statistics.received);
    }
    return adapter;
}

void ReadFrequency(const Value& value, std::uint32_t& frequencyKhz)
{
    value.Read("frequencyKhz", frequencyKhz);
    if (!value.Has("channel"))
        return;
    std::uint32_t channel = 0;
    value.Read("channel", channel);
    const std::string& band = value["band"].Text();
    const std::optional<std::uint32_t> frequency = ChannelFrequency(band, channel);
    if (!frequency)
        value["channel"].Refuse("the " + band + " GHz band has no channel " + std::to_string(channel));
    frequencyKhz = *frequency;
}

std::vector<SignalPoint> ReadTimetable(const Value& accessPoint)
{
    std::vector<SignalPoint> points;
    for (const Value& value : accessPoint.Elements("timetable"))
    {
        SignalPoint point;
        value.Read("at", point.at);
        if (!points.empty() && point.at <= points.back().at)
            value["at"].Refuse("not later than the point before it");
        value.ReadOptional("rssi", point.rssi);
        points.push_back(point);
    }
    return points;
}

AccessPoint ReadAccessPoint(const Value& value)
{
    AccessPoint point;
    point.ssid = ReadSsid(value);
    point.bssid = ReadAddress(value["bssid"]);
    ReadFrequency(value, point.frequencyKhz);
    value.Read("hidden", point.hidden);
    value.Read("rssi", point.rssi);
    value.ReadNamed("phy", kPhyNames, point.phyType);
    value.ReadNamed("bssType", kBssTypeNames, point.bssType);
    value.Read("authentication", point.authentication);
    value.Read("encryption", point.encryption);
    value.Read("beaconPeriod", point.beaconPeriod);
    if (value.Has("informationElements"))
        point.informationElements = ReadHex(value["informationElements"]);
    value.Read("key", point.key);
    value.Read("answers", point.answers);
    value.Read("channelWidth", point.channelWidth);
    point.timetable = ReadTimetable(value);
    return point;
}

std::string LowerCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char character)
                   { return character >= 'A' && character <= 'Z' ? static_cast<char>(character + 32) : character; });
    return text;
}

/// Refuses the member `name` of the first element whose `key` an earlier one has.
template <typename Element, typename Key>
void RefuseDuplicates(const std::vector<Value>& places, const std::vector<Element>& elements, const char* name, Key key)
{
    std::map<decltype(key(elements.front())), std::size_t> first;
    for (std::size_t index = 0; index < elements.size(); ++index)
    {
        const auto [earlier, isNew] = first.emplace(key(elements[index]), index);
        if (!isNew)
            places[index][name].Refuse("the same as that of element " + std::to_string(earlier->second));
    }
}

PowerScheme ReadPowerScheme(const Value& value)
{
    PowerScheme scheme;
    scheme.guid = value["guid"].Text();
    scheme.name = value.Has("nameHex") ? ReadHex(value["nameHex"]) : FriendlyName(value["name"].Text());
    for (const Value& each : value.Elements("values"))
    {
        PowerValue& read = scheme.values.emplace_back();
        read.subgroup = each["subgroup"].Text();
        read.setting = each["setting"].Text();
        each.Read("ac", read.ac);
        each.Read("dc", read.dc);
    }
    return scheme;
}

/// The schemes and the active one, which is the first unless another, or none, is named.
void ReadPowerSchemes(const Value& value, PowerDescription& power)
{
    if (value.Has("schemes"))
    {
        const std::vector<Value> places = value.Elements("schemes");
        power.schemes.clear();
        for (const Value& each : places)
            power.schemes.push_back(ReadPowerScheme(each));
        RefuseDuplicates(places, power.schemes, "guid", [](const auto& each) { return LowerCase(each.guid); });
        power.activeScheme.reset();
        if (!power.schemes.empty())
            power.activeScheme = power.schemes.front().guid;
    }
    value.ReadOptional("activeScheme", power.activeScheme);
    const auto isActive = [&power](const auto& each) { return SameButForCase(each.guid, *power.activeScheme); };
    if (power.activeScheme && std::none_of(power.schemes.begin(), power.schemes.end(), isActive))
        value["activeScheme"].Refuse("there is no scheme with this GUID");
}

LegacyPowerScheme ReadLegacyPowerScheme(const Value& value)
{
    LegacyPowerScheme scheme;
    value.Read("id", scheme.id);
    value.Read("name", scheme.name);
    value.Read("idleTimeoutAc", scheme.idleTimeoutAc);
    value.Read("idleTimeoutDc", scheme.idleTimeoutDc);
    value.Read("videoTimeoutAc", scheme.videoTimeoutAc);
    value.Read("videoTimeoutDc", scheme.videoTimeoutDc);
    return scheme;
}

void ReadLegacyPowerSchemes(const Value& value, PowerDescription& power)
{
    if (value.Has("legacySchemes"))
    {
        const std::vector<Value> places = value.Elements("legacySchemes");
        power.legacySchemes.clear();
        for (const Value& each : places)
            power.legacySchemes.push_back(ReadLegacyPowerScheme(each));
        RefuseDuplicates(places, power.legacySchemes, "id", [](const auto& each) { return each.id; });
        power.activeLegacyScheme.reset();
        if (!power.legacySchemes.empty())
            power.activeLegacyScheme = power.legacySchemes.front().id;
    }
    value.ReadOptional("activeLegacyScheme", power.activeLegacyScheme);
    const auto isActive = [&power](const auto& each) { return each.id == *power.activeLegacyScheme; };
    if (power.activeLegacyScheme && std::none_of(power.legacySchemes.begin(), power.legacySchemes.end(), isActive))
        value["activeLegacyScheme"].Refuse("there is no legacy scheme of this number");
}

PowerDescription ReadPower(const Value& value)
{
    PowerDescription power;
    value.Read("suspendAllowed", power.suspendAllowed);
    value.Read("hibernateAllowed", power.hibernateAllowed);
    value.Read("shutdownAllowed", power.shutdownAllowed);
    value.Read("modernStandby", power.modernStandby);
    value.Read("battery", power.battery);
    value.ReadCount("upMilliseconds", power.upMilliseconds);
    value.ReadCount("lastSleepTime", power.lastSleepTime);
    value.ReadCount("lastWakeTime", power.lastWakeTime);
    value.Read("sleepMilliseconds", power.sleepMilliseconds);
    value.Read("resumesAutomatically", power.resumesAutomatically);
    value.Read("enumerationError", power.enumerationError);
    ReadPowerSchemes(value, power);
    ReadLegacyPowerSchemes(value, power);
    return power;
}

std::vector<Privilege> ReadPrivileges(const std::vector<Value>& places)
{
    std::vector<Privilege> privileges;
    for (const Value& value : places)
    {
        const std::string& name = value["name"].Text();
        const std::optional<LUID> known = PrivilegeLuid(name);
        if (!known)
            value["name"].Refuse("the platform has no privilege of this name");
        privileges.push_back({PrivilegeName(*known), false});
        value.Read("enabled", privileges.back().enabled);
    }
    RefuseDuplicates(places, privileges, "name", [](const auto& each) { return each.name; });
    return privileges;
}

Program ReadProgram(const Value& value)
{
    Program program;
    program.path = value["path"].Text();
    value.ReadOptional("milliseconds", program.milliseconds);
    value.Read("exitCode", program.exitCode);
    return program;
}

RunningProcess ReadRunningProcess(const Value& value)
{
    RunningProcess process;
    value.Read("id", process.id);
    process.path = value["path"].Text();
    value.ReadOptional("milliseconds", process.milliseconds);
    value.Read("exitCode", process.exitCode);
    value.Read("foreign", process.foreign);
    return process;
}

InternetAccess ReadInternet(const Value& value)
{
    for (const InternetName& known : kInternetNames)
        if (value.Text() == known.name)
            return known.access;
    return InternetAccess::reachable;
}

/// What the computer is beside its adapters.
void ReadSystem(const Value& root, Scenario& scenario)
{
    if (root.Has("power"))
        scenario.power = ReadPower(root["power"]);
    root.Read("tokens", scenario.tokens);
    if (root.Has("privileges"))
        scenario.privileges = ReadPrivileges(root.Elements("privileges"));
    root.Read("programPath", scenario.programPath);
    root.ReadOptional("wow64", scenario.wow64);
    const std::vector<Value> programs = root.Elements("programs");
    for (const Value& value : programs)
        scenario.programs.push_back(ReadProgram(value));
    RefuseDuplicates(programs, scenario.programs, "path", [](const auto& each) { return LowerCase(each.path); });
    const std::vector<Value> processes = root.Elements("processes");
    for (const Value& value : processes)
        scenario.processes.push_back(ReadRunningProcess(value));
    RefuseDuplicates(processes, scenario.processes, "id", [](const auto& each) { return each.id; });
    if (root.Has("internet"))
        scenario.internet = ReadInternet(root["internet"]);
}

Scenario ReadScenario(const Value& root)
{
    Scenario scenario;
    root.Read("description", scenario.description);
    root.Read("codePage", scenario.codePage);
    root.Read("locationConsent", scenario.locationConsent);
    root.Read("administrator", scenario.administrator);
    root.ReadNamed("powerSetting", kPowerSettingNames, scenario.powerSetting);
    scenario.serviceRunning = !root.Has("service") || root["service"].Text() == "running";
    ReadSystem(root, scenario);
    const std::vector<Value> adapters = root.Elements("adapters");
    for (const Value& value : adapters)
        scenario.adapters.push_back(ReadAdapter(value));
    const std::vector<Value> points = root.Elements("accessPoints");
    for (const Value& value : points)
        scenario.accessPoints.push_back(ReadAccessPoint(value));
    RefuseDuplicates(adapters, scenario.adapters, "guid", [](const auto& each) { return LowerCase(each.guid); });
    RefuseDuplicates(points, scenario.accessPoints, "bssid", [](const auto& each) { return each.bssid; });
    return scenario;
}

/// "[json.exception.parse_error.101] parse error at line 3, column 5: ..." from "line" on; what tells of no line, such as
/// a number too large to be one, without its label.
std::string SyntaxProblem(const json::exception& error)
{
    const std::string text = error.what();
    const std::size_t line = text.find("line ");
    return text.substr(line != std::string::npos ? line : text.find("] ") + 2);
}

} // namespace

Scenario ParseScenario(const std::string& text, const std::string& source)
{
    json document;
    try
    {
        document = json::parse(text);
    }
    catch (const json::exception& error)
    {
        throw ScenarioError(source + ": " + SyntaxProblem(error));
    }
    ValidateScenario(document, source);
    return ReadScenario(Value(document, source));
}

Scenario LoadScenario(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string text;
    char part[4096];
    while (file.read(part, sizeof(part)), file.gcount() > 0)
        text.append(part, static_cast<std::size_t>(file.gcount()));
    // A folder opens and fails only when it is read.
    if (!file.is_open() || file.bad())
        throw ScenarioError(path + ": cannot be read");
    return ParseScenario(text, path);
}

Scenario BuiltInScenario()
{
    return ParseScenario(kBuiltInScenarioText, "the built-in scenario");
}

} // namespace calvix::simulation
