// Tokens and privileges.
#include "system_fixture.h"

#include <cstddef>

namespace calvix::simulation::security_test
{

namespace
{

constexpr std::size_t kHeaderSize = offsetof(TOKEN_PRIVILEGES, Privileges);

class SecurityTest : public SystemTest
{
protected:
    SecurityTest() { scenario.privileges = {{"SeShutdownPrivilege", false}, {"SeChangeNotifyPrivilege", true}}; }

    TOKEN_PRIVILEGES Wanted(const char* privilege, DWORD attributes = SE_PRIVILEGE_ENABLED)
    {
        TOKEN_PRIVILEGES wanted{};
        wanted.PrivilegeCount = 1;
        wanted.Privileges[0] = {LuidOf(privilege), attributes};
        return wanted;
    }

    void Close(HANDLE token) { EXPECT_TRUE(Processes().CloseHandle(token)); }
};

TEST_F(SecurityTest, AHeldPrivilegeIsEnabledAndDisabled)
{
    EXPECT_FALSE(Machine().IsPrivilegeEnabled("SeShutdownPrivilege"));
    EXPECT_EQ(Adjust("SeShutdownPrivilege", true), ERROR_SUCCESS);
    EXPECT_TRUE(Machine().IsPrivilegeEnabled("SeShutdownPrivilege"));
    EXPECT_EQ(Adjust("SeShutdownPrivilege", false), ERROR_SUCCESS);
    EXPECT_FALSE(Machine().IsPrivilegeEnabled("SeShutdownPrivilege"));
    EXPECT_TRUE(Machine().IsPrivilegeEnabled("SeChangeNotifyPrivilege"));
}

TEST_F(SecurityTest, AdjustingWhatIsNotHeldSucceedsAndSaysSo)
{
    EXPECT_EQ(Adjust("SeDebugPrivilege", true), ERROR_NOT_ALL_ASSIGNED);
    EXPECT_FALSE(Machine().IsPrivilegeEnabled("SeDebugPrivilege"));
    EXPECT_EQ(Adjust("SeShutdownPrivilege", true), ERROR_SUCCESS);
}

TEST_F(SecurityTest, NamesAreKnownInAnyCase)
{
    const LUID shutdown = LuidOf("SeShutdownPrivilege");
    EXPECT_EQ(shutdown.LowPart, 19u);
    EXPECT_EQ(shutdown.HighPart, 0);
    EXPECT_EQ(LuidOf("SESHUTDOWNPRIVILEGE").LowPart, 19u);
    EXPECT_EQ(LuidOf("SeDebugPrivilege").LowPart, 20u);
}

TEST_F(SecurityTest, UnknownNamesAreRefused)
{
    LUID luid{};
    for (const char* name : {"SeFlyPrivilege", "", "SeShutdownPrivilege "})
    {
        EXPECT_FALSE(Security().LookupPrivilegeValueA(nullptr, name, &luid)) << name;
        EXPECT_EQ(LastError(), ERROR_NO_SUCH_PRIVILEGE) << name;
    }
    EXPECT_FALSE(Security().LookupPrivilegeValueA(nullptr, nullptr, &luid));
    EXPECT_EQ(LastError(), ERROR_INVALID_PARAMETER);
    EXPECT_FALSE(Security().LookupPrivilegeValueA(nullptr, "SeShutdownPrivilege", nullptr));
    EXPECT_EQ(LastError(), ERROR_INVALID_PARAMETER);
    EXPECT_FALSE(Security().LookupPrivilegeValueA("elsewhere", "SeShutdownPrivilege", &luid));
    EXPECT_EQ(LastError(), 1722u);
    EXPECT_TRUE(Security().LookupPrivilegeValueA("", "SeShutdownPrivilege", &luid));
}

TEST_F(SecurityTest, APlatformWithoutTokensHasNoneOfTheOperations)
{
    scenario.tokens = false;
    HANDLE token = nullptr;
    LUID luid{};
    EXPECT_FALSE(Security().OpenProcessToken(Processes().GetCurrentProcess(), TOKEN_QUERY, &token));
    EXPECT_EQ(LastError(), ERROR_CALL_NOT_IMPLEMENTED);
    EXPECT_EQ(token, nullptr);
    EXPECT_FALSE(Security().LookupPrivilegeValueA(nullptr, "SeShutdownPrivilege", &luid));
    EXPECT_EQ(LastError(), ERROR_CALL_NOT_IMPLEMENTED);
    EXPECT_FALSE(Security().AdjustTokenPrivileges(nullptr, TRUE, nullptr, 0, nullptr, nullptr));
    EXPECT_EQ(LastError(), ERROR_CALL_NOT_IMPLEMENTED);
}

TEST_F(SecurityTest, OpeningTakesAProcessAndAPlaceForTheToken)
{
    HANDLE token = nullptr;
    EXPECT_FALSE(Security().OpenProcessToken(nullptr, TOKEN_QUERY, &token));
    EXPECT_EQ(LastError(), ERROR_INVALID_HANDLE);
    EXPECT_FALSE(Security().OpenProcessToken(Processes().GetCurrentProcess(), TOKEN_QUERY, nullptr));
    EXPECT_EQ(LastError(), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(token, nullptr);
}

TEST_F(SecurityTest, NoOtherProcesssTokenIsToBeHad)
{
    scenario.processes = {{8, "other.exe"}};
    const HANDLE process = Processes().OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, 8);
    HANDLE token = nullptr;
    EXPECT_FALSE(Security().OpenProcessToken(process, TOKEN_QUERY, &token));
    EXPECT_EQ(LastError(), ERROR_ACCESS_DENIED);
    Close(process);
}

TEST_F(SecurityTest, AdjustingTakesTheRightToIt)
{
    TOKEN_PRIVILEGES wanted = Wanted("SeShutdownPrivilege");
    const HANDLE token = OpenToken(TOKEN_QUERY);
    EXPECT_FALSE(Security().AdjustTokenPrivileges(token, FALSE, &wanted, 0, nullptr, nullptr));
    EXPECT_EQ(LastError(), ERROR_ACCESS_DENIED);
    EXPECT_FALSE(Machine().IsPrivilegeEnabled("SeShutdownPrivilege"));
    Close(token);
}

TEST_F(SecurityTest, ThePreviousStateTakesTheRightToQuery)
{
    TOKEN_PRIVILEGES wanted = Wanted("SeShutdownPrivilege");
    TOKEN_PRIVILEGES previous{};
    DWORD length = 0;
    const HANDLE token = OpenToken(TOKEN_ADJUST_PRIVILEGES);
    EXPECT_FALSE(Security().AdjustTokenPrivileges(token, FALSE, &wanted, sizeof(previous), &previous, &length));
    EXPECT_EQ(LastError(), ERROR_ACCESS_DENIED);
    EXPECT_TRUE(Security().AdjustTokenPrivileges(token, FALSE, &wanted, 0, nullptr, nullptr));
    Close(token);
}

TEST_F(SecurityTest, ThePreviousStateIsThatOfWhatChanges)
{
    const HANDLE token = OpenToken(TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY);
    TOKEN_PRIVILEGES wanted = Wanted("SeShutdownPrivilege");
    TOKEN_PRIVILEGES previous{};
    DWORD length = 0;
    EXPECT_TRUE(Security().AdjustTokenPrivileges(token, FALSE, &wanted, sizeof(previous), &previous, &length));
    EXPECT_EQ(length, kHeaderSize + sizeof(LUID_AND_ATTRIBUTES));
    ASSERT_EQ(previous.PrivilegeCount, 1u);
    EXPECT_EQ(previous.Privileges[0].Luid.LowPart, 19u);
    EXPECT_EQ(previous.Privileges[0].Attributes, 0u);

    // The second time nothing changes.
    EXPECT_TRUE(Security().AdjustTokenPrivileges(token, FALSE, &wanted, sizeof(previous), &previous, &length));
    EXPECT_EQ(length, kHeaderSize);
    EXPECT_EQ(previous.PrivilegeCount, 0u);
    Close(token);
}

TEST_F(SecurityTest, ThePreviousStatePutBackRestoresIt)
{
    const HANDLE token = OpenToken(TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY);
    TOKEN_PRIVILEGES previous{};
    DWORD length = 0;
    EXPECT_TRUE(Security().AdjustTokenPrivileges(token, TRUE, nullptr, sizeof(previous), &previous, &length));
    EXPECT_FALSE(Machine().IsPrivilegeEnabled("SeChangeNotifyPrivilege"));
    EXPECT_EQ(previous.Privileges[0].Attributes, SE_PRIVILEGE_ENABLED);
    EXPECT_TRUE(Security().AdjustTokenPrivileges(token, FALSE, &previous, 0, nullptr, nullptr));
    EXPECT_TRUE(Machine().IsPrivilegeEnabled("SeChangeNotifyPrivilege"));
    Close(token);
}

TEST_F(SecurityTest, WithoutRoomForThePreviousStateNothingChanges)
{
    const HANDLE token = OpenToken(TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY);
    TOKEN_PRIVILEGES wanted = Wanted("SeShutdownPrivilege");
    TOKEN_PRIVILEGES previous{};
    DWORD length = 0;
    const DWORD needed = static_cast<DWORD>(kHeaderSize + sizeof(LUID_AND_ATTRIBUTES));
    EXPECT_FALSE(Security().AdjustTokenPrivileges(token, FALSE, &wanted, needed - 1, &previous, &length));
    EXPECT_EQ(LastError(), ERROR_INSUFFICIENT_BUFFER);
    EXPECT_EQ(length, needed);
    EXPECT_FALSE(Machine().IsPrivilegeEnabled("SeShutdownPrivilege"));
    EXPECT_FALSE(Security().AdjustTokenPrivileges(token, FALSE, &wanted, needed, &previous, nullptr));
    EXPECT_EQ(LastError(), ERROR_INVALID_PARAMETER);
    EXPECT_FALSE(Security().AdjustTokenPrivileges(token, FALSE, nullptr, 0, nullptr, nullptr));
    EXPECT_EQ(LastError(), ERROR_INVALID_PARAMETER);
    Close(token);
}

TEST_F(SecurityTest, AClosedTokenIsADefect)
{
    const HANDLE token = OpenToken(TOKEN_ADJUST_PRIVILEGES);
    EXPECT_EQ(Machine().Audit().openHandles, 1u);
    Close(token);
    TOKEN_PRIVILEGES wanted = Wanted("SeShutdownPrivilege");
    EXPECT_FALSE(Security().AdjustTokenPrivileges(token, FALSE, &wanted, 0, nullptr, nullptr));
    EXPECT_EQ(LastError(), ERROR_INVALID_HANDLE);
    EXPECT_FALSE(Processes().CloseHandle(token));
    EXPECT_EQ(Defects(), (std::vector<std::string>{"AdjustTokenPrivileges: use of closed token handle",
                                                   "CloseHandle: use of closed process handle"}));
}

} // namespace

} // namespace calvix::simulation::security_test
