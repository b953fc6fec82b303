#include "support/changed_platform.h"
#include "support/library_test.h"

#include <cstring>

namespace calvix::test::legacy_power_scheme_test
{
namespace
{

using ::testing::ElementsAre;

constexpr UINT kActive = 3;
constexpr UINT kOther = 5;

const std::string kAllowed = "IsPwrSuspendAllowed()";
const std::string kActiveScheme = "GetActivePwrScheme(schemeId=non-null)";

std::string Write(UINT scheme)
{
    return "WritePwrScheme(schemeId=" + std::to_string(scheme) + ", name=null, description=null, policy=non-null)";
}

std::string Activate(UINT scheme)
{
    return "SetActivePwrScheme(schemeId=" + std::to_string(scheme) + ", globalPolicy=null, policy=non-null)";
}

simulation::Scenario TwoSchemes()
{
    simulation::Scenario scenario = RichScenario();
    scenario.power.legacySchemes = {
        {.id = kActive, .name = "Desk", .idleTimeoutAc = 1800, .idleTimeoutDc = 600, .videoTimeoutAc = 450},
        {.id = kOther, .name = "Travel", .idleTimeoutAc = 300, .idleTimeoutDc = 120, .videoTimeoutAc = 60}};
    scenario.power.activeLegacyScheme = kActive;
    return scenario;
}

bool Same(const POWER_POLICY& one, const POWER_POLICY& other)
{
    return std::memcmp(&one, &other, sizeof(one)) == 0;
}

bool IsZero(const POWER_POLICY& policy)
{
    return Same(policy, POWER_POLICY{});
}

POWER_POLICY WithoutIdleTimeouts(POWER_POLICY policy)
{
    policy.user.IdleTimeoutAc = 0;
    policy.user.IdleTimeoutDc = 0;
    return policy;
}

/// Notes the policies that are written and activated.
void SeePolicies(ChangedPlatform& changed, std::vector<POWER_POLICY>& seen)
{
    changed.Before<&Power::WritePwrScheme>([&seen](auto, auto, auto, POWER_POLICY* policy)
                                           { seen.push_back(*policy); });
    changed.Before<&Power::SetActivePwrScheme>([&seen](auto, auto, POWER_POLICY* policy) { seen.push_back(*policy); });
}

class LegacyPowerSchemeTest : public LibraryTest
{
public:
    LegacyPowerSchemeTest() : LibraryTest(TwoSchemes()) {}

    POWER_POLICY PolicyOf(UINT scheme) { return computer().LegacyPowerPolicy(scheme).value(); }
    POWER_POLICY& Saved() { return ManagerInternals::SavedPowerPolicy(manager()); }

