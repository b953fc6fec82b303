// ConnectBestAP in many made-up worlds, against a model that does the same in the plainest way there is.

#include "support/library_test.h"
#include "unit/autoconnect/small_worlds.h"

#include <algorithm>
#include <cstring>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace calvix::test
{

namespace
{

/// A world and what a caller asks of it.
struct Problem
{
    simulation::Scenario world;
    std::set<std::wstring> automatic;  ///< names of profiles
    std::vector<std::string> excluded; ///< SSIDs
    std::wstring excludedName;
    bool byList = false;
    bool byName = false;
    unsigned refusals = 0; ///< connection requests that the service refuses first
};

class Dice
{
public:
    explicit Dice(unsigned seed) : m_numbers(seed) {}

    unsigned Below(std::size_t limit) { return static_cast<unsigned>(m_numbers() % limit); }
    bool OneIn(unsigned count) { return Below(count) == 0; }

    template <typename Value>
    Value OneOf(const std::vector<Value>& values)
    {
        return values[Below(values.size())];
    }

private:
    std::mt19937 m_numbers;
};

/// Many begin with each other.
const std::vector<std::string> kSsids = {"Net", "NetA", "NetAB", "N", "Other", "Oth", "net"};
/// The bonus begins or ends around most of these.
const std::vector<std::uint32_t> kFrequencies = {2412000, 2437000, 2484000, 2485000, 3995000, 3996000, 4070000,
                                                 4071000, 4999000, 5000000, 5074000, 5075000, 5180000, 5955000};
const std::vector<std::int32_t> kStrengths = {-95, -90, -85, -80, -75, -70, -65, -60, -55, -51, -50};

std::vector<simulation::StoredProfile> MakeProfiles(Dice& dice, Problem& problem)
{
    std::vector<simulation::StoredProfile> profiles;
    const unsigned count = 1 + dice.Below(12);
    for (unsigned i = 0; i < count; ++i)
    {
        const std::string name = "P" + std::to_string(i);
        const bool automatic = !dice.OneIn(4);
        profiles.push_back(ProfileFor(name, dice.OneOf(kSsids), automatic ? "auto" : "manual"));
        if (automatic)
            problem.automatic.insert(std::wstring(name.begin(), name.end()));
    }
    return profiles;
}

std::vector<simulation::AccessPoint> MakeAirspace(Dice& dice)
{
    std::vector<simulation::AccessPoint> heard;
    const unsigned count = 1 + dice.Below(16);
    for (unsigned i = 0; i < count; ++i)
    {
        heard.push_back(Heard(dice.OneOf(kSsids), dice.OneOf(kFrequencies), dice.OneOf(kStrengths)));
        heard.back().hidden = dice.OneIn(12);
        if (dice.OneIn(8))
        {
            heard.back().authentication = "open";
            heard.back().encryption = "none";
        }
    }
    return heard;
}

Problem MakeProblem(unsigned seed)
{
    Dice dice(seed);
    Problem problem;
    std::vector<simulation::StoredProfile> profiles = MakeProfiles(dice, problem);
    problem.world = WorldOf(std::move(profiles), MakeAirspace(dice));
    problem.byList = dice.OneIn(2);
    problem.byName = dice.OneIn(2);
    for (unsigned i = dice.Below(3); i > 0; --i)
        problem.excluded.push_back(dice.OneOf(kSsids));
    problem.excludedName = L"P" + std::to_wstring(dice.Below(12));
    problem.refusals = dice.Below(8);
    return problem;
}

/// What the model expects, and what it met on the way there.
struct Expectation
{
    int code = 0;
    std::vector<std::wstring> requests;
    bool bonusChangedTheOrder = false;
    bool exclusionMattered = false;
};

unsigned ChannelOf(unsigned long frequency)
{
    auto f = static_cast<std::uint32_t>(frequency);
    while (f > 10000)
        f = f / 10;
    if (f > 2484 && f < 5000)
        return 200u - (5000u - f) / 5u;
    if (f > 2484)
        return (f - 5000u) / 5u;
    const std::uint32_t table[15] = {0,    2412, 2417, 2422, 2427, 2432, 2437, 2442,
                                     2447, 2452, 2457, 2462, 2467, 2472, 2484};
    for (unsigned slot = 1; slot < 15; ++slot)
        if (table[slot] == f)
            return slot - 1;
    return 14;
}

void InsertionSort(std::vector<WLAN_AVAILABLE_NETWORK>& candidates)
{
    for (std::size_t i = 1; i < candidates.size(); ++i)
        for (std::size_t j = i; j > 0 && candidates[j].wlanSignalQuality < candidates[j - 1].wlanSignalQuality; --j)
            std::swap(candidates[j], candidates[j - 1]);
}

std::vector<std::wstring> NamesOf(const std::vector<WLAN_AVAILABLE_NETWORK>& candidates)
{
    std::vector<std::wstring> names;
    for (const WLAN_AVAILABLE_NETWORK& candidate : candidates)
        names.emplace_back(candidate.strProfileName);
    return names;
}

class BestApModelTest : public LibraryTest
{
public:
    Expectation Model(const Problem& problem)
    {
        platform::WlanService& service = computer().wlan();
        const HANDLE client = ManagerInternals::Client();
        WLAN_PROFILE_INFO_LIST* profiles = nullptr;
        WLAN_AVAILABLE_NETWORK_LIST* networks = nullptr;
        WLAN_BSS_LIST* entries = nullptr;
        EXPECT_EQ(0u, service.WlanGetProfileList(client, &kAdapterA, nullptr, &profiles));
        EXPECT_EQ(0u, service.WlanGetAvailableNetworkList(client, &kAdapterA, 0, nullptr, &networks));
        const WLAN_AVAILABLE_NETWORK& last = *(networks->Network + (networks->dwNumberOfItems - 1));
        EXPECT_EQ(0u, service.WlanGetNetworkBssList(client, &kAdapterA, &last.dot11Ssid, last.dot11BssType,
                                                    last.bSecurityEnabled, nullptr, &entries));
        const Expectation expectation = Walk(problem, *profiles, *networks, *entries);
        service.WlanFreeMemory(profiles);
        service.WlanFreeMemory(networks);
        service.WlanFreeMemory(entries);
        return expectation;
    }

    int Run(const Problem& problem)
    {
        std::vector<WLAN_BSS_ENTRY> excluded;
        for (const std::string& ssid : problem.excluded)
            excluded.push_back(EntryOf(ssid));
        FailOn("WlanConnect", 5, 1, problem.refusals);
        const int code = Call(problem, excluded);
        ClearFailures();
        return code;
    }

    std::vector<std::wstring> Requests() const
    {
        std::vector<std::wstring> names;
        for (std::size_t number = 1; number <= callCount("WlanConnect"); ++number)
        {
            const std::string text(call("WlanConnect", number)["parameters"]);
            const std::size_t start = text.find("profile=\"") + 9;
            const std::size_t end = text.find('"', start);
            names.emplace_back(text.begin() + static_cast<std::ptrdiff_t>(start),
                               text.begin() + static_cast<std::ptrdiff_t>(end));
        }
        return names;
    }

private:
    int Call(const Problem& problem, std::vector<WLAN_BSS_ENTRY>& excluded)
    {
        const wchar_t* const name = problem.excludedName.c_str();
        if (problem.byList && problem.byName)
            return manager().ConnectBestAP(&kAdapterA, &excluded, name);
        if (problem.byList)
            return manager().ConnectBestAP(&kAdapterA, &excluded);
        if (problem.byName)
            return manager().ConnectBestAP(&kAdapterA, name);
        return manager().ConnectBestAP(&kAdapterA);
    }

    static bool IsExcluded(const Problem& problem, const WLAN_AVAILABLE_NETWORK& network)
    {
        for (const std::string& ssid : problem.excluded)
            if (std::memcmp(MakeSsid(ssid).ucSSID, network.dot11Ssid.ucSSID, network.dot11Ssid.uSSIDLength) == 0)
                return true;
        return false;
    }

    static std::vector<WLAN_AVAILABLE_NETWORK> Candidates(const Problem& problem,
                                                          const WLAN_PROFILE_INFO_LIST& profiles,
                                                          const WLAN_AVAILABLE_NETWORK_LIST& networks,
                                                          Expectation& met)
    {
        std::vector<WLAN_AVAILABLE_NETWORK> candidates;
        for (DWORD p = 0; p < profiles.dwNumberOfItems; ++p)
        {
            const std::wstring profile = (profiles.ProfileInfo + p)->strProfileName;
            for (DWORD n = 0; n < networks.dwNumberOfItems; ++n)
            {
                const WLAN_AVAILABLE_NETWORK& network = *(networks.Network + n);
                if (profile != network.strProfileName || problem.automatic.count(profile) == 0)
                    continue;
                const bool isExcluded = (problem.byName && profile == problem.excludedName) ||
                                        (problem.byList && IsExcluded(problem, network));
                met.exclusionMattered = met.exclusionMattered || isExcluded;
                if (!isExcluded)
                    candidates.push_back(network);
            }
        }
        return candidates;
    }

    static void AddBonus(std::vector<WLAN_AVAILABLE_NETWORK>& candidates, const WLAN_BSS_LIST& entries)
    {
        for (WLAN_AVAILABLE_NETWORK& candidate : candidates)
            for (DWORD b = 0; b < entries.dwNumberOfItems; ++b)
            {
                const WLAN_BSS_ENTRY& entry = *(entries.wlanBssEntries + b);
                if (std::memcmp(candidate.dot11Ssid.ucSSID, entry.dot11Ssid.ucSSID, entry.dot11Ssid.uSSIDLength) != 0)
                    continue;
                if (ChannelOf(entry.ulChCenterFrequency) > 14)
                    candidate.wlanSignalQuality =
                        candidate.wlanSignalQuality + 10 < 100 ? candidate.wlanSignalQuality + 10 : 100;
            }
    }

    static Expectation Walk(const Problem& problem,
                            const WLAN_PROFILE_INFO_LIST& profiles,
                            const WLAN_AVAILABLE_NETWORK_LIST& networks,
                            const WLAN_BSS_LIST& entries)
    {
        Expectation expectation;
        std::vector<WLAN_AVAILABLE_NETWORK> candidates = Candidates(problem, profiles, networks, expectation);
        if (candidates.empty())
        {
            expectation.code = -9;
            return expectation;
        }
        std::vector<WLAN_AVAILABLE_NETWORK> withoutBonus = candidates;
        InsertionSort(withoutBonus);
        AddBonus(candidates, entries);
        InsertionSort(candidates);

        expectation.bonusChangedTheOrder = NamesOf(candidates) != NamesOf(withoutBonus);
        expectation.code = problem.refusals < candidates.size() ? 0 : -12;
        expectation.requests = NamesOf(candidates);
        if (expectation.code == 0)
            expectation.requests.resize(problem.refusals + 1);
        return expectation;
    }
};

} // namespace

TEST_F(BestApModelTest, AgreesInEveryWorld)
{
    unsigned choices = 0;
    unsigned bonuses = 0;
    unsigned exclusions = 0;
    std::set<int> codes;
    for (unsigned seed = 1; seed <= 400; ++seed)
    {
        const Problem problem = MakeProblem(seed);
        UseWorld(problem.world);
        const Expectation expected = Model(problem);
        const int code = Run(problem);
        ASSERT_EQ(expected.code, code) << "seed " << seed << '\n' << simulation::WriteScenario(problem.world);
        ASSERT_EQ(expected.requests, Requests()) << "seed " << seed << '\n' << simulation::WriteScenario(problem.world);
        codes.insert(code);
        choices += expected.requests.size() > 1 ? 1u : 0u;
        bonuses += expected.bonusChangedTheOrder ? 1u : 0u;
        exclusions += expected.exclusionMattered ? 1u : 0u;
    }
    // The worlds are worth something only while they hold what the comparison is about.
    EXPECT_EQ((std::set<int>{0, -9, -12}), codes);
    EXPECT_GT(choices, 100u);
    EXPECT_GT(bonuses, 20u);
    EXPECT_GT(exclusions, 100u);
}

} // namespace calvix::test
