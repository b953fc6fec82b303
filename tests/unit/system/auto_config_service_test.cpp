#include "support/library_test.h"

namespace calvix::test::auto_config_service_test
{

using ::testing::ElementsAre;

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

// Deliberate: no step is checked, and a handle that could not be opened is passed on as it is.
TEST_F(AutoConfigServiceTest, GoesOnAfterEveryFailure)
{
    const struct
    {
        const char* operation;
        const char* manager;
        const char* service;
    } rows[] = {{"OpenSCManagerA", "null", "null"},
                {"OpenServiceA", "1", "null"},
                {"QueryServiceStatus", "1", "2"},
                {"StartServiceA", "1", "2"}};
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.operation);
        Restart();
        computer().SetServiceRunning(false);
        FailOn(row.operation);
        manager().CheckAutoConfig();
        EXPECT_EQ(1u, InjectedFailures());
        EXPECT_THAT(calls(), ElementsAre("OpenSCManagerA", "OpenServiceA", "QueryServiceStatus", "StartServiceA",
                                         "CloseServiceHandle", "CloseServiceHandle"));
        EXPECT_EQ(row.manager, call("OpenServiceA")["manager"]);
        EXPECT_EQ(row.service, call("StartServiceA")["service"]);
        EXPECT_EQ(row.manager, call("CloseServiceHandle", 1)["handle"]);
        EXPECT_EQ(row.service, call("CloseServiceHandle", 2)["handle"]);
        ExpectSilence();
    }
}

TEST_F(AutoConfigServiceTest, StartsAServiceOfUnknownState)
{
    FailOn("QueryServiceStatus");
    manager().CheckAutoConfig();
    EXPECT_EQ(1u, callCount("StartServiceA"));
}

} // namespace calvix::test::auto_config_service_test
