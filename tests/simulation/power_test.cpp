// Power management: what the computer can do, sleeping, and the policies of the system.
#include "system_fixture.h"

namespace calvix::simulation::power_test
{

namespace
{

constexpr std::uint32_t kNotImplemented = 0xC0000002;
constexpr std::uint32_t kInvalidParameter = 0xC000000D;
constexpr std::uint32_t kBufferTooSmall = 0xC0000023;

class PowerTest : public SystemTest
{
protected:
    /// The status as the platform has it, in 32 bits.
    template <typename Record>
    std::uint32_t Ask(POWER_INFORMATION_LEVEL level, Record& record, std::size_t size = sizeof(Record))
    {
        return static_cast<std::uint32_t>(
            Power().CallNtPowerInformation(level, nullptr, 0, &record, static_cast<ULONG>(size)));
    }

    /// What the computer says that it can do and has.
    std::string Abilities()
    {
        SYSTEM_POWER_CAPABILITIES capabilities{};
        EXPECT_EQ(Ask(SystemPowerCapabilities, capabilities), 0u);
        std::string words;
        for (const auto& [flag, word] : {std::pair<BOOLEAN, const char*>{Power().IsPwrSuspendAllowed(), " suspend"},
                                         {capabilities.SystemS3, " S3"},
                                         {AoAcOf(capabilities), " standby"},
                                         {Power().IsPwrHibernateAllowed(), " hibernate"},
                                         {capabilities.SystemS4, " S4"},
                                         {capabilities.HiberFilePresent, " file"},
                                         {Power().IsPwrShutdownAllowed(), " shutdown"},
                                         {capabilities.SystemS5, " S5"},
                                         {capabilities.LidPresent, " lid"},
                                         {capabilities.SystemBatteriesPresent, " battery"}})
            words += flag == 1 ? word : "";
        return words.substr(1);
    }

