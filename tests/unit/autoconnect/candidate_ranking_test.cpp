#include "autoconnect/candidate_ranking.h"
#include "support/test_scenarios.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

namespace calvix::test::candidate_ranking_test
{

using ::testing::ElementsAre;

namespace
{

/// BSS entries as one list of the service.
class BssEntries
{
public:
    void Add(const DOT11_SSID& ssid, unsigned long frequency)
    {
        m_lists.emplace_back(); // each brings room for one entry, and some
        WLAN_BSS_ENTRY& entry = *(m_lists.data()->wlanBssEntries + m_lists.data()->dwNumberOfItems++);
        entry.dot11Ssid = ssid;
        entry.ulChCenterFrequency = static_cast<ULONG>(frequency);
    }

    const WLAN_BSS_LIST& List() const { return *m_lists.data(); }

private:
    std::vector<WLAN_BSS_LIST> m_lists{WLAN_BSS_LIST{}};
};

class CandidateRankingTest : public ::testing::Test
{
public:
    void Candidate(const std::string& ssid, unsigned long quality)
    {
        WLAN_AVAILABLE_NETWORK& network = m_networks.emplace_back();
        network.dot11Ssid = MakeSsid(ssid);
        network.wlanSignalQuality = static_cast<ULONG>(quality);
        candidates.push_back(&network);
    }

    std::vector<unsigned long> Scores() const
    {
        std::vector<unsigned long> scores;
        for (const WLAN_AVAILABLE_NETWORK* candidate : candidates)
            scores.push_back(candidate->wlanSignalQuality);
        return scores;
    }

    std::vector<std::string> Order() const
    {
        std::vector<std::string> ssids;
        for (const WLAN_AVAILABLE_NETWORK* candidate : candidates)
        {
            const DOT11_SSID& ssid = candidate->dot11Ssid;
            ssids.emplace_back(reinterpret_cast<const char*>(ssid.ucSSID), ssid.uSSIDLength);
        }
        return ssids;
    }

    Candidates candidates;

private:
    std::deque<WLAN_AVAILABLE_NETWORK> m_networks;
};

bool EarnsBonus(unsigned long frequency)
{
    WLAN_AVAILABLE_NETWORK network{};
    network.dot11Ssid = MakeSsid("Net");
    network.wlanSignalQuality = 50;
    BssEntries entries;
    entries.Add(network.dot11Ssid, frequency);
    AddBandBonus({&network}, entries.List());
    EXPECT_EQ(50u + 10 * CountBonusEntries(network, entries.List()), network.wlanSignalQuality);
    return network.wlanSignalQuality == 60;
}

} // namespace

// Deliberate: below 4 GHz the channel number wraps to a huge one.
TEST_F(CandidateRankingTest, TheBonusHasTheseBorders)
{
    struct Border
    {
        unsigned long megahertz;
        bool earns;
    };
    constexpr Border borders[] = {{2484, false}, {2485, true},  {3000, true}, {3995, true}, {3996, false},
                                  {4000, false}, {4070, false}, {4071, true}, {4999, true}, {5000, false},
                                  {5035, false}, {5074, false}, {5075, true}, {5180, true}, {5885, true},
                                  {5955, true},  {7115, true},  {9999, true}, {10000, true}};
    for (const Border& border : borders)
    {
        EXPECT_EQ(border.earns, EarnsBonus(border.megahertz * 1000)) << border.megahertz << " MHz in kHz";
        EXPECT_EQ(border.earns, EarnsBonus(border.megahertz)) << border.megahertz << " MHz";
    }
}

// Deliberate: compared over the entry's length only.
TEST_F(CandidateRankingTest, AnEntryCountsForEverySsidThatBeginsWithItsOwn)
{
    Candidate("Net", 50);
    Candidate("Net5G", 50);
    Candidate("Ne", 50);
    Candidate("MyNet", 50);
    BssEntries entries;
    entries.Add(MakeSsid("Net"), 5180000);
    AddBandBonus(candidates, entries.List());
    EXPECT_THAT(Scores(), ElementsAre(60, 60, 50, 50));
}

// A record that claims more bytes than it has room for must not lead anybody past its end.
TEST_F(CandidateRankingTest, AnOverlongEntryIsComparedOverItsThirtyTwoBytes)
{
    Candidate(std::string(32, 'x'), 50);
    Candidate(std::string(31, 'x'), 50);
    DOT11_SSID overlong = MakeSsid(std::string(32, 'x'));
    overlong.uSSIDLength = 0xFFFFFFFF;
    BssEntries entries;
    entries.Add(overlong, 5180000);
    AddBandBonus(candidates, entries.List());
    EXPECT_THAT(Scores(), ElementsAre(60, 50));
}

TEST_F(CandidateRankingTest, ThirtyTwoEqualScoresKeepTheirOrder)
{
    std::vector<std::string> names;
    for (int i = 0; i < 32; ++i)
    {
        names.push_back("n" + std::to_string(i * 7 % 32));
        Candidate(names.back(), 50);
    }
    SortByScore(candidates);
    EXPECT_EQ(names, Order());
}

} // namespace calvix::test::candidate_ranking_test
