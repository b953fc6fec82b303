#include "import/capture_values.h"

#include "forms/address_text.h"
#include "forms/channel.h"
#include "forms/guid_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace calvix::host
{

namespace
{

constexpr std::string_view kSampleAddress = "00:00:00:00:00:00";
constexpr std::string_view kSampleGuid = "00000000-0000-0000-0000-000000000000";

bool IsDigitOrMask(char letter)
{
    return std::string_view("0123456789abcdefABCDEFxX*").find(letter) != std::string_view::npos;
}

/// Whether a text has the separators of the sample, and digits or what they were masked with elsewhere.
bool IsLike(std::string_view text, std::string_view sample)
{
    return std::equal(text.begin(), text.end(), sample.begin(), sample.end(),
                      [](char letter, char model) { return model == '0' ? IsDigitOrMask(letter) : letter == model; });
}

std::string WithColons(std::string text)
{
    std::replace(text.begin(), text.end(), '-', ':');
    return text;
}

std::string_view WithoutBraces(std::string_view text)
{
    return text.starts_with('{') && text.ends_with('}') ? text.substr(1, text.size() - 2) : text;
}

LineError Unusable(const CaptureField& field, const std::string& expected)
{
    // Often made unreadable before a capture is shown to others.
    const bool isMasked =
        (IsAddress(field.value) || IsGuid(field.value)) && field.value.find_first_of("xX*") != std::string::npos;
    if (isMasked)
        return LineError(field.line, "\"" + field.name + "\" is masked (\"" + field.value +
                                         "\"): replace it with other digits, the same ones for the same device");
    return LineError(field.line, "\"" + field.name + "\" is \"" + field.value + "\", which is not " + expected);
}

/// The number of a percentage, -1 for any other text. Turkish writes the sign first.
int Percentage(std::string_view text)
{
    if (!text.starts_with('%') && !text.ends_with('%'))
        return -1;
    return WholeNumber(Trim(text.substr(text.starts_with('%') ? 1 : 0, text.size() - 1)));
}

/// "5 GHz", with a point or a comma in "2.4" and the unit in either alphabet; empty for anything else.
std::string_view BandIn(std::string_view text)
{
    constexpr std::pair<std::string_view, std::string_view> kBands[] = {
        {"2.4", "2.4"}, {"2,4", "2.4"}, {"5", "5"}, {"6", "6"}};
    for (const auto& [number, band] : kBands)
    {
        const std::string_view unit = text.starts_with(number) ? Trim(text.substr(number.size())) : "";
        if (SameButForCase(unit, "GHz") || unit == "ГГц")
            return band;
    }
    return {};
}

std::uint32_t Frequency(const CaptureRecord& record)
{
    const CaptureField& field = record.Need("Channel");
    const CaptureField* named = record.Find("Band");
    const std::string_view band = named != nullptr ? BandIn(named->value) : "";
    if (named != nullptr && band.empty())
        throw Unusable(*named, "a known band (2.4, 5 or 6 GHz)");
    const int channel = WholeNumber(field.value);
    if (channel < 0)
        throw Unusable(field, "a channel number");
    if (const std::optional<std::uint32_t> frequency = CapturedFrequency(band, channel))
        return *frequency;
    throw Unusable(field, "a channel of the " + (named != nullptr ? named->value : "2.4 GHz or the 5 GHz") + " band");
}

/// "802.11ax" as DOT11_PHY_TYPE. Some languages have "802.11 ax".
std::uint32_t PhyType(const CaptureField& field)
{
    constexpr std::pair<std::string_view, std::uint32_t> kTypes[] = {{"a", 4u},  {"b", 5u},  {"g", 6u},   {"n", 7u},
                                                                     {"ac", 8u}, {"ad", 9u}, {"ax", 10u}, {"be", 11u}};
    for (const auto& [letters, type] : kTypes)
        if (IsRadioType(field.value) && SameButForCase(Trim(std::string_view(field.value).substr(6)), letters))
            return type;
    throw Unusable(field, "a known radio type (802.11a, b, g, n, ac, ad, ax or be)");
}

/// "WPA2-Personal" is a standard, the same everywhere, and a word for how keys are had; the part in brackets after it,
/// as in "WPA3-Personal (H2E)", is how they are exchanged. Empty for an unknown word.
std::string WpaAuthentication(std::string_view text, const Vocabulary& vocabulary)
{
    const std::size_t end = std::min(text.find_first_not_of("0123456789", 3), text.size());
    const std::string version(text.substr(3, end - 3));
    const std::size_t bits = version == "3" ? text.find("192") : std::string_view::npos;
    std::string_view word = Trim(text.substr(end, bits == std::string_view::npos ? bits : bits - end));
    for (const std::string_view hyphen : {"-", "\u2013"})
    {
        word = Trim(word.substr(word.starts_with(hyphen) ? hyphen.size() : 0));
        word = Trim(word.substr(0, word.size() - (word.ends_with(hyphen) ? hyphen.size() : 0)));
    }
    const std::string how = vocabulary.MeaningOf(word, {"personal", "enterprise"});
    const bool isPersonal = how == "personal" && bits == std::string_view::npos;
    if ((version != "" && version != "2" && version != "3") || (!isPersonal && how != "enterprise"))
        return {};
    if (version != "3")
        return "WPA" + version + (isPersonal ? "PSK" : "");
    return isPersonal ? "WPA3SAE" : bits == std::string_view::npos ? "WPA3ENT" : "WPA3ENT192";
}

std::string Authentication(const CaptureField& field, const Vocabulary& vocabulary)
{
    const std::string_view word = Trim(std::string_view(field.value).substr(0, field.value.find('(')));
    if (std::string explained = vocabulary.Explained(field.value); !explained.empty())
        return explained;
    return word.starts_with("WPA") ? WpaAuthentication(word, vocabulary)
                                   : vocabulary.MeaningOf(word, {"open", "shared", "OWE"});
}

std::string Encryption(const CaptureField& field, const Vocabulary& vocabulary)
{
    constexpr std::pair<std::string_view, const char*> kCiphers[] = {
        {"WEP", "WEP"},  {"WEP-40", "WEP"}, {"WEP-104", "WEP"},  {"TKIP", "TKIP"},
        {"CCMP", "AES"}, {"AES", "AES"},    {"GCMP", "GCMP256"}, {"GCMP-256", "GCMP256"}};
    if (std::string known = vocabulary.MeaningOf(field.value, {"none"}); !known.empty())
        return known;
    for (const auto& [name, cipher] : kCiphers)
        if (SameButForCase(name, field.value))
            return cipher;
    const bool couldBeCipher =
        field.value.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-") == std::string::npos;
    if (vocabulary.foreign && !couldBeCipher)
        return "none";
    throw Unusable(field, "a known encryption (None, WEP, TKIP, CCMP, GCMP ...)");
}

} // namespace

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

bool IsAddress(std::string_view text)
{
    return IsLike(WithColons(std::string(text)), kSampleAddress);
}

bool IsGuid(std::string_view text)
{
    return IsLike(WithoutBraces(text), kSampleGuid);
}

std::uint32_t BssType(const CaptureField& field, const Vocabulary& vocabulary)
{
    const std::string meaning = vocabulary.MeaningOf(field.value, {"infrastructure", "independent"});
    if (meaning.empty())
        throw Unusable(field, "a known network type (Infrastructure or Adhoc)");
    return meaning == "infrastructure" ? 1 : 2;
}

void ReadSecurity(const CaptureField& authentication,
                  const CaptureField& encryption,
                  const Vocabulary& vocabulary,
                  simulation::AccessPoint& accessPoint)
{
    accessPoint.authentication = Authentication(authentication, vocabulary);
    accessPoint.encryption = Encryption(encryption, vocabulary);
    const bool isForeignOpen = accessPoint.encryption == "none" && vocabulary.foreign &&
                               !authentication.value.empty() && !authentication.value.starts_with("WPA");
    if (accessPoint.authentication.empty() && !isForeignOpen)
        throw Unusable(authentication, "a known authentication (Open, WPA2-Personal, WPA3-Enterprise, OWE ...)");
    if (accessPoint.authentication.empty())
        accessPoint.authentication = "open";
}

simulation::MacAddress Address(const CaptureField& field)
{
    if (const auto address = forms::AddressFromText(WithColons(field.value)))
        return *address;
    throw Unusable(field, "an address of six bytes");
}

std::string GuidText(const CaptureField& field)
{
    if (const auto guid = forms::GuidFromText("{" + std::string(WithoutBraces(field.value)) + "}"))
        return forms::GuidText(*guid);
    throw Unusable(field, "a GUID");
}

simulation::Bytes Ssid(std::string_view bytes, std::size_t line)
{
    if (bytes.size() > 32)
        throw LineError(line, "this SSID is longer than 32 bytes");
    return simulation::Bytes(bytes.begin(), bytes.end());
}

void Hear(const CaptureRecord& record, simulation::AccessPoint& accessPoint)
{
    const CaptureField& signal = record.Need("Signal");
    const int quality = Percentage(signal.value);
    if (quality < 0 || quality > 100)
        throw Unusable(signal, "a percentage from 0% to 100%");
    const CaptureField* exact = record.Find("Rssi");
    const int below = exact != nullptr && exact->value.starts_with('-') ? WholeNumber(exact->value.substr(1)) : -1;
    accessPoint.rssi = below >= 0 ? std::max(-below, -120) : quality / 2 - 100;
    accessPoint.phyType = PhyType(record.Need("Radio type"));
    accessPoint.frequencyKhz = Frequency(record);
}

std::uint32_t RateKbps(const CaptureField* field)
{
    double rate = 0;
    if (field != nullptr && field->value.find(' ') == std::string::npos)
    {
        std::string text = field->value;
        std::replace(text.begin(), text.end(), ',', '.');
        std::from_chars(text.data(), text.data() + text.size(), rate);
    }
    return rate > 0 && rate < 1e6 ? static_cast<std::uint32_t>(std::lround(rate * 1000)) : 0;
}

std::optional<std::uint32_t> CapturedFrequency(std::string_view band, int channel)
{
    // The system numbers less as 5 GHz than the standard does.
    const bool is5 = channel >= 32 && channel <= 177;
    if (band.empty())
        band = is5 ? "5" : "2.4";
    if (channel < 0 || (band == "5" && !is5))
        return std::nullopt;
    return forms::ChannelFrequency(band, static_cast<std::uint32_t>(channel));
}

std::uint32_t OldPhyType(std::uint32_t frequencyKhz, int highestRate)
{
    constexpr std::uint32_t kOfdm = 4;
    constexpr std::uint32_t kDsssAtHighRate = 5;
    constexpr std::uint32_t kErp = 6;
    constexpr std::uint32_t kDmg = 9;
    if (frequencyKhz >= 45000000)
        return kDmg;
    if (frequencyKhz >= 3000000)
        return kOfdm;
    return highestRate > 11 ? kErp : kDsssAtHighRate;
}

std::uint32_t FrequencyFromMegahertz(std::string_view text)
{
    // Newer versions of iw print a fraction, which is zero for every channel of these bands.
    const int megahertz = WholeNumber(text.substr(0, text.find_first_of(". ")));
    return megahertz >= 2400 && megahertz <= 71000 ? static_cast<std::uint32_t>(megahertz) * 1000 : 0;
}

} // namespace calvix::host
