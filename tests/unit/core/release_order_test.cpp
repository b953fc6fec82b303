// The order in which blocks of the service are released: what was taken for the last step goes first.

#include "support/forwarding_platform.h"
#include "unit/autoconnect/small_worlds.h"

#include "support/library_test.h"
#include "wrappers/intercepted_wlan_service.h"

#include <map>

namespace calvix::test::release_order_test
{

using ::testing::ElementsAre;

namespace
{

/// The WLAN service in use; it notes which block is released when.
class NotedReleases final : public wrappers::InterceptedWlanService
{
public:
    using InterceptedWlanService::InterceptedWlanService;

    std::vector<std::string> released;

    DWORD WlanEnumInterfaces(HANDLE client, PVOID reserved, WLAN_INTERFACE_INFO_LIST** list) override
    {
        return Noted("interfaces", InterceptedWlanService::WlanEnumInterfaces(client, reserved, list), *list);
    }
    DWORD
    WlanGetProfileList(HANDLE client, const GUID* guid, PVOID reserved, WLAN_PROFILE_INFO_LIST** list) override
    {
        return Noted("profiles", InterceptedWlanService::WlanGetProfileList(client, guid, reserved, list), *list);
    }
    DWORD WlanGetAvailableNetworkList(
        HANDLE client, const GUID* guid, DWORD flags, PVOID reserved, WLAN_AVAILABLE_NETWORK_LIST** list) override
    {
        const DWORD error = InterceptedWlanService::WlanGetAvailableNetworkList(client, guid, flags, reserved, list);
        return Noted("networks", error, *list);
    }
    DWORD WlanGetNetworkBssList(HANDLE client,
                                const GUID* guid,
                                const DOT11_SSID* ssid,
                                DOT11_BSS_TYPE type,
                                BOOL secured,
                                PVOID reserved,
                                WLAN_BSS_LIST** list) override
    {
        const DWORD error =
            InterceptedWlanService::WlanGetNetworkBssList(client, guid, ssid, type, secured, reserved, list);
        return Noted("BSS entries", error, *list);
    }
    DWORD WlanQueryInterface(HANDLE client,
                             const GUID* guid,
                             WLAN_INTF_OPCODE opcode,
                             PVOID reserved,
                             DWORD* size,
                             PVOID* data,
                             WLAN_OPCODE_VALUE_TYPE* type) override
    {
        const DWORD error =
            InterceptedWlanService::WlanQueryInterface(client, guid, opcode, reserved, size, data, type);
        return Noted("attributes", error, *data);
    }
    DWORD WlanGetProfile(HANDLE client,
                         const GUID* guid,
                         const wchar_t* name,
                         PVOID reserved,
                         wchar_t** xml,
                         DWORD* flags,
                         DWORD* access) override
    {
        const DWORD error = InterceptedWlanService::WlanGetProfile(client, guid, name, reserved, xml, flags, access);
        return Noted("XML", error, *xml);
    }
    void WlanFreeMemory(PVOID memory) override
    {
        released.push_back(m_names[memory]);
        InterceptedWlanService::WlanFreeMemory(memory);
    }

private:
    template <typename Block>
    DWORD Noted(const char* name, DWORD error, Block*& block)
    {
        m_names[block] = name;
        return error;
    }

    std::map<void*, std::string> m_names;
};

class NotedPlatform final : public ForwardingPlatform
{
public:
    platform::WlanService& wlan() override { return service; }

private:
    wrappers::Interceptor m_seesNothing;
    wrappers::InterceptionPoint m_point{m_seesNothing};

public:
    NotedReleases service{inner().wlan(), m_point};
};

class ReleaseOrderTest : public LibraryTest
{
public:
    /// What a call released, in order.
    std::vector<std::string> ReleasesOf(const std::function<void(CWirelessManage&)>& call)
    {
        NotedPlatform noted;
        call(manager());
        return noted.service.released;
    }

    /// One network of a profile, to which adapter A is connected.
    void UseOneNetwork()
    {
        simulation::Scenario world = WorldOf({Profile("Net")}, {Heard("Net", 2412000, -70)});
        world.adapters[0].connection = simulation::Connection{"Net", std::nullopt};
        UseWorld(world);
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

} // namespace calvix::test::release_order_test
