#include "support/library_test.h"

namespace calvix::test::computer_sleep_test
{
namespace
{

using ::testing::ElementsAre;

class ComputerSleepTest : public LibraryTest
{
};

TEST_F(ComputerSleepTest, TheComputerSleepsOnceItMayBeShutDown)
{
    ASSERT_EQ(1, manager().GetPrivileges());
    ClearCalls();
    EXPECT_EQ(1, manager().ForceComputerSleep());
    EXPECT_THAT(timeline(), ElementsAre("SetSuspendState(hibernate=false, force=true, wakeupEventsDisabled=false)"));
    EXPECT_EQ(1u, computer().SuspendCount());
    ExpectSilence();
}

TEST_F(ComputerSleepTest, NoPrivilegeIsEnabledHere)
{
    EXPECT_EQ(0, manager().ForceComputerSleep());
    EXPECT_THAT(calls(), ElementsAre("SetSuspendState"));
    EXPECT_EQ(0u, computer().SuspendCount());
    EXPECT_FALSE(computer().IsPrivilegeEnabled("SeShutdownPrivilege"));
    ExpectSilence();
}

} // namespace
} // namespace calvix::test::computer_sleep_test