    std::uint64_t AskTime(POWER_INFORMATION_LEVEL level)
    {
        std::uint64_t time = 0;
        EXPECT_EQ(Ask(level, time), 0u);
        return time;
    }
};

TEST_F(PowerTest, AComputerCanDoEverythingButModernStandby)
{
    EXPECT_EQ(Abilities(), "suspend S3 hibernate S4 file shutdown S5");
    EXPECT_EQ(Power().IsSystemResumeAutomatic(), FALSE);
}

TEST_F(PowerTest, EachPermissionIsItsOwn)
{
    scenario.power.suspendAllowed = false;
    EXPECT_EQ(Abilities(), "hibernate S4 file shutdown S5");
}

TEST_F(PowerTest, OthersThanToSuspendHaveTheirStates)
{
    scenario.power.hibernateAllowed = false;
    scenario.power.shutdownAllowed = false;
    EXPECT_EQ(Abilities(), "suspend S3");
}

TEST_F(PowerTest, ModernStandbyReplacesTheThirdSleepState)
{
    scenario.power.modernStandby = true;
    scenario.power.battery = true;
    EXPECT_EQ(Abilities(), "suspend standby hibernate S4 file shutdown S5 lid battery");
}

TEST_F(PowerTest, RefusedQuestions)
{
    std::uint64_t time = 7;
    SYSTEM_POWER_POLICY policy{};
    EXPECT_EQ(Ask(LastSleepTime, time, 0), kBufferTooSmall);
    EXPECT_EQ(Ask(SystemPowerPolicyAc, policy, sizeof(policy) - 1), kBufferTooSmall);
    EXPECT_EQ(Ask(SystemPowerPolicyDc, policy, sizeof(policy) - 1), kBufferTooSmall);
    EXPECT_EQ(time, 7u);
    EXPECT_EQ(Ask(static_cast<POWER_INFORMATION_LEVEL>(77), time), kNotImplemented);
    const NTSTATUS status = Power().CallNtPowerInformation(LastWakeTime, nullptr, 0, nullptr, 8);
    EXPECT_EQ(static_cast<std::uint32_t>(status), kInvalidParameter);
    EXPECT_LT(status, 0);
}

TEST_F(PowerTest, TimesAreThoseOfTheScenarioUntilTheComputerSleeps)
{
    scenario.power.lastSleepTime = 123456789012345;
    scenario.power.lastWakeTime = 123456789099999;
    Machine().Advance(std::chrono::seconds(5));
    EXPECT_EQ(AskTime(LastSleepTime), 123456789012345u);
    EXPECT_EQ(AskTime(LastWakeTime), 123456789099999u);
}

TEST_F(PowerTest, SleepingTakesTheShutdownPrivilege)
{
    EXPECT_EQ(ErrorOf(Power().SetSuspendState(FALSE, TRUE, FALSE)), ERROR_PRIVILEGE_NOT_HELD);
    EXPECT_EQ(Machine().SuspendCount(), 0u);
    EXPECT_EQ(Adjust("SeShutdownPrivilege", true), ERROR_SUCCESS);
    EXPECT_EQ(Power().SetSuspendState(FALSE, TRUE, FALSE), 1);
    EXPECT_EQ(Machine().SuspendCount(), 1u);
    EXPECT_EQ(Adjust("SeShutdownPrivilege", false), ERROR_SUCCESS);
    EXPECT_EQ(Power().SetSuspendState(FALSE, TRUE, FALSE), 0);
}

TEST_F(PowerTest, WithoutTokensNoPrivilegeIsNeeded)
{
    scenario.tokens = false;
    EXPECT_EQ(Power().SetSuspendState(FALSE, TRUE, FALSE), 1);
}

TEST_F(PowerTest, SleepTakesTimeAndIsRemembered)
{
    scenario.power.upMilliseconds = 1000;
    scenario.power.sleepMilliseconds = 30'000;
    scenario.privileges = {{"SeShutdownPrivilege", true}};
    Machine().Advance(std::chrono::seconds(2));
    EXPECT_EQ(Power().SetSuspendState(FALSE, TRUE, FALSE), 1);
    EXPECT_EQ(Machine().Now(), std::chrono::seconds(32));
    EXPECT_EQ(AskTime(LastSleepTime), 30'000'000u);
    EXPECT_EQ(AskTime(LastWakeTime), 330'000'000u);
    EXPECT_EQ(Power().SetSuspendState(TRUE, TRUE, FALSE), 1);
    EXPECT_EQ(AskTime(LastSleepTime), 330'000'000u);
    EXPECT_EQ(AskTime(LastWakeTime), 630'000'000u);
    EXPECT_EQ(Machine().SuspendCount(), 2u);
}

TEST_F(PowerTest, WhatIsNotAllowedIsNotDone)
{
    scenario.privileges = {{"SeShutdownPrivilege", true}};
    scenario.power.suspendAllowed = false;
    EXPECT_EQ(ErrorOf(Power().SetSuspendState(FALSE, TRUE, FALSE)), ERROR_NOT_SUPPORTED);
    EXPECT_EQ(Power().SetSuspendState(TRUE, TRUE, FALSE), 1);
}

TEST_F(PowerTest, WakingByItselfTakesWakeUpEvents)
{
    scenario.privileges = {{"SeShutdownPrivilege", true}};
    scenario.power.resumesAutomatically = true;
    EXPECT_EQ(Power().IsSystemResumeAutomatic(), TRUE);
    EXPECT_EQ(Power().SetSuspendState(FALSE, TRUE, TRUE), 1);
    EXPECT_EQ(Power().IsSystemResumeAutomatic(), FALSE);
    EXPECT_EQ(Power().SetSuspendState(FALSE, TRUE, FALSE), 1);
    EXPECT_EQ(Power().IsSystemResumeAutomatic(), TRUE);
}

TEST_F(PowerTest, TheSystemsPoliciesAreThoseOfTheActiveLegacyScheme)
{
    scenario.power.legacySchemes = {{4, "Four", 11, 12, 13, 14}};
    scenario.power.activeLegacyScheme = 4;
    SYSTEM_POWER_POLICY mains{};
    SYSTEM_POWER_POLICY battery{};
    EXPECT_EQ(Ask(SystemPowerPolicyAc, mains), 0u);
    EXPECT_EQ(Ask(SystemPowerPolicyDc, battery), 0u);
    EXPECT_EQ(mains.IdleTimeout, 11u);
    EXPECT_EQ(battery.IdleTimeout, 12u);
    EXPECT_EQ(mains.VideoTimeout, 13u);
    EXPECT_EQ(battery.VideoTimeout, 14u);
    EXPECT_EQ(mains.Idle.Action, PowerActionSleep);
}

TEST_F(PowerTest, LegacySchemesAreReadByNumber)
{
    UINT active = 99;
    EXPECT_EQ(Power().GetActivePwrScheme(&active), 1);
    EXPECT_EQ(active, 0u);
    POWER_POLICY policy{};
    EXPECT_EQ(Power().ReadPwrScheme(1, &policy), 1);
    EXPECT_EQ(policy.user.IdleTimeoutAc, 1200u);
    EXPECT_EQ(policy.user.IdleTimeoutDc, 300u);
    EXPECT_EQ(ErrorOf(Power().ReadPwrScheme(2, &policy)), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(ErrorOf(Power().ReadPwrScheme(1, nullptr)), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Power().GetActivePwrScheme(nullptr), 0);
}

TEST_F(PowerTest, AWrittenPolicyIsKeptWholeAndComesIntoForceWhenItIsActivated)
{
    POWER_POLICY policy{};
    policy.mach.DozeS4TimeoutDc = 77;
    policy.user.IdleTimeoutAc = 88;
    UINT scheme = 0;
    EXPECT_EQ(Power().WritePwrScheme(&scheme, nullptr, nullptr, &policy), 1);
    EXPECT_EQ(Machine().LegacyPowerPolicy(0)->mach.DozeS4TimeoutDc, 77u);
    SYSTEM_POWER_POLICY system{};
    EXPECT_EQ(Ask(SystemPowerPolicyAc, system), 0u);
    EXPECT_EQ(system.IdleTimeout, 1800u);
    EXPECT_EQ(Power().SetActivePwrScheme(0, nullptr, nullptr), 1);
    EXPECT_EQ(Ask(SystemPowerPolicyAc, system), 0u);
    EXPECT_EQ(system.IdleTimeout, 88u);
    EXPECT_EQ(Machine().Snapshot().power.legacySchemes.front().name, "Home/Office Desk");
}

TEST_F(PowerTest, ActivatingWithAPolicyLeavesTheSchemesOwnAsItIs)
{
    POWER_POLICY policy{};
    policy.user.IdleTimeoutDc = 5;
    EXPECT_EQ(Power().SetActivePwrScheme(3, nullptr, &policy), 1);
    EXPECT_EQ(Machine().Snapshot().power.activeLegacyScheme, 3u);
    EXPECT_EQ(Machine().LegacyPowerPolicy(3)->user.IdleTimeoutAc, 0u);
    EXPECT_EQ(Machine().LegacyPowerPolicy(3)->user.VideoTimeoutAc, 1200u);
    SYSTEM_POWER_POLICY system{};
    EXPECT_EQ(Ask(SystemPowerPolicyDc, system), 0u);
    EXPECT_EQ(system.IdleTimeout, 5u);
    EXPECT_EQ(ErrorOf(Power().SetActivePwrScheme(2, nullptr, nullptr)), ERROR_FILE_NOT_FOUND);
}

TEST_F(PowerTest, NewLegacySchemesNeedAName)
{
    POWER_POLICY policy{};
    UINT scheme = 0xFFFFFFFF;
    EXPECT_EQ(ErrorOf(Power().WritePwrScheme(&scheme, nullptr, nullptr, &policy)), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Power().WritePwrScheme(&scheme, L"Mine", L"My own", &policy), 1);
    EXPECT_EQ(scheme, 2u);
    EXPECT_EQ(Machine().Snapshot().power.legacySchemes[2].name, "Mine");
    EXPECT_EQ(Power().WritePwrScheme(nullptr, L"Mine", nullptr, &policy), 0);
    EXPECT_EQ(ErrorOf(Power().WritePwrScheme(&scheme, L"Mine", nullptr, nullptr)), ERROR_INVALID_PARAMETER);
}

TEST_F(PowerTest, WithoutAnActiveLegacySchemeThereIsNothingToName)
{
    scenario.power.activeLegacyScheme.reset();
    UINT active = 99;
    EXPECT_EQ(ErrorOf(Power().GetActivePwrScheme(&active)), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(active, 99u);
    EXPECT_FALSE(Machine().LegacyPowerPolicy(9).has_value());
}

} // namespace

} // namespace calvix::simulation::power_test
