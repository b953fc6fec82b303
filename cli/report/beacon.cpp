#include "report/beacon.h"

#include "forms/channel.h"
#include "report/beacon_elements.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

constexpr USHORT kPrivacy = 0x0010;

/// A channel as wide as its access point uses it.
struct WideChannel
{
    unsigned widthMhz = 20;
    unsigned long centreMhz = 0;
};

/// The 40 MHz channel of HT operation, which names the side on which the second half lies.
std::optional<WideChannel> HtChannel(const BeaconElements& elements, unsigned long primaryMhz)
{
    const auto operation = elements.Find(element::ht_operation, 2);
    if (!operation)
        return std::nullopt;
    const unsigned second = (*operation)[1] & 0x03;
    if (second == 1)
        return WideChannel{40, primaryMhz + 10};
    if (second == 3)
        return WideChannel{40, primaryMhz - 10};
    return WideChannel{20, primaryMhz};
}

/// From the width and the two centres of VHT operation. Beacons of 160 MHz give the first 80 MHz and the whole; an older
/// form gives the whole only.
std::optional<WideChannel> VhtChannel(ElementBytes operation, unsigned long base)
{
    const unsigned width = operation[0];
    const unsigned long first = base + 5UL * operation[1];
    const unsigned long second = base + 5UL * operation[2];
    if (width == 2)
        return WideChannel{160, first};
    if (width == 0 || operation[1] == 0)
        return std::nullopt;
    const unsigned long apart = second > first ? second - first : first - second;
    if (width == 1 && operation[2] != 0 && apart == 40)
        return WideChannel{160, second};
    return WideChannel{80, first};
}

/// The part of HE operation that 6 GHz beacons have, after the other parts that the parameters announce.
std::optional<WideChannel> HeChannel(const BeaconElements& elements, unsigned long base)
{
    const auto operation = elements.Find(element::he_operation, 6);
    if (!operation || ((*operation)[2] & 0x02) == 0)
        return std::nullopt;
    std::size_t at = 6;
    if (((*operation)[1] & 0x40) != 0)
        at += 3;
    if (((*operation)[1] & 0x80) != 0)
        at += 1;
    if (operation->size() < at + 5)
        return std::nullopt;
    const ElementBytes six = operation->subspan(at);
    const unsigned width = 20U << (six[1] & 0x03U);
    return WideChannel{width, base + 5UL * (width == 160 && six[3] != 0 ? six[3] : six[2])};
}

std::optional<WideChannel> EhtChannel(const BeaconElements& elements, unsigned long base)
{
    const auto operation = elements.Find(element::eht_operation, 8);
    if (!operation || ((*operation)[0] & 0x01) == 0)
        return std::nullopt;
    const unsigned code = (*operation)[5] & 0x07U;
    if (code > 4)
        return std::nullopt;
    const unsigned centre = code >= 3 ? (*operation)[7] : (*operation)[6];
    return centre != 0 ? std::optional(WideChannel{20U << code, base + 5UL * centre}) : std::nullopt;
}

/// The newest element with a channel decides: older ones describe the part that old adapters can use.
std::optional<WideChannel> ChannelOf(const BeaconElements& elements, unsigned long primaryMhz)
{
    const unsigned long base = forms::ChannelBaseMhz(static_cast<std::uint32_t>(primaryMhz));
    if (const auto eht = EhtChannel(elements, base))
        return eht;
    if (const auto he = HeChannel(elements, base))
        return he;
    if (const auto vht = elements.Find(element::vht_operation, 3))
    {
        if (const auto channel = VhtChannel(*vht, base))
            return channel;
    }
    return HtChannel(elements, primaryMhz);
}

/// Spatial streams, and the bits that the best modulation carries on each subcarrier, in thousandths.
struct Modulation
{
    unsigned streams = 0;
    unsigned long bits = 0;
    bool isHe = false; ///< the longer symbols with narrower subcarriers
};

/// From a map that gives two bits to each number of streams; 3: not that many.
Modulation FromMap(unsigned map, const unsigned long (&bits)[3], bool isHe)
{
    Modulation best;
    for (unsigned streams = 1; streams <= 8; ++streams)
    {
        const unsigned code = map >> (2 * (streams - 1)) & 0x03U;
        if (code < 3)
            best = {streams, bits[code], isHe};
    }
    return best;
}

