// What the service answers without looking at an adapter. Everything else depends on the computer, and Wine 8 has
// nothing of it.

#include "provider.h"

#include <array>

namespace calvix::test::wlan_service_contract_test
{

class WlanServiceContract : public PlatformContract
{
protected:
    /// Skips the test where the computer has no service that could answer.
    void SetUp() override
    {
        const DWORD error = Open(2, m_client);
        if (!IsSimulation() && (error == Error(ERROR_MOD_NOT_FOUND) || error == Error(ERROR_SERVICE_NOT_ACTIVE)))
            GTEST_SKIP() << "no WLAN service on this computer, error " << error;
        ASSERT_EQ(error, Error(ERROR_SUCCESS));
    }

    void TearDown() override
    {
        if (m_client != nullptr)
            EXPECT_EQ(Wlan().WlanCloseHandle(m_client, nullptr), Error(ERROR_SUCCESS));
    }

    platform::WlanService& Wlan() { return System().wlan(); }

    DWORD Open(DWORD version, HANDLE& client)
    {
        DWORD negotiated = 0;
        const DWORD error = Wlan().WlanOpenHandle(version, nullptr, &negotiated, &client);
        if (error == ERROR_SUCCESS)
            EXPECT_EQ(negotiated, version);
        return error;
    }

    DWORD Enumerate(HANDLE client)
    {
        WLAN_INTERFACE_INFO_LIST* list = nullptr;
        const DWORD error = Wlan().WlanEnumInterfaces(client, nullptr, &list);
        if (list != nullptr)
            Wlan().WlanFreeMemory(list);
        return error;
    }

    /// Readable memory that no service handed out: Wine looks into a handle before it believes it.
    HANDLE NobodysHandle() { return m_nothing.data(); }

    HANDLE m_client = nullptr;

private:
    std::array<std::uint64_t, 16> m_nothing{};
};

INSTANTIATE_TEST_SUITE_P(Platform, WlanServiceContract, testing::ValuesIn(Providers()), ProviderName);

TEST_P(WlanServiceContract, BothVersionsOfTheInterfaceAreSpoken)
{
    for (const DWORD version : {Error(1), Error(2)})
    {
        HANDLE client = nullptr;
        EXPECT_EQ(Open(version, client), Error(ERROR_SUCCESS)) << version;
        EXPECT_NE(client, nullptr);
        EXPECT_NE(client, m_client) << "a handle for each client";
        EXPECT_EQ(Wlan().WlanCloseHandle(client, nullptr), Error(ERROR_SUCCESS));
    }
}

TEST_P(WlanServiceContract, OtherVersionsAreNot)
{
    for (const DWORD version : {Error(0), Error(3), Error(0xFFFFFFFF)})
    {
        HANDLE client = nullptr;
        EXPECT_EQ(Open(version, client), Error(ERROR_NOT_SUPPORTED)) << version;
        EXPECT_EQ(client, nullptr);
    }
}

TEST_P(WlanServiceContract, OpeningNeedsItsOutputsAndNothingReserved)
{
    DWORD negotiated = 0;
    HANDLE client = nullptr;
    EXPECT_EQ(Wlan().WlanOpenHandle(2, nullptr, nullptr, &client), Error(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(Wlan().WlanOpenHandle(2, nullptr, &negotiated, nullptr), Error(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(Wlan().WlanOpenHandle(2, &negotiated, &negotiated, &client), Error(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(Wlan().WlanOpenHandle(7, nullptr, nullptr, &client), Error(ERROR_INVALID_PARAMETER))
        << "before the version is looked at";
    EXPECT_EQ(client, nullptr);
}

TEST_P(WlanServiceContract, ClosingNeedsAClientAndNothingReserved)
{
    int reserved = 0;
    EXPECT_EQ(Wlan().WlanCloseHandle(nullptr, nullptr), Error(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(Wlan().WlanCloseHandle(m_client, &reserved), Error(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(Wlan().WlanCloseHandle(NobodysHandle(), nullptr), Error(ERROR_INVALID_HANDLE));
    EXPECT_EQ(Enumerate(m_client), Error(ERROR_SUCCESS)) << "still open";
}

TEST_P(WlanServiceContract, EnumeratingNeedsAClientAnOutputAndNothingReserved)
{
    int reserved = 0;
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    EXPECT_EQ(Wlan().WlanEnumInterfaces(nullptr, nullptr, &list), Error(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(Wlan().WlanEnumInterfaces(m_client, &reserved, &list), Error(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(Wlan().WlanEnumInterfaces(m_client, nullptr, nullptr), Error(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(Wlan().WlanEnumInterfaces(NobodysHandle(), nullptr, &list), Error(ERROR_INVALID_HANDLE));
    EXPECT_EQ(list, nullptr);
}

TEST_P(WlanServiceContract, ACallWithBothFaultsHasAWrongArgument)
{
    int reserved = 0;
    EXPECT_EQ(Wlan().WlanCloseHandle(NobodysHandle(), &reserved), Error(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(Wlan().WlanEnumInterfaces(NobodysHandle(), nullptr, nullptr), Error(ERROR_INVALID_PARAMETER));
}

TEST_P(WlanServiceContract, AListIsWholeAndTheCallersToRelease)
{
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    ASSERT_EQ(Wlan().WlanEnumInterfaces(m_client, nullptr, &list), Error(ERROR_SUCCESS));
    ASSERT_NE(list, nullptr) << "a computer without adapters has an empty list";
    EXPECT_EQ(list->dwIndex, 0u);
    if (!IsSimulation())
        for (DWORD index = 0; index < list->dwNumberOfItems; ++index)
            EXPECT_LE(list->InterfaceInfo[index].isState, wlan_interface_state_authenticating);
    else
        EXPECT_EQ(list->dwNumberOfItems, 0u);
    Wlan().WlanFreeMemory(list);
}

TEST_P(WlanServiceContract, AClosedClientIsInvalid)
{
    if (!IsSimulation())
        GTEST_SKIP() << "a closed handle's value may be another's by now";
    HANDLE client = nullptr;
    ASSERT_EQ(Open(2, client), Error(ERROR_SUCCESS));
    EXPECT_EQ(Wlan().WlanCloseHandle(client, nullptr), Error(ERROR_SUCCESS));
    EXPECT_EQ(Enumerate(client), Error(ERROR_INVALID_HANDLE));
    EXPECT_EQ(Wlan().WlanCloseHandle(client, nullptr), Error(ERROR_INVALID_HANDLE));
}

TEST_P(WlanServiceContract, ReleasingNothingDoesNothing)
{
    Wlan().WlanFreeMemory(nullptr);
    EXPECT_EQ(Enumerate(m_client), Error(ERROR_SUCCESS));
}

} // namespace calvix::test::wlan_service_contract_test
