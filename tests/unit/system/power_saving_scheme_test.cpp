#include "support/changed_platform.h"
#include "support/library_test.h"

#include <cstring>

namespace calvix::test::power_saving_scheme_test
{
namespace
{

using ::testing::ElementsAre;
using ::testing::StartsWith;

constexpr const char* kBalanced = "{381B4222-F694-41F0-9685-FF5BB260DF2E}";
constexpr const char* kSaver = "{A1841308-3541-4FAB-BC81-F71556F20B4A}";
constexpr const char* kSleep = "{238C9FA8-0AAD-41ED-83F4-97BE242C8F20}";
constexpr const char* kStandby = "{29F6C1DB-86DA-48C5-9FDB-F2B67B1F44DA}";
constexpr const char* kUnattended = "{7BC4A2F9-D8FC-4469-B07B-33EB785AACA0}";

const std::string kEnumerate = "PowerEnumerate(root=null, scheme=null, subgroup=null, access=16, index=0, "
                               "buffer=non-null, bufferSize=16)";
const std::string kReadName = std::string("PowerReadFriendlyName(root=null, scheme=") + kBalanced +
                              ", subgroup=null, setting=null, buffer=non-null, bufferSize=1024)";

/// Two schemes, the second of them active, in a store whose listing fails.
simulation::Scenario UnlistedSchemes()
{
    simulation::Scenario scenario = RichScenario();
    scenario.power.schemes = {{.guid = kBalanced, .name = simulation::FriendlyName("Balanced")},
                              {.guid = kSaver,
                               .name = simulation::FriendlyName("Power saver"),
                               .values = {{.subgroup = kSleep, .setting = kStandby, .ac = 1800, .dc = 900},
                                          {.subgroup = kSleep, .setting = kUnattended, .ac = 120, .dc = 60}}}};
    scenario.power.activeScheme = kSaver;
    scenario.power.enumerationError = 259;
    return scenario;
}

class PowerSavingSchemeTest : public LibraryTest
{
public:
    PowerSavingSchemeTest() : LibraryTest(UnlistedSchemes()) {}

    std::vector<simulation::PowerScheme> Schemes() { return computer().Snapshot().power.schemes; }

