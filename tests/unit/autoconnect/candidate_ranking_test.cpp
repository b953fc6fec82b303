#include "autoconnect/candidate_ranking.h"
#include "support/test_worlds.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
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
    void Add(const std::string& ssid, unsigned long frequency) { Add(MakeSsid(ssid), frequency); }

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

/// The score of a candidate of quality 50 once its network's entries were heard on these frequencies.
unsigned long ScoreWith(const std::vector<unsigned long>& frequencies)
{
    WLAN_AVAILABLE_NETWORK network{};
    network.dot11Ssid = MakeSsid("Net");
    network.wlanSignalQuality = 50;
    BssEntries entries;
    for (const unsigned long frequency : frequencies)
        entries.Add("Net", frequency);
    AddBandBonus({&network}, entries.List());
    EXPECT_EQ(50u + 10 * CountBonusEntries(network, entries.List()), network.wlanSignalQuality);
    return network.wlanSignalQuality;
}

bool EarnsBonus(unsigned long frequency)
{
    return ScoreWith({frequency}) == 60;
}

} // namespace

// --- Which entries earn the bonus -------------------------------------------------------------------------------

TEST_F(CandidateRankingTest, ChannelsOfTwoPointFourGigahertzEarnNothing)
{
    for (unsigned long megahertz = 2412; megahertz <= 2472; megahertz += 5)
        EXPECT_FALSE(EarnsBonus(megahertz * 1000)) << megahertz;
    EXPECT_FALSE(EarnsBonus(2484000));
}

TEST_F(CandidateRankingTest, InvalidChannelsEarnNoBonus)
{
    for (const unsigned long frequency : {0ul, 1ul, 2411000ul, 2413000ul, 2473000ul, 2483000ul})
        EXPECT_FALSE(EarnsBonus(frequency)) << frequency;
}

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

TEST_F(CandidateRankingTest, FinerFrequenciesAreCutToMegahertz)
{
    EXPECT_FALSE(EarnsBonus(2484999)) << "still 2484 MHz";
    EXPECT_TRUE(EarnsBonus(3995999));
    EXPECT_FALSE(EarnsBonus(4070999));
    EXPECT_FALSE(EarnsBonus(5074999));
    EXPECT_FALSE(EarnsBonus(2412000000)) << "Hz";
    EXPECT_TRUE(EarnsBonus(60480000)) << "60 GHz is divided once more: 6048";
    EXPECT_FALSE(EarnsBonus(10001)) << "1000";
    EXPECT_TRUE(EarnsBonus(868000)) << "a band below 1 GHz is not divided far enough: 8680";
}

// --- How much ---------------------------------------------------------------------------------------------------

TEST_F(CandidateRankingTest, EveryEntryOfTheBandEarnsTen)
{
    EXPECT_EQ(50u, ScoreWith({}));
    EXPECT_EQ(60u, ScoreWith({2412000, 5180000, 2437000}));
    EXPECT_EQ(80u, ScoreWith({5180000, 5180000, 5955000}));
}

TEST_F(CandidateRankingTest, TheScoreEndsAtOneHundred)
{
    for (const unsigned long quality : {0ul, 85ul, 90ul, 91ul, 99ul, 100ul})
        Candidate("Net", quality);
    BssEntries entries;
    entries.Add("Net", 5180000);
    AddBandBonus(candidates, entries.List());
    EXPECT_THAT(Scores(), ElementsAre(10, 95, 100, 100, 100, 100));

    for (int i = 0; i < 9; ++i)
        entries.Add("Net", 5200000);
    candidates.clear();
    Candidate("Net", 0);
    Candidate("Net", 40);
    AddBandBonus(candidates, entries.List());
    EXPECT_THAT(Scores(), ElementsAre(100, 100)) << "ten access points";
}

TEST_F(CandidateRankingTest, ANetworkThatIsACandidateTwiceEarnsTwice)
{
    Candidate("Net", 60);
    candidates.push_back(candidates.front());
    BssEntries entries;
    entries.Add("Net", 5180000);
    AddBandBonus(candidates, entries.List());
    EXPECT_THAT(Scores(), ElementsAre(80, 80));
}

// --- Whose entries ----------------------------------------------------------------------------------------------

