#include "support/library_test.h"

namespace calvix::test::privileges_test
{
namespace
{

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

constexpr const char* kShutdown = "SeShutdownPrivilege";
constexpr const char* kTimeZone = "SeTimeZonePrivilege";
/// A privilege of the platform that the accounts of these tests do not hold.
constexpr const char* kNotHeld = "SeTcbPrivilege";

const std::string kOpen = "OpenProcessToken(process=current, access=40, token=non-null)";
const std::string kClose = "CloseHandle(handle=1)";

std::string Lookup(const std::string& name)
{
    return "LookupPrivilegeValueA(system=null, name=\"" + name + "\", luid=non-null)";
}

simulation::Scenario ScenarioWith(const std::vector<simulation::Privilege>& privileges)
{
    simulation::Scenario scenario = RichScenario();
    scenario.privileges = privileges;
    return scenario;
}

class PrivilegesTest : public LibraryTest
{
public:
    PrivilegesTest() : LibraryTest(ScenarioWith({{kShutdown, false}, {kTimeZone, false}})) {}
};

// --- GetPrivileges ---

TEST_F(PrivilegesTest, TheShutdownPrivilegeIsEnabled)
{
    EXPECT_EQ(1, manager().GetPrivileges());
    const std::string size = std::to_string(sizeof(TOKEN_PRIVILEGES));
    EXPECT_THAT(timeline(),
                ElementsAre("GetCurrentProcess()", kOpen, Lookup(kShutdown),
                            "AdjustTokenPrivileges(token=1, disableAll=false, newState={count=1, attributes=2}, "
                            "previousSize=" +
                                size + ", previous=non-null, returnLength=non-null)",
                            kClose));
    EXPECT_TRUE(computer().IsPrivilegeEnabled(kShutdown));
    EXPECT_FALSE(computer().IsPrivilegeEnabled(kTimeZone));
    ExpectSilence();
}

// Deliberate: the last error is not asked for, so a privilege that the account does not hold counts as enabled.
TEST_F(PrivilegesTest, APrivilegeThatIsNotHeldCountsAsEnabled)
{
    UseScenario(ScenarioWith({{kTimeZone, false}}));
    EXPECT_EQ(1, manager().GetPrivileges());
    EXPECT_FALSE(computer().IsPrivilegeEnabled(kShutdown));
    EXPECT_THAT(timeline(), Not(Contains("GetLastError()")));
    ExpectSilence();
}

TEST_F(PrivilegesTest, TheErrorOfTheTokenDecides)
{
    struct
    {
        DWORD error;
        int expected;
    } const rows[] = {{120, 1}, {5, 0}, {6, 0}, {119, 0}, {121, 0}, {1314, 0}};
    for (const auto& row : rows)
    {
        Restart();
        FailOn("OpenProcessToken", row.error);
        EXPECT_EQ(row.expected, manager().GetPrivileges()) << row.error;
        EXPECT_EQ(1u, InjectedFailures());
        EXPECT_THAT(timeline(), ElementsAre("GetCurrentProcess()", kOpen, "GetLastError()"));
        ExpectSilence();
    }
}

// --- EnablePriviledge ---

TEST_F(PrivilegesTest, APrivilegeIsEnabledByItsName)
{
    EXPECT_TRUE(manager().EnablePriviledge(kTimeZone));
    EXPECT_THAT(timeline(),
                ElementsAre("GetCurrentProcess()", kOpen, Lookup(kTimeZone),
                            "AdjustTokenPrivileges(token=1, disableAll=false, newState={count=1, attributes=2}, "
                            "previousSize=0, previous=null, returnLength=null)",
                            "GetLastError()", kClose));
    EXPECT_TRUE(computer().IsPrivilegeEnabled(kTimeZone));
    EXPECT_FALSE(computer().IsPrivilegeEnabled(kShutdown));
    ExpectSilence();
}

TEST_F(PrivilegesTest, APrivilegeThatIsNotHeldIsTheOnlyFailure)
{
    EXPECT_FALSE(manager().EnablePriviledge(kNotHeld));
    EXPECT_THAT(calls(), ElementsAre("GetCurrentProcess", "OpenProcessToken", "LookupPrivilegeValueA",
                                     "AdjustTokenPrivileges", "CloseHandle"));
    EXPECT_FALSE(computer().IsPrivilegeEnabled(kNotHeld));
    ExpectSilence();
}

// Deliberate: what there is not counts as enabled.
TEST_F(PrivilegesTest, AnUnknownPrivilegeCountsAsEnabled)
{
    for (const char* name : {"SeMakeCoffeePrivilege", "", "seshutdown privilege"})
    {
        Restart();
        EXPECT_TRUE(manager().EnablePriviledge(name)) << name;
        EXPECT_THAT(timeline(), ElementsAre("GetCurrentProcess()", kOpen, Lookup(name), kClose));
        ExpectSilence();
    }
}

TEST_F(PrivilegesTest, NoNameCountsAsEnabledAndIsNotLookedUp)
{
    EXPECT_TRUE(manager().EnablePriviledge(nullptr));
    EXPECT_THAT(timeline(), ElementsAre("GetCurrentProcess()", kOpen, kClose));
    ExpectSilence();
}

TEST_F(PrivilegesTest, TheLastErrorAloneDecides)
{
    FailOn("GetLastError", 1300);
    EXPECT_FALSE(manager().EnablePriviledge(kTimeZone));
    EXPECT_EQ(1u, InjectedFailures());
    EXPECT_TRUE(computer().IsPrivilegeEnabled(kTimeZone)) << "the adjustment itself had been made";
    EXPECT_EQ(1u, callCount("CloseHandle"));
    ExpectSilence();
}

} // namespace
} // namespace calvix::test::privileges_test
