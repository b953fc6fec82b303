#include "support/changed_platform.h"
#include "support/library_test.h"

namespace calvix::test::wow64_test
{
namespace
{

using ::testing::ElementsAre;

class Wow64Test : public LibraryTest
{
public:
    void UseAnswer(std::optional<bool> wow64)
    {
        simulation::Scenario fresh = RichScenario();
        fresh.wow64 = wow64;
        UseScenario(fresh);
    }
};

TEST_F(Wow64Test, TheAnswerIsThePlatforms)
{
    for (const bool wow64 : {true, false})
    {
        UseAnswer(wow64);
        EXPECT_EQ(wow64, manager().IsWow64() != 0);
        EXPECT_THAT(timeline(),
                    ElementsAre("GetModuleHandleA(moduleName=\"kernel32\")",
                                "GetProcAddress(module=1, name=\"IsWow64Process\")", "GetCurrentProcess()"));
        ExpectSilence();
    }
}

TEST_F(Wow64Test, APlatformWithoutTheFunctionHasNoEmulation)
{
    UseAnswer(std::nullopt);
    EXPECT_EQ(0, manager().IsWow64());
    EXPECT_THAT(calls(), ElementsAre("GetModuleHandleA", "GetProcAddress"));
    ExpectSilence();
}

TEST_F(Wow64Test, AModuleThatIsNotFoundIsPassedOn)
{
    UseAnswer(true);
    FailOn("GetModuleHandleA", 126);
    EXPECT_EQ(0, manager().IsWow64());
    EXPECT_EQ(1u, InjectedFailures());
    EXPECT_EQ("null", call("GetProcAddress")["module"]);
    ExpectSilence();
}

BOOL g_preset = -1;
HANDLE g_asked = nullptr;

BOOL WINAPI FailsWithoutAnAnswer(HANDLE process, BOOL* answer)
{
    g_asked = process;
    g_preset = *answer;
    return FALSE;
}

BOOL WINAPI FailsWithAnAnswer(HANDLE, BOOL* answer)
{
    *answer = 7;
    return FALSE;
}

/// Has the platform find this function.
void AnswerWith(ChangedPlatform& changed, BOOL(WINAPI* function)(HANDLE, BOOL*))
{
    changed.Instead<&Processes::GetProcAddress>(
        [function](auto...) { return reinterpret_cast<FARPROC>(reinterpret_cast<void (*)()>(function)); });
}

TEST_F(Wow64Test, TheFlagBeginsAsZero)
{
    g_preset = -1;
    ChangedPlatform changed;
    AnswerWith(changed, FailsWithoutAnAnswer);
    EXPECT_EQ(0, manager().IsWow64());
    EXPECT_EQ(0, g_preset);
    EXPECT_EQ(computer().processes().GetCurrentProcess(), g_asked);
}

// Deliberate: whether the call succeeded is not looked at.
TEST_F(Wow64Test, TheFlagComesOutAsItIs)
{
    ChangedPlatform changed;
    AnswerWith(changed, FailsWithAnAnswer);
    EXPECT_EQ(7, manager().IsWow64());
}

} // namespace
} // namespace calvix::test::wow64_test
