#include "autoconnect/candidate_ranking.h"

#include "core/channel.h"
#include "core/ssid.h"
#include "core/wlan_lists.h"

#include <algorithm>
#include <bitset>
#include <string_view>
#include <unordered_map>

namespace calvix
{

namespace
{

constexpr unsigned long kBonus = 10;
constexpr unsigned long kBestScore = 100;
constexpr std::uint32_t kHighestTwoPointFourChannel = 14;

bool HasLowerScore(const Candidate& left, const Candidate& right)
{
    return left.score < right.score;
}

std::string_view FirstBytes(const DOT11_SSID& ssid, std::size_t length)
{
    return {reinterpret_cast<const char*>(ssid.ucSSID), length};
}

/// BSS entries that earn the bonus, counted by SSID.
struct BonusBySsid
{
    std::unordered_map<std::string_view, unsigned> entries;
    std::bitset<DOT11_SSID_MAX_LENGTH + 1> lengths; ///< of the SSIDs: there is nothing to be found under others
};

BonusBySsid CountBonusEntries(const WLAN_BSS_LIST& entries)
{
    BonusBySsid bonus;
    for (const WLAN_BSS_ENTRY& entry : Items(entries))
    {
        if (ChannelOfFrequency(entry.ulChCenterFrequency) <= kHighestTwoPointFourChannel)
            continue;
        const std::size_t length = SsidLength(entry.dot11Ssid);
        ++bonus.entries[FirstBytes(entry.dot11Ssid, length)];
        bonus.lengths.set(length);
    }
    return bonus;
}

/// Entries of every SSID that the candidate's begins with. The candidate's stated length plays no part.
unsigned BonusOf(const DOT11_SSID& candidate, const BonusBySsid& bonus)
{
    unsigned entries = 0;
    for (std::size_t length = 0; length < bonus.lengths.size(); ++length)
    {
        if (!bonus.lengths.test(length))
            continue;
        const auto found = bonus.entries.find(FirstBytes(candidate, length));
        if (found != bonus.entries.end())
            entries += found->second;
    }
    return entries;
}

} // namespace

void AddBandBonus(std::vector<Candidate>& candidates, const WLAN_BSS_LIST& entries)
{
    const BonusBySsid bonus = CountBonusEntries(entries);
    if (bonus.lengths.none())
        return;
    for (Candidate& candidate : candidates)
    {
        candidate.bonusEntries = BonusOf(candidate.network->dot11Ssid, bonus);
        if (candidate.bonusEntries > 0)
            candidate.score = (std::min)(candidate.score + candidate.bonusEntries * kBonus, kBestScore);
    }
}

void SortByScore(std::vector<Candidate>& candidates)
{
    std::stable_sort(candidates.begin(), candidates.end(), HasLowerScore);
}

const Candidate& LowestScored(const std::vector<Candidate>& candidates)
{
    return *std::min_element(candidates.begin(), candidates.end(), HasLowerScore);
}

} // namespace calvix
