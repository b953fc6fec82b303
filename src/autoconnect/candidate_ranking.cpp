#include "autoconnect/candidate_ranking.h"

#include "core/channel.h"
#include "core/ssid.h"
#include "core/wlan_lists.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace calvix
{

namespace
{

constexpr unsigned long kBonus = 10;
constexpr unsigned long kBestScore = 100;
constexpr std::uint32_t kHighestTwoPointFourChannel = 14;

std::string_view FirstBytes(const DOT11_SSID& ssid, std::size_t length)
{
    return {reinterpret_cast<const char*>(ssid.ucSSID), length};
}

/// BSS entries that earn the bonus, counted by SSID.
using BonusBySsid = std::unordered_map<std::string_view, unsigned>;

BonusBySsid CountBonusEntries(const WLAN_BSS_LIST& entries)
{
    BonusBySsid bonus;
    for (const WLAN_BSS_ENTRY& entry : Items(entries))
    {
        if (ChannelOfFrequency(entry.ulChCenterFrequency) > kHighestTwoPointFourChannel)
            ++bonus[FirstBytes(entry.dot11Ssid, SsidLength(entry.dot11Ssid))];
    }
    return bonus;
}

/// Entries of every SSID that the candidate's begins with. The candidate's stated length plays no part.
unsigned BonusOf(const DOT11_SSID& candidate, const BonusBySsid& bonus)
{
    unsigned entries = 0;
    for (std::size_t length = 0; length <= sizeof(candidate.ucSSID); ++length)
    {
        const auto found = bonus.find(FirstBytes(candidate, length));
        if (found != bonus.end())
            entries += found->second;
    }
    return entries;
}

} // namespace

void AddBandBonus(std::vector<Candidate>& candidates, const WLAN_BSS_LIST& entries)
{
    const BonusBySsid bonus = CountBonusEntries(entries);
    if (bonus.empty())
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
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const Candidate& left, const Candidate& right) { return left.score < right.score; });
}

} // namespace calvix
