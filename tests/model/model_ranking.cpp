#include "model/model.h"

#include <cstdint>
#include <utility>

namespace calvix::test
{

namespace
{

/// The SSID in its 32-byte field.
std::string Field(std::string ssid)
{
    ssid.resize(32, '\0');
    return ssid;
}

std::uint32_t ChannelOf(unsigned long frequency)
{
    auto megahertz = static_cast<std::uint32_t>(frequency);
    while (megahertz > 10000)
        megahertz = megahertz / 10;
    if (megahertz > 2484 && megahertz < 5000)
        return std::uint32_t{200} - (std::uint32_t{5000} - megahertz) / 5;
    if (megahertz > 2484)
        return (megahertz - 5000) / 5;
    const std::uint32_t table[15] = {0,    2412, 2417, 2422, 2427, 2432, 2437, 2442,
                                     2447, 2452, 2457, 2462, 2467, 2472, 2484};
    for (std::uint32_t slot = 0; slot < 15; ++slot)
        if (table[slot] == megahertz)
            return slot - 1;
    return 14;
}

void AddBonus(std::vector<Network>& candidates, const std::vector<Heard>& entries)
{
    for (Network& candidate : candidates)
        for (const Heard& entry : entries)
        {
            const std::size_t length = entry.ssid.size();
            if (Field(candidate.ssid).substr(0, length) != entry.ssid)
                continue;
            if (ChannelOf(entry.frequency) > 14)
                candidate.quality = candidate.quality + 10 < 100 ? candidate.quality + 10 : 100;
        }
}

void InsertionSort(std::vector<Network>& candidates)
{
    for (std::size_t i = 1; i < candidates.size(); ++i)
        for (std::size_t j = i; j > 0 && candidates[j].quality < candidates[j - 1].quality; --j)
            std::swap(candidates[j], candidates[j - 1]);
}

std::vector<std::wstring> NamesOf(const std::vector<Network>& networks)
{
    std::vector<std::wstring> names;
    for (const Network& network : networks)
        names.push_back(network.profile);
    return names;
}

} // namespace

bool Model::IsExcluded(const Network& network) const
{
    for (const std::string& excluded : m_situation.excludedSsids)
        if (Field(excluded).substr(0, network.ssid.size()) == network.ssid)
            return true;
    return false;
}

Outcome Model::Rank(bool byList, bool byName, bool automaticOnly)
{
    const int adapter = m_situation.asked;
    if (m_service.Open() != 0)
        return Failed(Cause::clientNotOpened);
    if (const auto failure = FailureToList(adapter))
        return *failure;
    std::vector<Network> candidates;
    for (const Network& network : Matches())
    {
        if (byName && network.profile == m_situation.name)
            continue;
        if (automaticOnly && !IsAutomatic(adapter, network.profile))
            continue;
        if (!byList || !IsExcluded(network))
            candidates.push_back(network);
    }
    if (candidates.empty())
        return Failed(automaticOnly ? Cause::noCandidate : Cause::nothingMatches);

    const Network& last = m_networks.back();
    const auto& entries = m_service.Entries(adapter, last.ssid, last.bssType, last.secured);
    if (entries.error != 0)
        return Failed(Cause::bssListFailed);
    if (entries.data.empty())
        return Failed(Cause::bssListEmpty);
    std::vector<Network> withoutBonus = candidates;
    InsertionSort(withoutBonus);
    AddBonus(candidates, entries.data);
    InsertionSort(candidates);
    m_bonusChangedTheOrder = NamesOf(candidates) != NamesOf(withoutBonus);
    for (const Network& candidate : candidates)
        if (m_service.Connect(adapter, candidate.profile, candidate.bssType) == 0)
            return Ended(0);
    return Failed(Cause::everyRequestRefused);
}

} // namespace calvix::test
