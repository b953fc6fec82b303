#include "import/capture_terms.h"

#include "forms/address_text.h"
#include "forms/guid_text.h"
#include "import/channel_frequency.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <utility>

namespace calvix::host
{

namespace
{

template <typename Value>
using Terms = std::initializer_list<std::pair<std::string_view, Value>>;

/// Addresses and GUIDs are often made unreadable before a capture is shown to others.
bool IsMasked(std::string_view text)
{
    return text.find_first_of("xX*") != std::string_view::npos && text.find_first_of(":-") != std::string_view::npos &&
           text.find_first_not_of("0123456789abcdefABCDEFxX*:-{}") == std::string_view::npos;
}

LineError Unusable(const CaptureField& field, const std::string& expected)
{
    if (IsMasked(field.value))
        return LineError(field.line, "\"" + field.name + "\" is masked (\"" + field.value +
                                         "\"): write other digits in its place, the same for the same device");
    return LineError(field.line, "\"" + field.name + "\" is \"" + field.value + "\", which is not " + expected);
}

std::string WithoutBlanks(std::string text)
{
    text.erase(std::remove(text.begin(), text.end(), ' '), text.end());
    return text;
}

/// Some languages have "802.11 ax".
template <typename Value>
Value Meaning(const CaptureField& field, const Terms<Value>& terms, const std::string& expected)
{
    const std::string word = WithoutBlanks(field.value);
    const auto found =
        std::find_if(terms.begin(), terms.end(), [&](const auto& term) { return SameWord(term.first, word); });
    if (found == terms.end())
        throw Unusable(field, expected);
    return found->second;
}

std::optional<simulation::MacAddress> AddressIn(std::string_view value)
{
    std::string text(value);
    std::replace(text.begin(), text.end(), '-', ':');
    return forms::AddressFromText(text);
}

/// "5 GHz", with a point or a comma in "2.4" and the unit in either alphabet; empty for anything else.
std::string_view BandIn(std::string_view text)
{
    constexpr std::array<std::pair<std::string_view, std::string_view>, 4> kBands{
        {{"2.4", "2.4"}, {"2,4", "2.4"}, {"5", "5"}, {"6", "6"}}};
    for (const auto& [number, band] : kBands)
    {
        const std::string_view unit = text.starts_with(number) ? Trim(text.substr(number.size())) : "";
        if (SameWord(unit, "GHz") || unit == "ГГц")
            return band;
    }
    return {};
}

std::string_view BandNamed(const CaptureField& field)
{
    const std::string_view band = BandIn(field.value);
    if (band.empty())
        throw Unusable(field, "a known band (2.4, 5 or 6 GHz)");
    return band;
}

std::uint32_t Frequency(const CaptureRecord& record)
{
    const CaptureField& field = record.Need("Channel");
    const CaptureField* named = record.Find("Band");
    const int channel = WholeNumber(field.value);
    if (channel < 0)
        throw Unusable(field, "a channel number");
    const auto number = static_cast<std::uint32_t>(channel);
    const std::string_view band = named != nullptr ? BandNamed(*named) : BandOfChannel(number);
    const std::optional<std::uint32_t> frequency = CapturedFrequency(band, number);
    if (!frequency)
        throw Unusable(field,
                       "a channel of the " + (named != nullptr ? named->value : "2.4 GHz or the 5 GHz") + " band");
    return *frequency;
}

/// "WPA2-Personal" is a standard, the same everywhere, and a word for how keys are had.
std::string WpaAuthentication(std::string_view text)
{
    const std::size_t end = text.find_first_not_of("0123456789", 3);
    const std::string_view version = text.substr(3, end == std::string_view::npos ? end : end - 3);
    if (end == std::string_view::npos || version.size() > 1 || (!version.empty() && version != "2" && version != "3"))
        return {};
    std::string_view word = text.substr(end);
    const std::size_t bits = version == "3" ? word.find("192") : std::string_view::npos;
    word = Trim(word.substr(0, bits));
    while (word.starts_with('-') || word.starts_with("\u2013") || word.ends_with('-'))
        word = Trim(word.ends_with('-') ? word.substr(0, word.size() - 1) : word.substr(word[0] == '-' ? 1 : 3));
    const std::optional<std::string_view> how = MeaningOf(WordKind::authentication, word);
    const std::string standard = "WPA" + std::string(version);
    if (how == "personal" && bits == std::string_view::npos)
        return version == "3" ? "WPA3SAE" : standard + "PSK";
    if (how != "enterprise")
        return {};
    return version != "3" ? standard : bits == std::string_view::npos ? "WPA3ENT" : "WPA3ENT192";
}

/// Empty for a word that nothing here knows. What stands in brackets after it, as in "WPA3-Personal (H2E)", is how keys
/// are exchanged.
std::string Authentication(const CaptureField& field, const Vocabulary& vocabulary)
{
    const std::string_view word = Trim(std::string_view(field.value).substr(0, field.value.find('(')));
    if (const std::optional<std::string> explained = Explained(vocabulary, field.value))
        return *explained;
    if (word.starts_with("WPA"))
        return WpaAuthentication(word);
    const auto meaning = MeaningOf(WordKind::authentication, word);
    return meaning && meaning != "personal" && meaning != "enterprise" ? std::string(*meaning) : std::string();
}

/// Whether a text could be the name of a cipher: capitals, digits and hyphens.
bool IsAcronym(std::string_view text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char letter) {
                           return (letter >= 'A' && letter <= 'Z') || (letter >= '0' && letter <= '9') || letter == '-';
                       });
}

