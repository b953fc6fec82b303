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

/// What the companion writes to the file, which is then removed.
std::string TakeText(const std::filesystem::path& path)
{
    std::string text;
    std::getline(std::ifstream(path), text);
    std::filesystem::remove(path);
    return text;
}

TEST(System, CommandLineRunsToItsEnd)
{
    const std::filesystem::path left = OwnFolder() / "left by command line.txt";
    std::string commandLine = "\"" + (OwnFolder() / "companion.exe").string() + "\" --leave \"" + left.string() + "\"";
    Manager().CreateProcRunCmd(commandLine.data());
    EXPECT_EQ(TakeText(left), "done");
}

TEST(System, ProgramBesideTheHostRunsToItsEnd)
{
    char name[] = "companion.exe";
    EXPECT_EQ(Manager().CreateProcRunExe(name), 1) << "with any exit code";
    EXPECT_EQ(TakeText(OwnFolder() / "companion.ran"), "done");
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