    /// The store can list its schemes again, which the method takes for more and more of them.
    void ListSchemes()
    {
        simulation::Scenario scenario = UnlistedSchemes();
        scenario.power.enumerationError = 0;
        UseScenario(scenario);
    }
};

std::string Value(const std::string& scheme, const char* setting, int seconds)
{
    return "PowerWriteACValueIndex(root=null, scheme=" + scheme + ", subgroup=" + kSleep + ", setting=" + setting +
           ", value=" + std::to_string(seconds) + ")";
}

// --- the new scheme ---

TEST_F(PowerSavingSchemeTest, ACopyOfTheActiveSchemeIsMadeAndActivated)
{
    EXPECT_EQ(0, manager().GetPowerScheme());
    const std::string copy(call("PowerSetActiveScheme")["scheme"]);
    EXPECT_NE(kSaver, copy);
    EXPECT_THAT(timeline(),
                ElementsAre(kEnumerate, "PowerGetActiveScheme(root=null, scheme=non-null)",
                            std::string("PowerDuplicateScheme(root=null, source=") + kSaver + ", duplicate=non-null)",
                            StartsWith("PowerWriteFriendlyName(root=null, scheme=" + copy +
                                       ", subgroup=null, setting=null, buffer="),
                            Value(copy, kStandby, 1), Value(copy, kUnattended, 2),
                            "PowerSetActiveScheme(root=null, scheme=" + copy + ")", "LocalFree(memory=non-null)",
                            "LocalFree(memory=non-null)"));
    EXPECT_EQ(copy, computer().Snapshot().power.activeScheme);
    ExpectSilence();
}

TEST_F(PowerSavingSchemeTest, OnlyTheValuesForMainsPowerDifferFromTheCopied)
{
    ASSERT_EQ(0, manager().GetPowerScheme());
    ASSERT_EQ(3u, Schemes().size());
    const simulation::PowerScheme copy = Schemes().back();
    EXPECT_EQ(copy.guid, computer().Snapshot().power.activeScheme);
    EXPECT_THAT(copy.values,
                ::testing::UnorderedElementsAre(
                    simulation::PowerValue{.subgroup = kSleep, .setting = kStandby, .ac = 1, .dc = 900},
                    simulation::PowerValue{.subgroup = kSleep, .setting = kUnattended, .ac = 2, .dc = 60}));
    EXPECT_EQ(UnlistedSchemes().power.schemes[0], Schemes()[0]);
    EXPECT_EQ(UnlistedSchemes().power.schemes[1], Schemes()[1]) << "the copied scheme stays as it was";
}

// Deliberate: the name goes to the platform as it is in memory, one byte per character.
TEST_F(PowerSavingSchemeTest, TheNameIsHandedOverInEightBitCharacters)
{
    constexpr char name[260] = "Super energy-saving";
    int seen = 0;
    ChangedPlatform changed;
    changed.Before<&Power::PowerWriteFriendlyName>(
        [&](auto, auto, auto, auto, const UCHAR* buffer, DWORD size)
        {
            ASSERT_EQ(sizeof(name), size);
            EXPECT_EQ(0, std::memcmp(name, buffer, sizeof(name)));
            ++seen;
        });
    ASSERT_EQ(0, manager().GetPowerScheme());
    EXPECT_EQ(1, seen);
    EXPECT_EQ("260", call("PowerWriteFriendlyName")["bufferSize"]);
    const std::vector<std::uint8_t> stored = Schemes().back().name;
    ASSERT_LE(sizeof("Super energy-saving"), stored.size());
    EXPECT_EQ(0, std::memcmp(name, stored.data(), sizeof("Super energy-saving")));
}

// With a GUID in its place the platform would give the copy that one.
TEST_F(PowerSavingSchemeTest, ThePlatformChoosesTheGuidOfTheCopy)
{
    int seen = 0;
    ChangedPlatform changed;
    changed.Before<&Power::PowerDuplicateScheme>(
        [&seen](auto, auto, GUID** preset)
        {
            EXPECT_EQ(nullptr, *preset);
            ++seen;
        });
    ASSERT_EQ(0, manager().GetPowerScheme());
    EXPECT_EQ(1, seen);
}

TEST_F(PowerSavingSchemeTest, EveryCallMakesAnotherScheme)
{
    ASSERT_EQ(0, manager().GetPowerScheme());
    ASSERT_EQ(0, manager().GetPowerScheme());
    EXPECT_EQ(4u, Schemes().size());
    EXPECT_EQ(0, manager().SetPowerScheme());
    EXPECT_EQ(0, manager().ResetPowerScheme());
    EXPECT_EQ(4u, Schemes().size()) << "nothing deletes them";
}

// --- failures ---

TEST_F(PowerSavingSchemeTest, AFailureReleasesBothGuidsAndLeavesTheActiveScheme)
{
    for (const char* operation : {"PowerWriteFriendlyName", "PowerWriteACValueIndex", "PowerSetActiveScheme"})
    {
        SCOPED_TRACE(operation);
        Restart();
        FailOn(operation);
        EXPECT_GT(0, manager().GetPowerScheme());
        EXPECT_EQ(2u, callCount("LocalFree"));
        EXPECT_EQ("non-null", call("LocalFree", 1)["memory"]);
        EXPECT_EQ("non-null", call("LocalFree", 2)["memory"]);
        EXPECT_EQ(kSaver, computer().Snapshot().power.activeScheme);
        EXPECT_EQ(3u, Schemes().size()) << "the copy stays";
    }
}

TEST_F(PowerSavingSchemeTest, ACopyThatIsNotMadeIsReleasedAsNull)
{
    FailOn("PowerDuplicateScheme");
    EXPECT_EQ(-2, manager().GetPowerScheme());
    EXPECT_EQ(2u, callCount("LocalFree"));
    EXPECT_EQ("null", call("LocalFree", 1)["memory"]);
    EXPECT_EQ("non-null", call("LocalFree", 2)["memory"]);
}

// --- the listing before it ---

// Deliberate: it is the first scheme that is listed, again and again, until that fails.
TEST_F(PowerSavingSchemeTest, TheListingNeverAdvances)
{
    constexpr unsigned kListed = 1000;
    ListSchemes();
    FailOn("PowerEnumerate", 259, kListed + 1);
    EXPECT_EQ(0, manager().GetPowerScheme());
    EXPECT_EQ(kListed + 1, callCount("PowerEnumerate"));
    EXPECT_EQ(kListed, callCount("PowerReadFriendlyName"));
    std::vector<std::string> lines = callLines();
    for (unsigned i = 0; i < kListed; ++i)
    {
        ASSERT_EQ(kEnumerate, lines[2 * i]) << i;
        ASSERT_EQ(kReadName, lines[2 * i + 1]) << i;
    }
    EXPECT_EQ(kEnumerate, lines[2 * kListed]);
    EXPECT_THAT(lines[2 * kListed + 1], StartsWith("PowerGetActiveScheme("));
    ExpectSilence();
}

TEST_F(PowerSavingSchemeTest, ANameThatCannotBeReadDoesNotMatter)
{
    ListSchemes();
    FailOn("PowerEnumerate", 5, 4);
    FailOn("PowerReadFriendlyName", 2);
    EXPECT_EQ(0, manager().GetPowerScheme());
    EXPECT_EQ(4u, InjectedFailures());
    EXPECT_EQ(3u, callCount("PowerReadFriendlyName"));
    ExpectSilence();
}

TEST_F(PowerSavingSchemeTest, AnyErrorEndsTheListing)
{
    ListSchemes();
    for (const DWORD error : {259u, 234u, 5u, 1u})
    {
        ClearCalls();
        ClearFailures();
        FailOn("PowerEnumerate", error);
        EXPECT_EQ(0, manager().GetPowerScheme()) << error;
        EXPECT_EQ(1u, callCount("PowerEnumerate"));
        EXPECT_EQ(0u, callCount("PowerReadFriendlyName"));
    }
}

} // namespace
} // namespace calvix::test::power_saving_scheme_test
