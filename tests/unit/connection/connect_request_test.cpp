#include "connection/connect_request.h"
#include "support/library_test.h"
#include "unit/call_lines.h"

#include <string>

namespace calvix::test::connect_request_test
{

using ::testing::ElementsAre;

namespace
{

class ConnectRequestTest : public LibraryTest
{
public:
    ConnectRequestTest() : LibraryTest(DisconnectedWorld()) {}

    ErrorNumber Request(const wchar_t* profile, DOT11_BSS_TYPE type, DOT11_BSSID_LIST* desired = nullptr)
    {
        SharedTrace trace;
        return RequestConnection(ManagerInternals::Client(), &kAdapterA, profile, type, desired, trace);
    }
};

} // namespace

TEST_F(ConnectRequestTest, AsksByProfileForAnyAccessPoint)
{
    EXPECT_EQ(0u, Request(L"HomeNet", dot11_BSS_type_infrastructure));
    EXPECT_EQ(0u, Request(L"AdHocNet", dot11_BSS_type_independent));
    EXPECT_THAT(callLines(), ElementsAre(ConnectLine("HomeNet"), ConnectLine("AdHocNet", "null", "independent")));
    ExpectSilence();
}

TEST_F(ConnectRequestTest, HandsTheDesiredAccessPointsOn)
{
    DOT11_BSSID_LIST desired{};
    desired.uNumOfEntries = 1;
    desired.uTotalNumOfEntries = 1;
    std::copy(kHomeNet5.begin(), kHomeNet5.end(), desired.BSSIDs[0]);
    EXPECT_EQ(0u, Request(L"HomeNet", dot11_BSS_type_infrastructure, &desired));
    EXPECT_THAT(callLines(), ElementsAre(ConnectLine("HomeNet", "[02:11:00:00:50:24]")));
}

TEST_F(ConnectRequestTest, ReturnsAndTracesTheServicesRefusal)
{
    EXPECT_EQ(1168u, Request(L"NoSuchNet", dot11_BSS_type_infrastructure));
    EXPECT_THAT(traced(), ElementsAre("WlanConnect failed with error: 1168"));
    FailOn("WlanConnect", 0x80342002);
    EXPECT_EQ(0x80342002u, Request(L"HomeNet", dot11_BSS_type_infrastructure));
    EXPECT_EQ("WlanConnect failed with error: 2150899714", sharedTrace());
    EXPECT_EQ(2u, callCount("WlanConnect")) << "a refused request is not repeated";
}

} // namespace calvix::test::connect_request_test
