// What has nothing to do with Wi-Fi: real processes, this process's real token, the computer's own power facts. Nothing
// here changes the computer. The scenario is that of a stopped service, to show that it does not matter. What ends
// processes and looks at the token itself is in tests/without_wlan and tests/platform.

#include "end_to_end/host.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstddef>
#include <fstream>
#include <string>

namespace calvix::test::end_to_end_system_test
{
namespace
{

/// The mark that the companion leaves when it has run, which is then removed.
std::string TakeMark()
{
    const std::filesystem::path mark = OwnFolder() / "companion.ran";
    std::string text;
    std::getline(std::ifstream(mark), text);
    std::filesystem::remove(mark);
    return text;
}

TEST(System, CommandLineRunsToItsEnd)
{
    std::string commandLine = "\"" + (OwnFolder() / "companion.exe").string() + "\"";
    Manager().CreateProcRunCmd(commandLine.data());
    EXPECT_EQ(TakeMark(), "done");
}

TEST(System, ProgramBesideTheHostRunsToItsEnd)
{
    char name[] = "companion.exe";
    EXPECT_EQ(Manager().CreateProcRunExe(name), 1) << "with any exit code";
    EXPECT_EQ(TakeMark(), "done");
}

TEST(System, PrivilegesByName)
{
    EXPECT_TRUE(Manager().EnablePriviledge("SeChangeNotifyPrivilege")) << "everybody holds it";
    EXPECT_TRUE(Manager().EnablePriviledge("SeNoSuchPrivilege")) << "no such privilege counts as enabled";
    EXPECT_FALSE(Manager().EnablePriviledge("SeCreateTokenPrivilege")) << "no account holds it";
}

TEST(System, PowerFactsAreThePlatformsOwn)
{
    SYSTEM_POWER_POLICY policy{};
    EXPECT_EQ(Manager().GetSystemPowerPolicy(),
              ::CallNtPowerInformation(SystemPowerPolicyDc, nullptr, 0, &policy, sizeof(policy)));
    unsigned long long lastWake = 0;
    ::CallNtPowerInformation(LastWakeTime, nullptr, 0, &lastWake, sizeof(lastWake));
    EXPECT_EQ(Manager().GetLastWakeTime(), lastWake);
    unsigned long long lastSleep = 0;
    ::CallNtPowerInformation(LastSleepTime, nullptr, 0, &lastSleep, sizeof(lastSleep));
    EXPECT_EQ(Manager().GetLastSleepTime(), lastSleep);
    EXPECT_EQ(Manager().IsPowerHibernateAllowed(), ::IsSystemResumeAutomatic());
    SYSTEM_POWER_CAPABILITIES capabilities{};
    ::CallNtPowerInformation(SystemPowerCapabilities, nullptr, 0, &capabilities, sizeof(capabilities));
    // The SDK of this compiler has no name for the byte.
    constexpr std::size_t alwaysOnAlwaysConnected = offsetof(SYSTEM_POWER_CAPABILITIES, FastSystemS4) + 3;
    EXPECT_EQ(Manager().IsSurpportAoAc(), reinterpret_cast<const BYTE*>(&capabilities)[alwaysOnAlwaysConnected]);
}

} // namespace
} // namespace calvix::test::end_to_end_system_test
