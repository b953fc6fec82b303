#include "forms/address_text.h"
#include "forms/hex_text.h"
#include "import/capture_values.h"
#include "import/read_capture.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace calvix::host
{

namespace
{

constexpr std::string_view kBssStart = "BSS ";
constexpr std::size_t kAddressSize = 17;

/// What an RSN or WPA element says.
struct SecurityElement
{
    std::string suites;
    std::string ciphers;
    bool isThere = false;
};

struct HeardBss
{
    std::size_t line = 0;
    simulation::AccessPoint accessPoint;
    bool associated = false;
    bool hasSignal = false;
    bool privacy = false;
    int highestRate = 0;
    SecurityElement rsn;
    SecurityElement wpa;

    std::string Title() const { return "the access point " + forms::AddressText(accessPoint.bssid); }
};

std::optional<simulation::MacAddress> StartOf(std::string_view line)
{
    if (!line.starts_with(kBssStart))
        return std::nullopt;
    return forms::AddressFromText(line.substr(kBssStart.size(), kAddressSize));
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

/// iw indents with tabs, which pages and terminals turn into blanks.
std::size_t IndentOf(std::string_view line)
{
    std::size_t indent = 0;
    for (std::size_t i = 0; i < line.size() && (line[i] == ' ' || line[i] == '\t'); ++i)
        indent += line[i] == '\t' ? 8u : 1u;
    return indent;
}

std::string CipherOf(const HeardBss& bss, const SecurityElement& element)
{
    if (Has(element.ciphers, "GCMP-256"))
        return "GCMP256";
    if (HasWord(element.ciphers, "CCMP"))
        return "AES";
    if (Has(element.ciphers, "TKIP"))
        return "TKIP";
    throw LineError(bss.line, "a scenario cannot have its ciphers (" + element.ciphers + ")");
}

/// The best that the access point offers, as Windows shows it.
std::string AuthenticationOf(const HeardBss& bss, const SecurityElement& element)
{
    const std::string wpa = bss.rsn.isThere ? "WPA2" : "WPA";
    const std::pair<const char*, std::string> kSuites[] = {
        {"SUITE-B-192", "WPA3ENT192"}, {"SAE", "WPA3SAE"}, {"OWE", "OWE"}, {"PSK", wpa + "PSK"}, {"802.1X", wpa}};
    for (const auto& [suite, name] : kSuites)
        if (Has(element.suites, suite))
            return name;
    throw LineError(bss.line, "a scenario cannot have its authentication (" + element.suites + ")");
}

class IwReader
{
public:
    explicit IwReader(NetworksCapture& capture) : m_capture(capture) {}

    void ReadLine(std::string_view line, std::size_t number)
    {
        if (const std::optional<simulation::MacAddress> address = StartOf(line))
            return Begin(line, number, *address);
        if (Trim(line).empty())
            return;
        const std::size_t indent = IndentOf(line);
        if (m_found.empty() || indent == 0)
            return m_capture.Warn(number, "\"" + std::string(Trim(line)) + "\" is not understood and left out");
        m_topLevel = m_topLevel == 0 ? indent : m_topLevel;
        if (indent > m_topLevel)
            Nested(Trim(line));
        else
            m_capture.OrWarn("it is left out", [&] { TopLevel(line.substr(line.find_first_not_of(" \t")), number); });
    }

    void Finish()
    {
        for (HeardBss& bss : m_found)
            m_capture.OrWarn(bss.Title() + " is left out", [&] { Add(bss); });
    }

private:
    void Begin(std::string_view line, std::size_t number, const simulation::MacAddress& address)
    {
        constexpr std::string_view kAdapter = "(on ";
        m_element = nullptr;
        HeardBss& bss = m_found.emplace_back();
        bss.line = number;
        bss.accessPoint.bssid = address;
        bss.accessPoint.frequencyKhz = 0;
        bss.accessPoint.phyType = 0;
        bss.accessPoint.hidden = true;
        bss.associated = Has(line, "-- associated");
        line.remove_prefix(std::min(line.find(kAdapter), line.size() - kAdapter.size()) + kAdapter.size());
        m_capture.AddAdapterName(line.substr(0, line.find(')')));
    }

    void TopLevel(std::string_view line, std::size_t number)
    {
        const std::size_t colon = std::min(line.find(':'), line.size());
        const std::string_view name = Trim(line.substr(0, colon));
        const std::string_view rest = line.substr(std::min(colon + 1, line.size()));
        HeardBss& bss = m_found.back();
        m_element = name == "RSN" ? &bss.rsn : name == "WPA" ? &bss.wpa : nullptr;
        if (m_element != nullptr)
            m_element->isThere = true;
        bss.accessPoint.phyType = std::max(bss.accessPoint.phyType, PhyTypeOf(name));
        if (name == "SSID")
            Ssid(rest.starts_with(' ') ? rest.substr(1) : rest, number);
        else
            Value(name, Trim(rest), number);
    }

    void Value(std::string_view name, std::string_view value, std::size_t number)
    {
        HeardBss& bss = m_found.back();
        if (name == "freq")
            bss.accessPoint.frequencyKhz = FrequencyFromMegahertz(value);
        else if (name == "beacon interval" && FirstNumber(value) > 0 && FirstNumber(value) <= 0xFFFF)
            bss.accessPoint.beaconPeriod = static_cast<std::uint16_t>(FirstNumber(value));
        else if (name == "signal")
            Signal(value, number);
        else if (name == "Supported rates" || name == "Extended supported rates")
            bss.highestRate = std::max(bss.highestRate, HighestRate(value));
        else if (name == "capability")
        {
            bss.accessPoint.bssType = Has(value, "IBSS") ? 2 : 1;
            bss.privacy = Has(value, "Privacy");
        }
        else
            Nested(value);
    }

    /// Drivers that do not know the strength in dBm have it without a unit, as "70/100".
    void Signal(std::string_view value, std::size_t number)
    {
        const bool isRelative = value.ends_with("/100");
        const std::string_view digits = value.substr(0, value.find_first_of("./ "));
        int level = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), level);
        if (error != std::errc() || end != digits.data() + digits.size() || (!isRelative && !value.ends_with("dBm")))
            throw LineError(number, "\"signal\" is \"" + std::string(value) + "\", which is not a strength in dBm");
        if (isRelative)
            m_capture.Warn(number, "\"" + std::string(value) + "\" is not in dBm: the strength is a guess");
        m_found.back().hasSignal = true;
        m_found.back().accessPoint.rssi = isRelative ? std::clamp(level, 0, 100) / 2 - 100 : std::clamp(level, -120, 0);
    }

    void Ssid(std::string_view value, std::size_t number)
    {
        const simulation::Bytes bytes = host::Ssid(Unescape(value), number);
        simulation::AccessPoint& accessPoint = m_found.back().accessPoint;
        // A beacon that hides its name has none, or zeros in its place; the probe response may have it all the same.
        const bool isName = std::any_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte != 0; });
        if (!accessPoint.hidden || !isName)
            return;
        accessPoint.hidden = false;
        accessPoint.ssid = bytes;
    }

    /// " * Pairwise ciphers: CCMP TKIP"
    void Nested(std::string_view line)
    {
        const std::size_t colon = line.find(": ");
        if (m_element == nullptr || colon == std::string_view::npos)
            return;
        const std::string_view value = Trim(line.substr(colon + 1));
        if (line.starts_with("* Pairwise ciphers"))
            m_element->ciphers = value;
        else if (line.starts_with("* Authentication suites"))
            m_element->suites = NamedSuites(value);
    }

    void SetSecurity(HeardBss& bss)
    {
        simulation::AccessPoint& accessPoint = bss.accessPoint;
        const SecurityElement& element = bss.rsn.isThere ? bss.rsn : bss.wpa;
        accessPoint.authentication = element.isThere ? AuthenticationOf(bss, element) : "open";
        accessPoint.encryption = element.isThere ? CipherOf(bss, element) : bss.privacy ? "WEP" : "none";
        if (accessPoint.authentication == "WPA3SAE" && Has(element.suites, "PSK"))
            m_capture.Warn(bss.line, bss.Title() + " accepts both WPA2 and WPA3; the scenario has WPA3");
    }

    void Add(HeardBss& bss)
    {
        simulation::AccessPoint& accessPoint = bss.accessPoint;
        if (accessPoint.frequencyKhz == 0 || !bss.hasSignal)
            throw LineError(bss.line, std::string("no \"") + (bss.hasSignal ? "freq" : "signal") + "\" follows");
        if (accessPoint.phyType == 0)
            accessPoint.phyType = OldPhyType(accessPoint.frequencyKhz, bss.highestRate);
        SetSecurity(bss);
        m_capture.accessPoints.push_back(accessPoint);
        if (bss.associated)
            m_capture.AddConnection(accessPoint);
    }

    NetworksCapture& m_capture;
    std::vector<HeardBss> m_found;
    std::size_t m_topLevel = 0;           ///< the indentation of an access point's own lines, 0: not seen yet
    SecurityElement* m_element = nullptr; ///< the element that lines further in belong to
};

} // namespace

bool ReadIwScan(std::string_view text, NetworksCapture& capture)
{
    const std::vector<std::string_view> lines = LinesOf(text);
    if (std::none_of(lines.begin(), lines.end(), [](std::string_view line) { return StartOf(line).has_value(); }))
        return false;
    IwReader reader(capture);
    for (std::size_t i = 0; i < lines.size(); ++i)
        reader.ReadLine(lines[i], i + 1);
    reader.Finish();
    capture.RefuseUnless(!capture.accessPoints.empty());
    return true;
}

} // namespace calvix::host