TEST_F(CandidateRankingTest, OnlyEntriesOfTheCandidatesSsidCount)
{
    Candidate("Net", 50);
    Candidate("Other", 50);
    Candidate("net", 50);
    BssEntries entries;
    entries.Add("Net", 5180000);
    AddBandBonus(candidates, entries.List());
    EXPECT_THAT(Scores(), ElementsAre(60, 50, 50));
}

// Deliberate: compared over the entry's length only.
TEST_F(CandidateRankingTest, AnEntryCountsForEverySsidThatBeginsWithItsOwn)
{
    Candidate("Net", 50);
    Candidate("Net5G", 50);
    Candidate("Ne", 50);
    Candidate("MyNet", 50);
    BssEntries entries;
    entries.Add("Net", 5180000);
    AddBandBonus(candidates, entries.List());
    EXPECT_THAT(Scores(), ElementsAre(60, 60, 50, 50));

    entries.Add("Net5G", 5180000);
    candidates.clear();
    Candidate("Net", 50);
    Candidate("Net5G", 50);
    AddBandBonus(candidates, entries.List());
    EXPECT_THAT(Scores(), ElementsAre(60, 70)) << "not the other way round; both prefixes add up";
}

TEST_F(CandidateRankingTest, AnEntryWithoutAnSsidCountsForEveryCandidate)
{
    Candidate("Net", 50);
    Candidate("Other", 50);
    BssEntries entries;
    entries.Add("", 5180000);
    AddBandBonus(candidates, entries.List());
    EXPECT_THAT(Scores(), ElementsAre(60, 60));
}

TEST_F(CandidateRankingTest, SsidsAreBytesUpToThirtyTwoOfThem)
{
    const std::string longest = std::string("\0\xFF", 2) + std::string(30, 'x');
    Candidate(longest, 50);
    Candidate(longest.substr(0, 31), 50);
    Candidate(longest.substr(0, 31) + "y", 50);
    BssEntries entries;
    entries.Add(longest, 5180000);
    AddBandBonus(candidates, entries.List());
    EXPECT_THAT(Scores(), ElementsAre(60, 50, 50));
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

// --- Order ------------------------------------------------------------------------------------------------------

TEST_F(CandidateRankingTest, TheLowestScoreComesFirst)
{
    Candidate("c", 80);
    Candidate("a", 0);
    Candidate("d", 100);
    Candidate("b", 40);
    SortByScore(candidates);
    EXPECT_THAT(Order(), ElementsAre("a", "b", "c", "d"));
}

TEST_F(CandidateRankingTest, TheScoreIsWhatCountsNotTheQuality)
{
    Candidate("boosted", 60);
    Candidate("plain", 64);
    BssEntries entries;
    entries.Add("boosted", 5180000);
    AddBandBonus(candidates, entries.List());
    SortByScore(candidates);
    EXPECT_THAT(Order(), ElementsAre("plain", "boosted"));
}

TEST_F(CandidateRankingTest, EqualScoresKeepTheirOrder)
{
    Candidate("b", 50);
    Candidate("z", 40);
    Candidate("a", 50);
    Candidate("y", 40);
    Candidate("c", 50);
    SortByScore(candidates);
    EXPECT_THAT(Order(), ElementsAre("z", "y", "b", "a", "c"));
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

// Among more than 32 the order of equals is undefined; the scores ascend and none is lost.
TEST_F(CandidateRankingTest, ManyCandidatesAreSortedCompletely)
{
    for (const unsigned count : {33u, 34u, 100u, 1000u})
    {
        candidates.clear();
        std::vector<std::string> names;
        for (unsigned i = 0; i < count; ++i)
        {
            names.push_back(std::to_string(i));
            Candidate(names.back(), i * 37 % 101);
        }
        SortByScore(candidates);
        const std::vector<unsigned long> scores = Scores();
        EXPECT_TRUE(std::is_sorted(scores.begin(), scores.end())) << count;
        EXPECT_THAT(Order(), ::testing::UnorderedElementsAreArray(names)) << count;
    }
}

TEST_F(CandidateRankingTest, AnEmptyListCanBeRanked)
{
    BssEntries entries;
    entries.Add("Net", 5180000);
    AddBandBonus(candidates, entries.List());
    SortByScore(candidates);
    EXPECT_TRUE(candidates.empty());
}

} // namespace calvix::test::candidate_ranking_test
