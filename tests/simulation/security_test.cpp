// Tokens and privileges, beyond what every computer does: see tests/platform.
#include "system_fixture.h"

namespace calvix::simulation::security_test
{

class SecurityTest : public SystemTest
{
protected:
    SecurityTest() { scenario.privileges = {{"SeShutdownPrivilege", false}, {"SeChangeNotifyPrivilege", true}}; }

    BOOL Disable(HANDLE token) { return Security().AdjustTokenPrivileges(token, TRUE, nullptr, 0, nullptr, nullptr); }

    void Close(HANDLE token) { EXPECT_TRUE(Processes().CloseHandle(token)); }
};

TEST_F(SecurityTest, EachPrivilegeHasItsOwnSwitch)
{
    EXPECT_FALSE(Machine().IsPrivilegeEnabled("SeShutdownPrivilege"));
    EXPECT_EQ(Adjust("SeShutdownPrivilege", true), ERROR_SUCCESS);
    EXPECT_TRUE(Machine().IsPrivilegeEnabled("SeShutdownPrivilege"));
    EXPECT_EQ(Adjust("SeChangeNotifyPrivilege", false), ERROR_SUCCESS);
    EXPECT_TRUE(Machine().IsPrivilegeEnabled("SeShutdownPrivilege"));
    EXPECT_FALSE(Machine().IsPrivilegeEnabled("SeChangeNotifyPrivilege"));
}

TEST_F(SecurityTest, LookingUpTakesANameAndAPlaceOnThisMachine)
{
    LUID luid{};
    EXPECT_EQ(ErrorOf(Security().LookupPrivilegeValueA(nullptr, nullptr, &luid)), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(ErrorOf(Security().LookupPrivilegeValueA(nullptr, "SeShutdownPrivilege", nullptr)),
              ERROR_INVALID_PARAMETER);
    EXPECT_EQ(ErrorOf(Security().LookupPrivilegeValueA("elsewhere", "SeShutdownPrivilege", &luid)), 1722u);
    EXPECT_TRUE(Security().LookupPrivilegeValueA("", "SeShutdownPrivilege", &luid));
}

TEST_F(SecurityTest, APlatformWithoutTokensHasNoneOfTheOperations)
{
    scenario.tokens = false;
    HANDLE token = nullptr;
    LUID luid{};
    EXPECT_EQ(ErrorOf(Security().OpenProcessToken(Processes().GetCurrentProcess(), TOKEN_QUERY, &token)),
              ERROR_CALL_NOT_IMPLEMENTED);
    EXPECT_EQ(token, nullptr);
    EXPECT_EQ(ErrorOf(Security().LookupPrivilegeValueA(nullptr, "SeShutdownPrivilege", &luid)),
              ERROR_CALL_NOT_IMPLEMENTED);
    EXPECT_EQ(ErrorOf(Security().AdjustTokenPrivileges(nullptr, TRUE, nullptr, 0, nullptr, nullptr)),
              ERROR_CALL_NOT_IMPLEMENTED);
}

TEST_F(SecurityTest, AnswersNeedAPlace)
{
    EXPECT_EQ(ErrorOf(Security().OpenProcessToken(Processes().GetCurrentProcess(), TOKEN_QUERY, nullptr)),
              ERROR_INVALID_PARAMETER);
    const HANDLE token = OpenToken(TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY);
    TOKEN_PRIVILEGES previous{};
    EXPECT_EQ(ErrorOf(Security().AdjustTokenPrivileges(token, TRUE, nullptr, sizeof(previous), &previous, nullptr)),
              ERROR_INVALID_PARAMETER);
    Close(token);
}

TEST_F(SecurityTest, NoOtherProcesssTokenIsToBeHad)
{
    scenario.processes = {{8, "other.exe"}};
    const HANDLE process = Processes().OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, 8);
    HANDLE token = nullptr;
    EXPECT_EQ(ErrorOf(Security().OpenProcessToken(process, TOKEN_QUERY, &token)), ERROR_ACCESS_DENIED);
    Close(process);
}

TEST_F(SecurityTest, AClosedTokenIsADefect)
{
    const HANDLE token = OpenToken(TOKEN_ADJUST_PRIVILEGES);
    EXPECT_EQ(Machine().Audit().openHandles, 1u);
    Close(token);
    EXPECT_EQ(ErrorOf(Disable(token)), ERROR_INVALID_HANDLE);
    EXPECT_FALSE(Processes().CloseHandle(token));
    EXPECT_EQ(Defects(), (std::vector<std::string>{"AdjustTokenPrivileges: use of closed token handle",
                                                   "CloseHandle: use of closed process handle"}));
}

} // namespace calvix::simulation::security_test
