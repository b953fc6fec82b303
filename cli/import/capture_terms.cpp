#include "import/capture_terms.h"

#include "import/channel_frequency.h"
#include "simulation/guid_text.h"
#include "simulation/scenario_names.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <utility>

namespace calvix::host
{

namespace
{

template <typename Value>
using Terms = std::initializer_list<std::pair<std::string_view, Value>>;

LineError Unusable(const CaptureField& field, const std::string& expected)
{
    return LineError(field.line, "\"" + field.name + "\" is \"" + field.value + "\", which is not " + expected);
}

template <typename Value>
Value Meaning(const CaptureField& field, const Terms<Value>& terms, const std::string& expected)
{
    const auto found =
        std::find_if(terms.begin(), terms.end(), [&](const auto& term) { return SameWord(term.first, field.value); });
    if (found == terms.end())
        throw Unusable(field, expected);
    return found->second;
}

/// -1 unless the whole text is a decimal number.
int WholeNumber(std::string_view text)
{
    int number = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? number : -1;
}

std::string_view BandNamed(const CaptureField& field)
{
    return Meaning<const char*>(field, {{"2.4 GHz", "2.4"}, {"5 GHz", "5"}, {"6 GHz", "6"}},
                                "a known band (2.4, 5 or 6 GHz)");
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

} // namespace

std::int32_t SignalStrength(const CaptureField& field)
{
    std::string_view text = field.value;
    const bool hasSign = text.ends_with('%');
    if (hasSign)
        text.remove_suffix(1);
    const int quality = WholeNumber(Trim(text));
    if (!hasSign || quality < 0 || quality > 100)
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

std::uint32_t BssType(const CaptureField& field)
{
    return Meaning<std::uint32_t>(field, {{"Infrastructure", 1u}, {"Adhoc", 2u}, {"Ad hoc", 2u}, {"Ad-hoc", 2u}},
                                  "a known network type (Infrastructure or Adhoc)");
}

std::string Authentication(const CaptureField& field)
{
    return Meaning<const char*>(field,
                                {{"Open", "open"},
                                 {"Shared", "shared"},
                                 {"WPA-Personal", "WPAPSK"},
                                 {"WPA-Enterprise", "WPA"},
                                 {"WPA2-Personal", "WPA2PSK"},
                                 {"WPA2-Enterprise", "WPA2"},
                                 {"WPA3-Personal", "WPA3SAE"},
                                 {"WPA3-Enterprise", "WPA3ENT"},
                                 {"WPA3-Enterprise 192 Bits", "WPA3ENT192"},
                                 {"WPA3-Enterprise-192", "WPA3ENT192"},
                                 {"OWE", "OWE"},
                                 {"Enhanced Open", "OWE"}},
                                "a known authentication (Open, WPA2-Personal, WPA3-Enterprise, OWE ...)");
}

std::string Encryption(const CaptureField& field)
{
    return Meaning<const char*>(field,
                                {{"None", "none"},
                                 {"WEP", "WEP"},
                                 {"WEP-40", "WEP"},
                                 {"WEP-104", "WEP"},
                                 {"TKIP", "TKIP"},
                                 {"CCMP", "AES"},
                                 {"AES", "AES"},
                                 {"GCMP", "GCMP256"},
                                 {"GCMP-256", "GCMP256"}},
                                "a known encryption (None, WEP, TKIP, CCMP, GCMP ...)");
}

simulation::MacAddress Address(const CaptureField& field)
{
    std::string text = field.value;
    std::replace(text.begin(), text.end(), '-', ':');
    const std::optional<simulation::MacAddress> address = simulation::AddressFromText(text);
    if (!address)
        throw Unusable(field, "an address of six bytes");
    return *address;
}

std::string GuidText(const CaptureField& field)
{
    std::string text = field.value.starts_with('{') ? field.value : "{" + field.value + "}";
    if (!simulation::GuidFromText(text))
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
    accessPoint.phyType = PhyType(record.Need("Radio type"));
    accessPoint.frequencyKhz = Frequency(record);
}

} // namespace calvix::host
