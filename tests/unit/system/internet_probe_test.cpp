#include "support/library_test.h"

namespace calvix::test::internet_probe_test
{
namespace
{

using ::testing::ElementsAre;

const std::string kTimeOut = "InternetSetOptionA(internet=null, option=2, buffer=3000, bufferSize=sizeof(DWORD))";
const std::string kProbe = "InternetCheckConnectionA(url=\"https://www.example.com/\", flags=1, reserved=0)";

class InternetProbeTest : public LibraryTest
{
};

TEST_F(InternetProbeTest, AsksAFixedAddressAfterSettingTheTimeOut)
{
    computer().SetInternet(simulation::InternetAccess::reachable);
    EXPECT_EQ(0, manager().OpenUrl());
    EXPECT_THAT(timeline(), ElementsAre(kTimeOut, kProbe));
    ExpectSilence();
}

TEST_F(InternetProbeTest, AllReasonsForFailureAreOne)
{
    for (const auto access : {simulation::InternetAccess::unresolved, simulation::InternetAccess::unreachable})
    {
        ClearCalls();
        computer().SetInternet(access);
        EXPECT_EQ(-1, manager().OpenUrl());
        EXPECT_THAT(timeline(), ElementsAre(kTimeOut, kProbe));
        ExpectSilence();
    }
}

TEST_F(InternetProbeTest, ProbesWithoutTheTimeOutWhenItIsRefused)
{
    FailOn("InternetSetOptionA", 87);
    EXPECT_EQ(0, manager().OpenUrl());
    EXPECT_EQ(1u, InjectedFailures());
    EXPECT_THAT(timeline(), ElementsAre(kTimeOut, kProbe));
    ExpectSilence();
}

} // namespace
} // namespace calvix::test::internet_probe_test