    void ExpectIdleTimeouts(UINT scheme, ULONG mains, ULONG battery)
    {
        EXPECT_EQ(mains, PolicyOf(scheme).user.IdleTimeoutAc) << scheme;
        EXPECT_EQ(battery, PolicyOf(scheme).user.IdleTimeoutDc) << scheme;
    }
};

// --- SetPowerScheme ---

TEST_F(LegacyPowerSchemeTest, AnIdleComputerStaysAwake)
{
    EXPECT_EQ(0, manager().SetPowerScheme());
    EXPECT_THAT(timeline(), ElementsAre(kAllowed, kActiveScheme, "ReadPwrScheme(schemeId=3, policy=non-null)",
                                        Write(kActive), Activate(kActive)));
    ExpectIdleTimeouts(kActive, 0, 0);
    ExpectIdleTimeouts(kOther, 300, 120);
    EXPECT_EQ(450u, PolicyOf(kActive).user.VideoTimeoutAc);
    EXPECT_EQ(kActive, computer().Snapshot().power.activeLegacyScheme);
    ExpectSilence();
}

// The record has many fields that do not matter here.
TEST_F(LegacyPowerSchemeTest, NothingButTheIdleTimeoutsChanges)
{
    POWER_POLICY full{};
    std::memset(&full, 0x5A, sizeof(full));
    std::vector<POWER_POLICY> seen;
    ChangedPlatform changed;
    changed.After<&Power::ReadPwrScheme>([&full](auto, auto, POWER_POLICY* policy) { *policy = full; });
    SeePolicies(changed, seen);
    manager().SetPowerScheme();
    ASSERT_EQ(2u, seen.size());
    for (const POWER_POLICY& policy : seen)
        EXPECT_TRUE(Same(WithoutIdleTimeouts(full), policy));
    EXPECT_TRUE(Same(full, Saved()));
}

// The platform may store a written scheme under another number.
TEST_F(LegacyPowerSchemeTest, TheSchemeIsActivatedUnderTheNumberThatWritingGaveIt)
{
    ChangedPlatform changed;
    changed.After<&Power::WritePwrScheme>([](auto, UINT* scheme, auto, auto, auto) { *scheme = kOther; });
    EXPECT_EQ(0, manager().SetPowerScheme());
    EXPECT_EQ(Write(kActive), call("WritePwrScheme", 1).line);
    EXPECT_EQ(Activate(kOther), call("SetActivePwrScheme", 1).line);
    EXPECT_EQ(0, manager().ResetPowerScheme());
    EXPECT_EQ(Write(kOther), call("WritePwrScheme", 2).line);
    EXPECT_EQ(Activate(kOther), call("SetActivePwrScheme", 2).line);
}

TEST_F(LegacyPowerSchemeTest, WhatWasReadIsSavedEvenIfTheSwitchFails)
{
    FailOn("WritePwrScheme");
    EXPECT_EQ(-4, manager().SetPowerScheme());
    EXPECT_EQ(1800u, Saved().user.IdleTimeoutAc);
    ExpectIdleTimeouts(kActive, 1800, 600);
    EXPECT_EQ(-3, manager().ResetPowerScheme());
    EXPECT_EQ(1800u, Saved().user.IdleTimeoutAc);
}

TEST_F(LegacyPowerSchemeTest, NothingIsSavedUnlessItWasRead)
{
    FailOn("ReadPwrScheme");
    EXPECT_EQ(-3, manager().SetPowerScheme());
    EXPECT_TRUE(IsZero(Saved()));
}

// --- ResetPowerScheme ---

TEST_F(LegacyPowerSchemeTest, TheRememberedPolicyComesBack)
{
    const POWER_POLICY before = PolicyOf(kActive);
    ASSERT_EQ(0, manager().SetPowerScheme());
    ClearCalls();
    EXPECT_EQ(0, manager().ResetPowerScheme());
    EXPECT_THAT(timeline(), ElementsAre(kAllowed, kActiveScheme, Write(kActive), Activate(kActive)));
    EXPECT_TRUE(Same(before, PolicyOf(kActive)));
    EXPECT_TRUE(Same(before, Saved())) << "what is remembered stays remembered";
    ExpectSilence();

    ASSERT_EQ(0, manager().ResetPowerScheme());
    ExpectIdleTimeouts(kActive, 1800, 600);
}

// Deliberate: what was never saved is written all the same.
TEST_F(LegacyPowerSchemeTest, WithoutASaveAPolicyOfZerosIsWritten)
{
    std::vector<POWER_POLICY> seen;
    ChangedPlatform changed;
    SeePolicies(changed, seen);
    EXPECT_EQ(0, manager().ResetPowerScheme());
    ASSERT_EQ(2u, seen.size());
    EXPECT_TRUE(IsZero(seen[0]));
    EXPECT_TRUE(IsZero(seen[1]));
    EXPECT_THAT(timeline(), ElementsAre(kAllowed, kActiveScheme, Write(kActive), Activate(kActive)));
    ExpectIdleTimeouts(kActive, 0, 0);
    EXPECT_EQ(0u, PolicyOf(kActive).user.VideoTimeoutAc);
}

// Deliberate: the second save is of the policy that the first call made.
TEST_F(LegacyPowerSchemeTest, ASecondSaveForgetsTheFirst)
{
    ASSERT_EQ(0, manager().SetPowerScheme());
    ASSERT_EQ(0, manager().SetPowerScheme());
    EXPECT_EQ(0, manager().ResetPowerScheme());
    ExpectIdleTimeouts(kActive, 0, 0);
    EXPECT_EQ(450u, PolicyOf(kActive).user.VideoTimeoutAc);
}

// Deliberate: the policy goes to the scheme that is active now, not to the one that it was read from.
TEST_F(LegacyPowerSchemeTest, ThePolicyGoesToWhicheverSchemeIsActive)
{
    const POWER_POLICY desk = PolicyOf(kActive);
    ASSERT_EQ(0, manager().SetPowerScheme());
    ASSERT_TRUE(computer().power().SetActivePwrScheme(kOther, nullptr, nullptr));
    ClearCalls();
    EXPECT_EQ(0, manager().ResetPowerScheme());
    EXPECT_THAT(timeline(), ElementsAre(kAllowed, kActiveScheme, Write(kOther), Activate(kOther)));
    EXPECT_TRUE(Same(desk, PolicyOf(kOther)));
    ExpectIdleTimeouts(kActive, 0, 0);
}

} // namespace
} // namespace calvix::test::legacy_power_scheme_test
