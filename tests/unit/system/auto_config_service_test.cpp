#include "support/library_test.h"

#include <algorithm>

namespace calvix::test::auto_config_service_test
{

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class AutoConfigServiceTest : public LibraryTest
{
};

TEST_F(AutoConfigServiceTest, LeavesARunningServiceAlone)
{
    manager().CheckAutoConfig();
    EXPECT_THAT(callLines(), ElementsAre("OpenSCManagerA(machine=null, database=null, access=983103)",
                                         "OpenServiceA(manager=1, name=\"WlanSvc\", access=983551)",
                                         "QueryServiceStatus(service=2, status=non-null)",
                                         "CloseServiceHandle(handle=1)", "CloseServiceHandle(handle=2)"));
    ExpectSilence();
}

TEST_F(AutoConfigServiceTest, StartsAStoppedService)
{
    computer().SetServiceRunning(false);
    manager().CheckAutoConfig();
    EXPECT_THAT(timeline(), ElementsAre("OpenSCManagerA(machine=null, database=null, access=983103)",
                                        "OpenServiceA(manager=1, name=\"WlanSvc\", access=983551)",
                                        "QueryServiceStatus(service=2, status=non-null)",
                                        "StartServiceA(service=2, argumentCount=0, arguments=null)", "GetLastError()",
                                        "CloseServiceHandle(handle=1)", "CloseServiceHandle(handle=2)"));
    ExpectSilence();
    EXPECT_TRUE(computer().Snapshot().serviceRunning);
}

TEST_F(AutoConfigServiceTest, NeedsNoClient)
{
    ForgetClient();
    manager().CheckAutoConfig();
    EXPECT_EQ(0u, callCount("WlanOpenHandle"));
    EXPECT_EQ(nullptr, ManagerInternals::Client());
}

// Kept on purpose: no step is checked, a handle that could not be opened is passed on as it is.
TEST_F(AutoConfigServiceTest, GoesOnWithoutTheManager)
{
    FailOn("OpenSCManagerA");
    manager().CheckAutoConfig();
    EXPECT_EQ(1u, InjectedFailures());
    EXPECT_THAT(calls(), ElementsAre("OpenSCManagerA", "OpenServiceA", "QueryServiceStatus", "StartServiceA",
                                     "CloseServiceHandle", "CloseServiceHandle"));
    EXPECT_EQ("null", call("OpenServiceA")["manager"]);
    EXPECT_EQ("null", call("CloseServiceHandle", 1)["handle"]);
    EXPECT_EQ("null", call("CloseServiceHandle", 2)["handle"]);
    ExpectSilence();
}

TEST_F(AutoConfigServiceTest, GoesOnWithoutTheService)
{
    FailOn("OpenServiceA");
    manager().CheckAutoConfig();
    EXPECT_EQ(1u, InjectedFailures());
    EXPECT_EQ("null", call("QueryServiceStatus")["service"]);
    EXPECT_EQ("1", call("CloseServiceHandle", 1)["handle"]);
    EXPECT_EQ("null", call("CloseServiceHandle", 2)["handle"]);
    ExpectSilence();
}

TEST_F(AutoConfigServiceTest, StartsAServiceOfUnknownState)
{
    FailOn("QueryServiceStatus");
    manager().CheckAutoConfig();
    EXPECT_EQ(1u, InjectedFailures());
    EXPECT_THAT(calls(), Contains("StartServiceA"));
    EXPECT_EQ(2u, callCount("CloseServiceHandle"));
    ExpectSilence();
}

TEST_F(AutoConfigServiceTest, IgnoresAServiceThatDoesNotStart)
{
    computer().SetServiceRunning(false);
    FailOn("StartServiceA");
    manager().CheckAutoConfig();
    EXPECT_EQ(1u, InjectedFailures());
    EXPECT_THAT(timeline(), Contains("GetLastError()"));
    EXPECT_EQ(2u, callCount("CloseServiceHandle"));
    EXPECT_FALSE(computer().Snapshot().serviceRunning);
    ExpectSilence();
}

} // namespace calvix::test::auto_config_service_test