std::string Encryption(const CaptureField& field, const Vocabulary& vocabulary)
{
    constexpr std::array<std::pair<std::string_view, const char*>, 8> kCiphers{{{"WEP", "WEP"},
                                                                                {"WEP-40", "WEP"},
                                                                                {"WEP-104", "WEP"},
                                                                                {"TKIP", "TKIP"},
                                                                                {"CCMP", "AES"},
                                                                                {"AES", "AES"},
                                                                                {"GCMP", "GCMP256"},
                                                                                {"GCMP-256", "GCMP256"}}};
    if (const std::optional<std::string> explained = Explained(vocabulary, field.value))
        return *explained;
    const auto found = std::find_if(kCiphers.begin(), kCiphers.end(),
                                    [&](const auto& cipher) { return SameWord(cipher.first, field.value); });
    if (found != kCiphers.end())
        return found->second;
    if (MeaningOf(WordKind::encryption, field.value) || (vocabulary.foreign && !IsAcronym(field.value)))
        return "none";
    throw Unusable(field, "a known encryption (None, WEP, TKIP, CCMP, GCMP ...)");
}

} // namespace

/// The number of a percentage, -1 for any other text. Turkish writes the sign first.
int Percentage(std::string_view text)
{
    const bool isFirst = text.starts_with('%');
    if (!isFirst && !text.ends_with('%'))
        return -1;
    return WholeNumber(Trim(text.substr(isFirst ? 1 : 0, text.size() - 1)));
}

bool IsPercentage(std::string_view text)
{
    return Percentage(text) >= 0;
}

bool IsRadioType(std::string_view text)
{
    return text.starts_with("802.11");
}

bool IsBand(std::string_view text)
{
    return !BandIn(text).empty();
}

bool IsNumberList(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("0123456789., ") == std::string_view::npos;
}

bool IsAddress(std::string_view text)
{
    return AddressIn(text).has_value();
}

bool IsGuid(std::string_view text)
{
    return forms::GuidFromText(text.starts_with('{') ? std::string(text) : "{" + std::string(text) + "}").has_value();
}

std::int32_t SignalStrength(const CaptureField& field)
{
    const int quality = Percentage(field.value);
    if (quality < 0 || quality > 100)
        throw Unusable(field, "a percentage from 0% to 100%");
    return quality / 2 - 100;
}

std::uint32_t PhyType(const CaptureField& field)
{
    return Meaning<std::uint32_t>(field,
                                  {{"802.11a", 4u},
                                   {"802.11b", 5u},
                                   {"802.11g", 6u},
                                   {"802.11n", 7u},
                                   {"802.11ac", 8u},
                                   {"802.11ad", 9u},
                                   {"802.11ax", 10u},
                                   {"802.11be", 11u}},
                                  "a known radio type (802.11a, b, g, n, ac, ad, ax or be)");
}

std::uint32_t BssType(const CaptureField& field, const Vocabulary& vocabulary)
{
    const std::optional<std::string> explained = Explained(vocabulary, field.value);
    const std::optional<std::string_view> meaning =
        explained ? std::optional<std::string_view>(*explained) : MeaningOf(WordKind::networkType, field.value);
    if (meaning)
        return *meaning == "infrastructure" ? 1 : 2;
    throw Unusable(field, "a known network type (Infrastructure or Adhoc)");
}

NetworkSecurity
Security(const CaptureField& authentication, const CaptureField& encryption, const Vocabulary& vocabulary)
{
    const std::string how = Authentication(authentication, vocabulary);
    const std::string cipher = Encryption(encryption, vocabulary);
    if (!how.empty())
        return {how, cipher};
    if (cipher == "none" && vocabulary.foreign && !authentication.value.empty() &&
        !authentication.value.starts_with("WPA"))
        return {"open", cipher};
    throw Unusable(authentication, "a known authentication (Open, WPA2-Personal, WPA3-Enterprise, OWE ...)");
}

simulation::MacAddress Address(const CaptureField& field)
{
    const std::optional<simulation::MacAddress> address = AddressIn(field.value);
    if (!address)
        throw Unusable(field, "an address of six bytes");
    return *address;
}

std::string GuidText(const CaptureField& field)
{
    std::string text = field.value.starts_with('{') ? field.value : "{" + field.value + "}";
    if (!forms::GuidFromText(text))
        throw Unusable(field, "a GUID");
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char letter)
                   { return letter >= 'a' && letter <= 'f' ? static_cast<char>(letter - 'a' + 'A') : letter; });
    return text;
}

simulation::Bytes Ssid(const CaptureField& field)
{
    if (field.value.size() > 32)
        throw LineError(field.line, "this SSID is longer than 32 bytes");
    return simulation::Bytes(field.value.begin(), field.value.end());
}

void Hear(const CaptureRecord& record, simulation::AccessPoint& accessPoint)
{
    accessPoint.rssi = SignalStrength(record.Need("Signal"));
    const CaptureField* exact = record.Find("Rssi");
    const int below = exact != nullptr && exact->value.starts_with('-') ? WholeNumber(exact->value.substr(1)) : -1;
    if (below >= 0)
        accessPoint.rssi = std::max(-below, -120);
    accessPoint.phyType = PhyType(record.Need("Radio type"));
    accessPoint.frequencyKhz = Frequency(record);
}

} // namespace calvix::host
