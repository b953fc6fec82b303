// The order in which blocks of the service are released: what was taken for the last step goes first.

#include "core/memory.h"

#include "support/changed_platform.h"
#include "unit/autoconnect/small_scenarios.h"

#include "support/library_test.h"

#include <map>
#include <tuple>

namespace calvix::test::release_order_test
{

using ::testing::ElementsAre;

namespace
{

/// The WLAN service in use; it notes which block is released when.
class NotedReleases final : public ChangedPlatform
{
public:
    NotedReleases()
    {
        Note<&WlanService::WlanEnumInterfaces, 2>("interfaces");
        Note<&WlanService::WlanGetProfileList, 3>("profiles");
        Note<&WlanService::WlanGetAvailableNetworkList, 4>("networks");
        Note<&WlanService::WlanGetNetworkBssList, 6>("BSS entries");
        Note<&WlanService::WlanQueryInterface, 5>("attributes");
        Note<&WlanService::WlanGetProfile, 4>("XML");
        Before<&WlanService::WlanFreeMemory>([this](PVOID memory) { released.push_back(m_names[memory]); });
    }

    std::vector<std::string> released;

private:
    /// `block` is the parameter in which the operation hands out a block.
    template <auto operation, std::size_t block>
    void Note(const char* name)
    {
        After<operation>([this, name](DWORD, auto... arguments)
                         { m_names[*std::get<block>(std::tuple(arguments...))] = name; });
    }

    std::map<void*, std::string> m_names;
};

class ReleaseOrderTest : public LibraryTest
{
public:
    /// What a call released, in order.
    std::vector<std::string> ReleasesOf(const std::function<void(CWirelessManage&)>& call)
    {
        NotedReleases noted;
        call(manager());
        return noted.released;
    }

    /// One network of a profile, to which adapter A is connected.
    void UseOneNetwork()
    {
        simulation::Scenario scenario = ScenarioOf({Profile("Net")}, {Heard("Net", 2412000, -70)});
        scenario.adapters[0].connection = simulation::Connection{"Net", std::nullopt};
        UseScenario(scenario);
    }
};

} // namespace

TEST_F(ReleaseOrderTest, SavingReleasesTheAttributesThenTheXml)
{
    EXPECT_THAT(ReleasesOf([](auto& m) { m.SaveCurrentConnectionAttributes(&kAdapterA); }),
                ElementsAre("attributes", "XML"));
}

TEST_F(ReleaseOrderTest, TheRankedConnectionReleasesEntriesThenProfilesThenNetworks)
{
    UseOneNetwork();
    EXPECT_THAT(ReleasesOf([](auto& m) { m.ConnectBestAP(&kAdapterA); }),
                ElementsAre("XML", "BSS entries", "profiles", "networks"));
    EXPECT_THAT(ReleasesOf([](auto& m) { m.AutoConnectEx(&kAdapterA); }),
                ElementsAre("BSS entries", "profiles", "networks"));
}

TEST_F(ReleaseOrderTest, TheListsOfAccessPointsReleaseProfilesThenNetworks)
{
    UseOneNetwork();
    std::vector<WLAN_BSS_ENTRY> entries;
    std::vector<std::wstring> names;
    EXPECT_THAT(ReleasesOf([&](auto& m) { m.GetMatchAPList(&kAdapterA, &entries); }),
                ElementsAre("BSS entries", "profiles", "networks"));
    EXPECT_THAT(ReleasesOf([&](auto& m) { m.GetMatchAPCount(&kAdapterA, &names, 0); }),
                ElementsAre("BSS entries", "profiles", "networks"));
    wchar_t name[] = L"Net";
    EXPECT_THAT(ReleasesOf([&](auto& m) { m.GetConnectableAPList(name, &entries); }),
                ElementsAre("BSS entries", "profiles", "networks", "interfaces"));
    EXPECT_THAT(ReleasesOf([&](auto& m) { m.GetMatchBSSID(&kAdapterA); }),
                ElementsAre("BSS entries", "BSS entries", "BSS entries", "BSS entries", "profiles", "networks"));
}

TEST_F(ReleaseOrderTest, TheWalksReleaseProfilesThenNetworks)
{
    UseOneNetwork();
    EXPECT_THAT(ReleasesOf([](auto& m) { m.AutoConnect(&kAdapterA); }), ElementsAre("profiles", "networks"));
    EXPECT_THAT(ReleasesOf([](auto& m) { m.ConnectAutoMode(&kAdapterA); }), ElementsAre("XML", "profiles", "networks"));
    EXPECT_THAT(ReleasesOf([](auto& m) { m.GetConnectableNetworkCount(&kAdapterA); }),
                ElementsAre("profiles", "networks"));
}

TEST_F(ReleaseOrderTest, ConnectionsReleaseTheAttributesFirst)
{
    UseOneNetwork();
    EXPECT_THAT(ReleasesOf([](auto& m) { m.GetCurrentBSS(); }), ElementsAre("attributes", "BSS entries", "interfaces"));
    EXPECT_THAT(ReleasesOf([](auto& m) { m.IsWiFiDisappear(&kAdapterA); }), ElementsAre("attributes", "BSS entries"));
    EXPECT_THAT(ReleasesOf([](auto& m) { m.Roaming(&kAdapterA); }), ElementsAre("attributes", "BSS entries"));
    EXPECT_THAT(ReleasesOf([](auto& m) { m.SetCurrentWiFiToLast(); }),
                ElementsAre("attributes", "profiles", "interfaces"));
    EXPECT_THAT(ReleasesOf([](auto& m) { m.SpecialSoftAP(); }), ElementsAre("attributes", "interfaces"));
}

// No method receives twice with one owner: only this test shows it.
TEST_F(ReleaseOrderTest, AnOwnerThatReceivesAgainReleasesWhatItHeld)
{
    InterfaceList list;
    for (const std::size_t releases : {0u, 1u})
    {
        ASSERT_EQ(0u, platform::wlan().WlanEnumInterfaces(ManagerInternals::Client(), nullptr, list.Receive()));
        EXPECT_EQ(releases, callCount("WlanFreeMemory"));
    }
    list.Take(nullptr);
    EXPECT_EQ(2u, callCount("WlanFreeMemory"));
}

} // namespace calvix::test::release_order_test
