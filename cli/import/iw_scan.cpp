#include "forms/address_text.h"
#include "forms/hex_text.h"
#include "import/capture_fields.h"
#include "import/capture_values.h"
#include "import/read_capture.h"

#include <algorithm>
#include <charconv>

namespace calvix::host
{

namespace
{

using simulation::AccessPoint;

/// The address in "BSS 02:00:00:00:00:01(on wlan0)", whose first colon ends the field's name.
std::optional<simulation::MacAddress> AddressOf(const CaptureField& field)
{
    constexpr std::string_view kStart = "BSS ";
    constexpr std::size_t kAfterFirstColon = 14;
    if (!field.name.starts_with(kStart) || field.indent != 0)
        return std::nullopt;
    return forms::AddressFromText(field.name.substr(kStart.size()) + ":" + field.value.substr(0, kAfterFirstColon));
}

bool Has(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

/// iw prints control characters, blanks at the ends, backslashes and, in most versions, all that is not ASCII as \xNN.
std::string Unescape(std::string_view text)
{
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        const auto byte = text.substr(i, 2) == "\\x" ? forms::BytesFromHex(text.substr(i + 2, 2)) : std::nullopt;
        const bool isEscaped = byte && byte->size() == 1;
        bytes += isEscaped ? static_cast<char>(byte->front()) : text[i];
        i += isEscaped ? 3U : 0U;
    }
    return bytes;
}

/// The rates "1.0* 2.0* 5.5* 11.0*", the basic ones with a star.
int HighestRate(std::string_view text)
{
    int highest = 0;
    for (; !text.empty(); text.remove_prefix(std::min(text.find(' '), text.size() - 1) + 1))
        highest = std::max(highest, FirstNumber(text.substr(0, text.find(' '))));
    return highest;
}

/// Older versions print the numbers of the suites that came after them.
std::string NamedSuites(std::string_view text)
{
    constexpr std::pair<std::string_view, std::string_view> kSuites[] = {
        {"00-0f-ac:8", "SAE"}, {"00-0f-ac:9", "FT/SAE"}, {"00-0f-ac:12", "SUITE-B-192"}, {"00-0f-ac:18", "OWE"}};
    std::string named(text);
    for (const auto& [number, name] : kSuites)
        if (HasWord(text, number))
            named += " " + std::string(name);
    return named;
}

std::uint32_t PhyTypeOf(std::string_view element)
{
    constexpr std::pair<std::string_view, std::uint32_t> kElements[] = {
        {"HT ", 7u}, {"VHT ", 8u}, {"HE ", 10u}, {"EHT ", 11u}};
    for (const auto& [start, type] : kElements)
        if (element.starts_with(start) && (element.ends_with("apabilities") || element.ends_with("peration")))
            return type;
    return 0;
}

/// The key of a line is its name; of one further in, which belongs to an element, "RSN * Pairwise ciphers".
void LabelBss(CaptureFields fields, CaptureWarnings& warnings)
{
    std::string element;
    for (CaptureField& field : fields.subspan(1))
    {
        const bool isNested = field.indent > fields[1].indent;
        if (field.indent == 0)
            warnings.Warn(field.line, "\"" + field.Text() + "\" is not understood and left out");
        else
            field.key = isNested ? element + " " + field.name : field.name;
        element = isNested ? element : field.name;
    }
}

std::string ValueUnder(const CaptureRecord& record, const std::string& key)
{
    const CaptureField* const field = record.Find(key);
    return field != nullptr ? field->value : "";
}

std::string CipherOf(const std::string& ciphers, std::size_t line)
{
    if (Has(ciphers, "GCMP-256"))
        return "GCMP256";
    if (HasWord(ciphers, "CCMP"))
        return "AES";
    if (Has(ciphers, "TKIP"))
        return "TKIP";
    throw LineError(line, "a scenario cannot have its ciphers (" + ciphers + ")");
}

/// The best that the access point offers, as Windows shows it; `wpa` is the standard without it.
std::string AuthenticationOf(const std::string& suites, const std::string& wpa, std::size_t line)
{
    const std::pair<const char*, std::string> kSuites[] = {
        {"SUITE-B-192", "WPA3ENT192"}, {"SAE", "WPA3SAE"}, {"OWE", "OWE"}, {"PSK", wpa + "PSK"}, {"802.1X", wpa}};
    for (const auto& [suite, name] : kSuites)
        if (Has(suites, suite))
            return name;
    throw LineError(line, "a scenario cannot have its authentication (" + suites + ")");
}

void ReadProtection(const CaptureRecord& record, AccessPoint& heard, CaptureWarnings& warnings)
{
    const std::size_t line = record.fields.front().line;
    const std::string element = record.Find("RSN") != nullptr ? "RSN" : "WPA";
    heard.authentication = "open";
    heard.encryption = Has(ValueUnder(record, "capability"), "Privacy") ? "WEP" : "none";
    if (record.Find(element) == nullptr)
        return;
    const std::string suites = NamedSuites(ValueUnder(record, element + " * Authentication suites"));
    heard.authentication = AuthenticationOf(suites, element == "RSN" ? "WPA2" : "WPA", line);
    heard.encryption = CipherOf(ValueUnder(record, element + " * Pairwise ciphers"), line);
    if (heard.authentication == "WPA3SAE" && Has(suites, "PSK"))
        warnings.Warn(line, record.title + " accepts both WPA2 and WPA3; the scenario has WPA3");
}

/// Drivers that do not know the strength in dBm have it without a unit, as "70/100".
std::int32_t Strength(const CaptureField& field, CaptureWarnings& warnings)
{
    const std::string_view value = field.value;
    const bool isRelative = value.ends_with("/100");
    const std::string_view digits = value.substr(0, value.find_first_of("./ "));
    int level = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), level);
    if (error != std::errc() || end != digits.data() + digits.size() || (!isRelative && !value.ends_with("dBm")))
        throw LineError(field.line, "\"signal\" is \"" + field.value + "\", which is not a strength in dBm");
    if (isRelative)
        warnings.Warn(field.line, "\"" + field.value + "\" is not in dBm: the strength is a guess");
    return isRelative ? std::clamp(level, 0, 100) / 2 - 100 : std::clamp(level, -120, 0);
}

