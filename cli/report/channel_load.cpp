#include "report/channel_load.h"

#include "report/spectrum.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

constexpr long kChannelKhz = 20000;

struct ChannelRun
{
    const char* band;
    unsigned first;
    unsigned last;
    unsigned step;
};

constexpr ChannelRun kRuns[] = {
    {"2.4 GHz", 1, 13, 1}, {"5 GHz", 36, 64, 4}, {"5 GHz", 100, 144, 4}, {"5 GHz", 149, 177, 4}, {"6 GHz", 1, 233, 4},
};

/// How much of the 20 MHz around `centreKhz` the access point's channel covers.
long CoveredKhz(const AirAccessPoint& point, long centreKhz)
{
    const long half = static_cast<long>(point.beacon.widthMhz) * 1000 / 2;
    const long centre = static_cast<long>(point.beacon.centreKhz);
    const long from = (std::max)(centre - half, centreKhz - kChannelKhz / 2);
    const long to = (std::min)(centre + half, centreKhz + kChannelKhz / 2);
    return (std::max)(to - from, 0L);
}

ChannelLoad Measure(const std::vector<AirAccessPoint>& air, unsigned channel, unsigned centreMhz)
{
    ChannelLoad load;
    load.channel = channel;
    long sum = 0;
    for (const AirAccessPoint& point : air)
    {
        const long covered = CoveredKhz(point, static_cast<long>(centreMhz) * 1000);
        if (covered == 0)
            continue;
        ++load.accessPoints;
        load.strongest = (std::max)(load.strongest.value_or(point.facts.rssi), point.facts.rssi);
        sum += static_cast<long>(point.facts.quality) * covered;
    }
    load.load = static_cast<unsigned>((sum + kChannelKhz / 2) / kChannelKhz);
    return load;
}

bool MayBeChosen(const BandLoad& band, unsigned channel)
{
    return band.band != "2.4 GHz" || channel == 1 || channel == 6 || channel == 11;
}

unsigned LeastCrowded(const BandLoad& band)
{
    const ChannelLoad* least = nullptr;
    for (const ChannelLoad& channel : band.channels)
        if (MayBeChosen(band, channel.channel) && (least == nullptr || channel.load < least->load))
            least = &channel;
    return least->channel;
}

} // namespace

std::vector<BandLoad> MeasureBands(const std::vector<AirAccessPoint>& air)
{
    std::vector<BandLoad> bands;
    for (const SpectrumBand& band : SpectrumBands())
    {
        BandLoad& load = bands.emplace_back();
        load.band = band.name;
        for (const ChannelRun& run : kRuns)
            for (unsigned channel = run.first; run.band == load.band && channel <= run.last; channel += run.step)
                load.channels.push_back(Measure(air, channel, CentreMhz(band, channel)));
        load.leastCrowded = LeastCrowded(load);
    }
    return bands;
}

JsonRecord Describe(const ChannelLoad& channel)
{
    return JsonRecord("How crowded 20 MHz are.")
        .Add("channel", channel.channel)
        .Add("accessPoints", channel.accessPoints, {"That reach into it"})
        .Add("strongest", channel.strongest, {"Of them, in dBm"})
        .Add("load", channel.load, {"The sum of their qualities, each by the part of the channel that it covers"});
}

JsonRecord Describe(const BandLoad& band)
{
    return JsonRecord()
        .Add("band", band.band, {.among = {"2.4 GHz", "5 GHz", "6 GHz"}})
        .Add("leastCrowded", band.leastCrowded, {"A channel; in the 2.4 GHz band 1, 6 or 11"})
        .Add("channels", band.channels);
}

} // namespace calvix::host
