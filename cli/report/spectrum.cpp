#include "report/spectrum.h"

#include "forms/channel.h"

namespace calvix::host
{

namespace
{

constexpr unsigned kChannels24[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14};
constexpr unsigned kChannels5[] = {36, 44, 52, 60, 100, 108, 116, 124, 132, 140, 149, 157, 165, 173};
constexpr unsigned kChannels6[] = {1,   13,  25,  37,  49,  61,  73,  85,  97,  109,
                                   121, 133, 145, 157, 169, 181, 193, 205, 217, 229};

} // namespace

const std::array<SpectrumBand, 3>& SpectrumBands()
{
    static constexpr std::array<SpectrumBand, 3> bands = {
        {{"2.4 GHz", 2397, 2499, kChannels24}, {"5 GHz", 5150, 5905, kChannels5}, {"6 GHz", 5930, 7130, kChannels6}}};
    return bands;
}

unsigned CentreMhz(const SpectrumBand& band, unsigned channel)
{
    const std::string_view name(band.name);
    return *forms::ChannelFrequency(name.substr(0, name.find(' ')), channel) / 1000;
}

std::vector<const AirAccessPoint*> InBand(const std::vector<AirAccessPoint>& accessPoints, const SpectrumBand& band)
{
    std::vector<const AirAccessPoint*> points;
    for (const AirAccessPoint& point : accessPoints)
        if (point.facts.band == band.name)
            points.push_back(&point);
    return points;
}

} // namespace calvix::host
