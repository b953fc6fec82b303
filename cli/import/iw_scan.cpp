#include "import/iw_scan.h"

#include "import/capture_text.h"
#include "import/heard_access_point.h"
#include "output/text_forms.h"

#include <algorithm>
#include <charconv>

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
    bool hasSsid = false;
    bool privacy = false;
    double highestRate = 0;
    SecurityElement rsn;
    SecurityElement wpa;
};

std::optional<simulation::MacAddress> StartOf(std::string_view line)
{
    if (!line.starts_with(kBssStart))
        return std::nullopt;
    return forms::AddressFromText(std::string(line.substr(kBssStart.size(), kAddressSize)));
}

/// iw prints control characters, blanks at the ends, backslashes and, in most versions, all that is not ASCII as \xNN.
std::string Unescape(std::string_view text)
{
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        const bool mark = text.substr(i, 2) == "\\x" && i + 3 < text.size();
        const auto byte = mark ? forms::BytesFromHex(text.substr(i + 2, 2)) : std::nullopt;
        bytes += byte ? static_cast<char>(byte->front()) : text[i];
        i += byte ? 3U : 0U;
    }
    return bytes;
}

bool Has(const std::string& text, std::string_view part)
{
    return text.find(part) != std::string::npos;
}

/// The rates "1.0* 2.0* 5.5* 11.0*", the basic ones with a star.
double HighestRate(std::string_view text)
{
    double highest = 0;
    while (!text.empty())
    {
        const std::size_t end = text.find(' ');
        highest = std::max(highest, static_cast<double>(FirstNumber(text.substr(0, end))));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return highest;
}

/// Older versions print the numbers of the suites that came after them.
std::string NamedSuites(std::string text)
{
    constexpr std::pair<std::string_view, std::string_view> kSuites[] = {
        {"00-0f-ac:8", "SAE"}, {"00-0f-ac:9", "FT/SAE"}, {"00-0f-ac:12", "SUITE-B-192"}, {"00-0f-ac:18", "OWE"}};
    for (const auto& [number, name] : kSuites)
        for (std::size_t at = 0; (at = text.find(number, at)) != std::string::npos; ++at)
            if (at + number.size() == text.size() || text[at + number.size()] == ' ')
                text.replace(at, number.size(), name);
    return text;
}

std::uint32_t PhyTypeOf(std::string_view element)
{
    constexpr std::pair<std::string_view, std::uint32_t> kElements[] = {
        {"HT ", 7u}, {"VHT ", 8u}, {"HE ", 10u}, {"EHT ", 11u}};
    for (const auto& [start, type] : kElements)
        if (element.starts_with(start) && (element.ends_with("capabilities") || element.ends_with("operation") ||
                                           element.ends_with("Capabilities") || element.ends_with("Operation")))
            return type;
    return 0;
}

class IwReader
{
public:
    explicit IwReader(NetworksCapture& capture) : m_capture(capture) {}

    void Read(std::string_view line, std::size_t number)
    {
        try
        {
            ReadLine(line, number);
        }
        catch (const LineError& error)
        {
            Report(error.line(), std::string(error.what()) + "; it is left out");
        }
    }

    void Finish()
    {
        for (HeardBss& bss : m_found)
            Add(bss);
    }

private:
    void ReadLine(std::string_view line, std::size_t number)
    {
        if (const std::optional<simulation::MacAddress> address = StartOf(line))
            return Begin(line, number, *address);
        if (Trim(line).empty())
            return;
        const std::size_t indent = IndentOf(line);
        if (m_found.empty() || indent == 0)
            return Report(number, "\"" + std::string(Trim(line)) + "\" is not understood and left out");
        m_topLevel = m_topLevel == 0 ? indent : m_topLevel;
        if (indent <= m_topLevel)
            TopLevel(line.substr(line.find_first_not_of(" \t")), number);
        else
            Nested(Trim(line));
    }

    /// iw indents with tabs, which pages and terminals turn into blanks.
    static std::size_t IndentOf(std::string_view line)
    {
        std::size_t indent = 0;
        for (std::size_t i = 0; i < line.size() && (line[i] == ' ' || line[i] == '\t'); ++i)
            indent += line[i] == '\t' ? 8u : 1u;
        return indent;
    }

    void Report(std::size_t line, const std::string& what)
    {
        m_capture.warnings.push_back(m_capture.source + ":" + std::to_string(line) + ": " + what);
    }

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
        bss.associated = line.find("-- associated") != std::string_view::npos;
        const std::size_t at = line.find(kAdapter);
        if (at == std::string_view::npos)
            return;
        std::string_view name = line.substr(at + kAdapter.size());
        name = name.substr(0, name.find(')'));
        std::vector<std::string>& names = m_capture.adapterNames;
        if (std::find(names.begin(), names.end(), name) == names.end())
            names.emplace_back(name);
    }

    void TopLevel(std::string_view line, std::size_t number)
    {
        const std::size_t colon = line.find(':');
        const std::string_view name = Trim(line.substr(0, colon));
        std::string_view value = colon == std::string_view::npos ? "" : line.substr(colon + 1);
        HeardBss& bss = m_found.back();
        m_element = name == "RSN" ? &bss.rsn : name == "WPA" ? &bss.wpa : nullptr;
        if (m_element != nullptr)
            m_element->isThere = true;
        if (name == "SSID")
            Ssid(value.starts_with(' ') ? value.substr(1) : value, number);
        else
            Value(name, Trim(value), number);
        bss.accessPoint.phyType = std::max(bss.accessPoint.phyType, PhyTypeOf(name));
    }

    void Value(std::string_view name, std::string_view value, std::size_t number)
    {
        HeardBss& bss = m_found.back();
        if (name == "freq")
            bss.accessPoint.frequencyKhz = FrequencyFromMegahertz(value);
        else if (name == "beacon interval")
            BeaconPeriod(FirstNumber(value));
        else if (name == "signal")
            Signal(value, number);
        else if (name == "Supported rates" || name == "Extended supported rates")
            bss.highestRate = std::max(bss.highestRate, HighestRate(value));
        else if (name == "capability")
        {
            bss.accessPoint.bssType = Has(std::string(value), "IBSS") ? 2 : 1;
            bss.privacy = Has(std::string(value), "Privacy");
        }
        else if (m_element != nullptr)
            Nested(value);
    }

    void BeaconPeriod(int period)
    {
        if (period > 0 && period <= 0xFFFF)
            m_found.back().accessPoint.beaconPeriod = static_cast<std::uint16_t>(period);
    }

    /// Drivers that do not know the strength in dBm tell it without a unit, as "70/100".
    void Signal(std::string_view value, std::size_t number)
    {
        const bool isRelative = value.ends_with("/100");
        const std::string_view digits = value.substr(0, value.find_first_of("./ "));
        int level = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), level);
        if (error != std::errc() || end != digits.data() + digits.size() || (!isRelative && !value.ends_with("dBm")))
            throw LineError(number, "\"signal\" is \"" + std::string(value) + "\", which is not a strength in dBm");
        m_found.back().hasSignal = true;
        m_found.back().accessPoint.rssi = isRelative ? std::clamp(level, 0, 100) / 2 - 100 : std::clamp(level, -120, 0);
    }

    void Ssid(std::string_view value, std::size_t number)
    {
        const std::string bytes = Unescape(value);
        HeardBss& bss = m_found.back();
        if (bytes.size() > 32)
            throw LineError(number, "this SSID is longer than 32 bytes");
        // A beacon that hides its name has none, or zeros in its place; the probe response may tell it all the same.
        if (bss.hasSsid || bytes.find_first_not_of('\0') == std::string::npos)
            return;
        bss.hasSsid = true;
        bss.accessPoint.hidden = false;
        bss.accessPoint.ssid.assign(bytes.begin(), bytes.end());
    }

    /// " * Pairwise ciphers: CCMP TKIP"
    void Nested(std::string_view line)
    {
        if (m_element == nullptr || !line.starts_with("* "))
            return;
        const std::size_t colon = line.find(':');
        const std::string_view name = line.substr(2, colon == std::string_view::npos ? colon : colon - 2);
        const std::string_view value = colon == std::string_view::npos ? "" : Trim(line.substr(colon + 1));
        if (name == "Pairwise ciphers")
            m_element->ciphers = value;
        else if (name == "Authentication suites")
            m_element->suites = NamedSuites(std::string(value));
    }

    std::string CipherOf(const HeardBss& bss, const SecurityElement& element)
    {
        if (Has(element.ciphers, "GCMP-256"))
            return "GCMP256";
        if (Has(" " + element.ciphers + " ", " CCMP "))
            return "AES";
        if (Has(element.ciphers, "TKIP"))
            return "TKIP";
        throw LineError(bss.line, "its ciphers (" + element.ciphers + ") are none that a scenario has");
    }

    /// The best that the access point offers, as Windows shows it.
    std::string AuthenticationOf(const HeardBss& bss, const SecurityElement& element, const std::string& wpa)
    {
        const std::string& suites = element.suites;
        if (Has(suites, "SUITE-B-192"))
            return "WPA3ENT192";
        if (Has(suites, "SAE") && Has(suites, "PSK"))
            Report(bss.line, MacOf(bss) + " takes both WPA2 and WPA3; the scenario has WPA3");
        if (Has(suites, "SAE"))
            return "WPA3SAE";
        if (Has(suites, "OWE"))
            return "OWE";
        if (Has(suites, "PSK"))
            return wpa + "PSK";
        if (Has(suites, "802.1X"))
            return wpa;
        throw LineError(bss.line, "its authentication (" + suites + ") is none that a scenario has");
    }

    void SetSecurity(HeardBss& bss)
    {
        simulation::AccessPoint& accessPoint = bss.accessPoint;
        const SecurityElement& element = bss.rsn.isThere ? bss.rsn : bss.wpa;
        if (element.isThere)
        {
            accessPoint.authentication = AuthenticationOf(bss, element, bss.rsn.isThere ? "WPA2" : "WPA");
            accessPoint.encryption = CipherOf(bss, element);
            return;
        }
        accessPoint.authentication = "open";
        accessPoint.encryption = bss.privacy ? "WEP" : "none";
    }

    static std::string MacOf(const HeardBss& bss)
    {
        return "the access point " + forms::AddressText(bss.accessPoint.bssid);
    }

    void Add(HeardBss& bss)
    {
        simulation::AccessPoint& accessPoint = bss.accessPoint;
        if (accessPoint.frequencyKhz == 0 || !bss.hasSignal)
            return Report(bss.line,
                          MacOf(bss) + " has no \"" + (bss.hasSignal ? "freq" : "signal") + "\" and is left out");
        if (accessPoint.phyType == 0)
            accessPoint.phyType = OldPhyType(accessPoint.frequencyKhz, bss.highestRate);
        try
        {
            SetSecurity(bss);
        }
        catch (const LineError& error)
        {
            return Report(bss.line, MacOf(bss) + " is left out: " + error.what());
        }
        AddHeard(m_capture, accessPoint);
        if (bss.associated)
            AddConnection(m_capture, accessPoint);
    }

    NetworksCapture& m_capture;
    std::vector<HeardBss> m_found;
    std::size_t m_topLevel = 0;           ///< the indentation of an access point's own lines, 0: not seen yet
    SecurityElement* m_element = nullptr; ///< the element that lines further in belong to
};

} // namespace

bool LooksLikeIwScan(std::string_view text)
{
    const std::vector<std::string_view> lines = LinesOf(text);
    return std::any_of(lines.begin(), lines.end(), [](std::string_view line) { return StartOf(line).has_value(); });
}

NetworksCapture ParseIwScan(std::string_view text, const std::string& source)
{
    return ReadingFrom(source,
                       [&]
                       {
                           if (!LooksLikeIwScan(text))
                               throw LineError(1, "this is no output of \"iw dev wlan0 scan\"");
                           NetworksCapture capture;
                           capture.source = source;
                           IwReader reader(capture);
                           const std::vector<std::string_view> lines = LinesOf(text);
                           for (std::size_t i = 0; i < lines.size(); ++i)
                               reader.Read(lines[i], i + 1);
                           reader.Finish();
                           RefuseUseless(capture);
                           return capture;
                       });
}

} // namespace calvix::host
