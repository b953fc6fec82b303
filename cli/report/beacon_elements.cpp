#include "report/beacon_elements.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

constexpr unsigned kExtendedElement = 255;
constexpr std::uint32_t kFirstWpa = 0x0050f201;

struct SuiteName
{
    std::uint8_t number;
    const char* name;
};

// Several numbers are one kind of network: with fast transition, or with a stronger digest.
constexpr SuiteName kKeyManagement[] = {{1, "WPA2"},      {2, "WPA2-PSK"},  {3, "WPA2"},      {4, "WPA2-PSK"},
                                        {5, "WPA3"},      {6, "WPA2-PSK"},  {8, "WPA3-SAE"},  {9, "WPA3-SAE"},
                                        {11, "WPA3-192"}, {12, "WPA3-192"}, {13, "WPA3-192"}, {18, "OWE"},
                                        {24, "WPA3-SAE"}, {25, "WPA3-SAE"}};
constexpr SuiteName kFirstWpaKeyManagement[] = {{1, "WPA"}, {2, "WPA-PSK"}};
constexpr SuiteName kCiphers[] = {{1, "WEP"},  {2, "TKIP"},     {4, "CCMP"},     {5, "WEP"},
                                  {8, "GCMP"}, {9, "GCMP-256"}, {10, "CCMP-256"}};

/// Takes an element apart from its beginning.
class ContentReader
{
public:
    explicit ContentReader(ElementBytes rest) : m_rest(rest) {}

    ElementBytes Take(std::size_t count)
    {
        const ElementBytes taken = m_rest.first((std::min)(count, m_rest.size()));
        m_rest = m_rest.subspan(taken.size());
        return taken;
    }
    /// The numbers of a counted list of suites, without those of vendors' own.
    std::vector<std::uint8_t> TakeSuites(ElementBytes organisation)
    {
        const ElementBytes count = Take(2);
        std::vector<std::uint8_t> numbers;
        const std::size_t suites = count.size() == 2 ? count[0] + 256u * count[1] : 0;
        for (std::size_t i = 0; i < suites && !m_rest.empty(); ++i)
        {
            const ElementBytes suite = Take(4);
            if (suite.size() == 4 && std::equal(organisation.begin(), organisation.end(), suite.begin()))
                numbers.push_back(suite[3]);
        }
        return numbers;
    }

private:
    ElementBytes m_rest;
};

/// The names of the suites, each once, with `separator` between them.
std::string
NamesOf(std::span<const SuiteName> names, const std::vector<std::uint8_t>& numbers, const std::string& separator)
{
    std::vector<std::string> distinct;
    std::string text;
    for (const std::uint8_t number : numbers)
    {
        const auto known =
            std::find_if(names.begin(), names.end(), [number](const SuiteName& n) { return n.number == number; });
        const std::string name = known != names.end() ? known->name : "suite " + std::to_string(number);
        if (std::find(distinct.begin(), distinct.end(), name) != distinct.end())
            continue;
        distinct.push_back(name);
        text += (text.empty() ? "" : separator) + name;
    }
    return text;
}

std::string ReadSecurity(ElementBytes content, ElementBytes organisation, std::span<const SuiteName> keyManagement)
{
    ContentReader reader(content);
    reader.Take(2); // version
    reader.Take(4); // the group's cipher
    const std::string ciphers = NamesOf(kCiphers, reader.TakeSuites(organisation), "+");
    const std::string keys = NamesOf(keyManagement, reader.TakeSuites(organisation), " + ");
    return keys.empty() || ciphers.empty() ? keys : keys + "/" + ciphers;
}

} // namespace

BeaconElements::BeaconElements(ElementBytes bytes)
{
    while (bytes.size() >= 2)
    {
        unsigned number = bytes[0];
        const std::size_t length = bytes[1];
        bytes = bytes.subspan(2);
        if (length > bytes.size())
            return;
        ElementBytes content = bytes.first(length);
        bytes = bytes.subspan(length);
        if (number == kExtendedElement)
        {
            if (content.empty())
                continue;
            number = 0x100 + content[0];
            content = content.subspan(1);
        }
        m_elements.push_back({number, content});
    }
}

std::optional<ElementBytes> BeaconElements::Find(unsigned number, std::size_t least) const
{
    for (const Element& candidate : m_elements)
        if (candidate.number == number)
            return candidate.content.size() >= least ? std::optional(candidate.content) : std::nullopt;
    return std::nullopt;
}

std::optional<ElementBytes> BeaconElements::FindVendor(std::uint32_t identification) const
{
    for (const Element& candidate : m_elements)
    {
        const ElementBytes content = candidate.content;
        if (candidate.number != element::vendor || content.size() < 4)
            continue;
        std::uint32_t own = 0;
        for (const std::uint8_t byte : content.first(4))
            own = own << 8U | byte;
        if (own == identification)
            return content.subspan(4);
    }
    return std::nullopt;
}

std::string SecurityOf(const BeaconElements& elements)
{
    static constexpr std::uint8_t standard[] = {0x00, 0x0f, 0xac};
    static constexpr std::uint8_t firstWpa[] = {0x00, 0x50, 0xf2};
    std::string text;
    if (const auto rsn = elements.Find(element::rsn))
        text = ReadSecurity(*rsn, standard, kKeyManagement);
    if (const auto old = elements.FindVendor(kFirstWpa))
    {
        const std::string oldText = ReadSecurity(*old, firstWpa, kFirstWpaKeyManagement);
        text += (text.empty() || oldText.empty() ? "" : " + ") + oldText;
    }
    return text;
}

} // namespace calvix::host