/// A beacon that hides its name has none, or zeros in its place; the probe response may have it all the same.
void ReadName(const CaptureField& field, AccessPoint& heard)
{
    const simulation::Bytes bytes = Ssid(Unescape(field.value), field.line);
    const bool isName = std::any_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte != 0; });
    if (!heard.hidden || !isName)
        return;
    heard.hidden = false;
    heard.ssid = bytes;
}

AccessPoint ReadBss(const CaptureRecord& record, CaptureWarnings& warnings)
{
    AccessPoint heard;
    heard.bssid = *AddressOf(record.fields.front());
    heard.hidden = true;
    heard.phyType = 0;
    int highestRate = 0;
    for (const CaptureField& field : record.fields)
    {
        heard.phyType = std::max(heard.phyType, PhyTypeOf(field.key));
        if (field.key == "SSID")
            warnings.OrWarn("it is left out", [&] { ReadName(field, heard); });
        else if (field.key == "Supported rates" || field.key == "Extended supported rates")
            highestRate = std::max(highestRate, HighestRate(field.value));
    }
    heard.frequencyKhz = FrequencyFromMegahertz(ValueUnder(record, "freq"));
    const CaptureField* const signal = record.Find("signal");
    if (heard.frequencyKhz == 0 || signal == nullptr)
        throw LineError(record.fields.front().line,
                        std::string("no \"") + (signal != nullptr ? "freq" : "signal") + "\" follows");
    heard.rssi = Strength(*signal, warnings);
    if (heard.phyType == 0)
        heard.phyType = OldPhyType(heard.frequencyKhz, highestRate);
    if (const int period = FirstNumber(ValueUnder(record, "beacon interval")); period > 0 && period <= 0xFFFF)
        heard.beaconPeriod = static_cast<std::uint16_t>(period);
    heard.bssType = Has(ValueUnder(record, "capability"), "IBSS") ? 2 : 1;
    ReadProtection(record, heard, warnings);
    return heard;
}

} // namespace

bool ReadIwScan(std::string_view text, NetworksCapture& capture)
{
    constexpr std::string_view kAdapter = "(on ";
    std::vector<CaptureField> fields = ReadFields(text);
    const auto begins = [](const CaptureField& field) { return AddressOf(field).has_value(); };
    auto begin = std::find_if(fields.begin(), fields.end(), begins);
    if (begin == fields.end())
        return false;
    for (auto line = fields.begin(); line != begin; ++line)
        capture.Warn(line->line, "\"" + line->Text() + "\" is not understood and left out");
    while (begin != fields.end())
    {
        const auto end = std::find_if(begin + 1, fields.end(), begins);
        const CaptureRecord record{"the access point " + forms::AddressText(*AddressOf(*begin)), {begin, end}};
        LabelBss(record.fields, capture);
        if (const std::size_t at = begin->value.find(kAdapter); at != std::string::npos)
            capture.AddAdapterName(
                begin->value.substr(at + kAdapter.size(), begin->value.find(')') - at - kAdapter.size()));
        capture.OrWarn(record.title + " is left out",
                       [&]
                       {
                           capture.accessPoints.push_back(ReadBss(record, capture));
                           if (Has(record.fields.front().value, "-- associated"))
                               capture.AddConnection(capture.accessPoints.back());
                       });
        begin = end;
    }
    capture.RefuseUnless(!capture.accessPoints.empty());
    return true;
}

} // namespace calvix::host