Modulation EhtModulation(ElementBytes capabilities)
{
    static constexpr unsigned long bits[] = {6667, 8333, 10000};
    Modulation best;
    for (std::size_t i = 0; i < 3; ++i)
        if (const unsigned streams = capabilities[11 + i] & 0x0fU)
            best = {streams, bits[i], true};
    return best;
}

Modulation ModulationOf(const BeaconElements& elements)
{
    static constexpr unsigned long vhtBits[] = {5000, 6000, 6667};
    static constexpr unsigned long heBits[] = {5000, 6667, 8333};
    if (const auto eht = elements.Find(element::eht_capabilities, 14))
        return EhtModulation(*eht);
    if (const auto he = elements.Find(element::he_capabilities, 19))
        return FromMap((*he)[17] | static_cast<unsigned>((*he)[18]) << 8U, heBits, true);
    if (const auto vht = elements.Find(element::vht_capabilities, 6))
        return FromMap((*vht)[4] | static_cast<unsigned>((*vht)[5]) << 8U, vhtBits, false);
    Modulation ht;
    if (const auto capabilities = elements.Find(element::ht_capabilities, 7))
        for (std::size_t i = 3; i < 7 && (*capabilities)[i] != 0; ++i)
            ht = {static_cast<unsigned>(i - 2), 5000, false};
    return ht;
}

/// The rate at the best modulation with the shortest guard interval.
unsigned long FastestKbps(const Modulation& modulation, unsigned widthMhz)
{
    static constexpr unsigned long subcarriers[] = {52, 108, 234, 468, 936};
    static constexpr unsigned long heSubcarriers[] = {234, 468, 980, 1960, 3920};
    std::size_t width = 0;
    while (width < 4 && (20U << width) < widthMhz)
        ++width;
    // Bits for a channel of 20 MHz do not come out even at the best modulation of VHT.
    const unsigned long bits = !modulation.isHe && width == 0 ? (std::min)(modulation.bits, 6000UL) : modulation.bits;
    const std::uint64_t carried = std::uint64_t{modulation.streams} * bits;
    const std::uint64_t kbps = modulation.isHe ? carried * heSubcarriers[width] * 10 / 136 // 13.6 microseconds
                                               : carried * subcarriers[width] * 10 / 36;   // 3.6 microseconds
    return static_cast<unsigned long>(kbps);
}

std::vector<unsigned> RatesOf(const WLAN_RATE_SET& set)
{
    std::vector<unsigned> rates;
    const std::size_t count = (std::min)(std::size_t{set.uRateSetLength} / sizeof(set.usRateSet[0]),
                                         sizeof(set.usRateSet) / sizeof(set.usRateSet[0]));
    for (std::size_t i = 0; i < count; ++i)
        rates.push_back(set.usRateSet[i] & 0x7fffU);
    std::sort(rates.begin(), rates.end());
    return rates;
}

} // namespace

BeaconFacts ReadBeacon(const WLAN_BSS_ENTRY& entry, const std::vector<std::uint8_t>& bytes)
{
    const BeaconElements elements(bytes);
    BeaconFacts facts;
    facts.centreKhz = entry.ulChCenterFrequency;
    if (const auto channel = ChannelOf(elements, entry.ulChCenterFrequency / 1000))
    {
        facts.widthMhz = channel->widthMhz;
        facts.widthKnown = true;
        facts.centreKhz = channel->centreMhz * 1000;
    }
    facts.security = SecurityOf(elements);
    if (facts.security.empty())
        facts.security = (entry.usCapabilityInformation & kPrivacy) != 0 ? "WEP" : "open";
    const Modulation modulation = ModulationOf(elements);
    facts.streams = modulation.streams;
    facts.rates = RatesOf(entry.wlanRateSet);
    facts.fastestKbps = modulation.streams != 0 ? FastestKbps(modulation, facts.widthMhz)
                        : !facts.rates.empty()  ? facts.rates.back() * 500UL
                                                : 0;
    return facts;
}

} // namespace calvix::host
