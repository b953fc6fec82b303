#include "provider.h"

#include <array>
#include <cstddef>

namespace calvix::test::security_contract_test
{

namespace
{

constexpr DWORD kAdjustAndQuery = TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY;

constexpr DWORD SizeOf(DWORD privileges)
{
    return static_cast<DWORD>(offsetof(TOKEN_PRIVILEGES, Privileges) + privileges * sizeof(LUID_AND_ATTRIBUTES));
}

class SecurityContract : public PlatformContract
{
protected:
    platform::Security& Security() { return System().security(); }

    HANDLE OpenOwn(DWORD access = kAdjustAndQuery)
    {
        HANDLE token = nullptr;
        EXPECT_TRUE(Security().OpenProcessToken(System().processes().GetCurrentProcess(), access, &token))
            << LastError();
        return token;
    }

    void Close(HANDLE handle) { EXPECT_TRUE(System().processes().CloseHandle(handle)) << LastError(); }

    LUID Lookup(const char* name)
    {
        LUID luid{};
        EXPECT_TRUE(Security().LookupPrivilegeValueA(nullptr, name, &luid)) << name << ' ' << LastError();
        return luid;
    }

    TOKEN_PRIVILEGES One(const char* name, DWORD attributes)
    {
        TOKEN_PRIVILEGES state{};
        state.PrivilegeCount = 1;
        state.Privileges[0] = {Lookup(name), attributes};
        return state;
    }

    DWORD ErrorOfAdjusting(HANDLE token,
                           TOKEN_PRIVILEGES* wanted,
                           DWORD previousSize = 0,
                           TOKEN_PRIVILEGES* previous = nullptr,
                           DWORD* length = nullptr)
    {
        return ErrorOf(
            [&] { return Security().AdjustTokenPrivileges(token, FALSE, wanted, previousSize, previous, length); });
    }

    /// How many privileges an adjustment that changes nothing reports. Wine reports all that were named.
    DWORD ReportedUnchanged() const { return OrOnWine(Error(0), Error(1)); }

    /// Switches one privilege and gives back its state before.
    TOKEN_PRIVILEGES Switch(HANDLE token, TOKEN_PRIVILEGES wanted)
    {
        TOKEN_PRIVILEGES previous{};
        DWORD length = 0;
        LeaveUnlikelyError();
        EXPECT_TRUE(Security().AdjustTokenPrivileges(token, FALSE, &wanted, sizeof previous, &previous, &length));
        EXPECT_EQ(LastError(), Error(ERROR_SUCCESS));
        EXPECT_EQ(length, SizeOf(previous.PrivilegeCount));
        return previous;
    }
};

INSTANTIATE_TEST_SUITE_P(Platform, SecurityContract, testing::ValuesIn(Providers()), ProviderName);

TEST_P(SecurityContract, PrivilegesHaveTheNumbersOfEveryWindows)
{
    const struct
    {
        const char* name;
        DWORD number;
    } cases[] = {{"SeIncreaseQuotaPrivilege", 5}, {"SeTcbPrivilege", 7},
                 {"SeBackupPrivilege", 17},       {"SeShutdownPrivilege", 19},
                 {"SeDebugPrivilege", 20},        {"SeSystemEnvironmentPrivilege", 22},
                 {"SeChangeNotifyPrivilege", 23}, {"SeRemoteShutdownPrivilege", 24},
                 {"seshutdownprivilege", 19}};
    for (const auto& each : cases)
    {
        const LUID luid = Lookup(each.name);
        EXPECT_EQ(luid.LowPart, each.number) << each.name;
        EXPECT_EQ(luid.HighPart, 0) << each.name;
    }
}

TEST_P(SecurityContract, UnknownPrivilegesAreMissed)
{
    for (const char* name : {"CalvixNoSuchPrivilege", "SeShutdown", "SeShutdownPrivilege ", ""})
    {
        LUID luid{};
        EXPECT_EQ(ErrorOf([&] { return Security().LookupPrivilegeValueA(nullptr, name, &luid); }),
                  Error(ERROR_NO_SUCH_PRIVILEGE))
            << name;
    }
}

TEST_P(SecurityContract, ATokenBelongsToAProcess)
{
    HANDLE token = nullptr;
    const auto nobodys = reinterpret_cast<HANDLE>(UINT_PTR{0x00BADBAC});
    for (const HANDLE process : {HANDLE{nullptr}, nobodys})
        EXPECT_EQ(ErrorOf([&] { return Security().OpenProcessToken(process, kAdjustAndQuery, &token); }),
                  Error(ERROR_INVALID_HANDLE));
    EXPECT_EQ(token, nullptr);
}

TEST_P(SecurityContract, EveryOpeningGivesAHandle)
{
    const HANDLE first = OpenOwn();
    const HANDLE second = OpenOwn();
    EXPECT_NE(first, nullptr);
    EXPECT_NE(first, second);
    Close(first);
    Close(second);
}

TEST_P(SecurityContract, SwitchingAPrivilegeReturnsItsPreviousState)
{
    const HANDLE token = OpenOwn();
    Switch(token, One("SeShutdownPrivilege", 0));

    const TOKEN_PRIVILEGES before = Switch(token, One("SeShutdownPrivilege", SE_PRIVILEGE_ENABLED));
    EXPECT_EQ(before.PrivilegeCount, 1u);
    EXPECT_EQ(before.Privileges[0].Luid.LowPart, 19u);
    EXPECT_EQ(before.Privileges[0].Attributes & SE_PRIVILEGE_ENABLED, 0u);

    const TOKEN_PRIVILEGES again = Switch(token, One("SeShutdownPrivilege", SE_PRIVILEGE_ENABLED));
    EXPECT_EQ(again.PrivilegeCount, ReportedUnchanged()) << "only changes are reported";

    const TOKEN_PRIVILEGES after = Switch(token, before);
    EXPECT_EQ(after.PrivilegeCount, 1u);
    EXPECT_NE(after.Privileges[0].Attributes & SE_PRIVILEGE_ENABLED, 0u);
    Close(token);
}

TEST_P(SecurityContract, TheSwitchIsTheTokensAndNotTheHandles)
{
    const HANDLE token = OpenOwn();
    const HANDLE other = OpenOwn();
    Switch(token, One("SeShutdownPrivilege", 0));
    EXPECT_EQ(Switch(token, One("SeShutdownPrivilege", SE_PRIVILEGE_ENABLED)).PrivilegeCount, 1u);
    EXPECT_EQ(Switch(other, One("SeShutdownPrivilege", SE_PRIVILEGE_ENABLED)).PrivilegeCount, ReportedUnchanged());
    const TOKEN_PRIVILEGES before = Switch(other, One("SeShutdownPrivilege", 0));
    EXPECT_EQ(before.PrivilegeCount, 1u);
    EXPECT_NE(before.Privileges[0].Attributes & SE_PRIVILEGE_ENABLED, 0u);
    Close(token);
    Close(other);
}

TEST_P(SecurityContract, AMissingPrivilegeIsReportedWithASuccess)
{
    const HANDLE token = OpenOwn();
    TOKEN_PRIVILEGES wanted = One("SeCreateTokenPrivilege", SE_PRIVILEGE_ENABLED);
    LeaveUnlikelyError();
    EXPECT_TRUE(Security().AdjustTokenPrivileges(token, FALSE, &wanted, 0, nullptr, nullptr));
    EXPECT_EQ(LastError(), Error(ERROR_NOT_ALL_ASSIGNED));
    Close(token);
}

TEST_P(SecurityContract, TooLittleRoomForTheStateBeforeChangesNothing)
{
    if (IsWine())
        GTEST_SKIP() << "Wine adjusts and tells of as many as there is room for";
    const HANDLE token = OpenOwn();
    Switch(token, One("SeShutdownPrivilege", 0));
    TOKEN_PRIVILEGES wanted = One("SeShutdownPrivilege", SE_PRIVILEGE_ENABLED);
    TOKEN_PRIVILEGES previous{};
    DWORD length = 0;
    const DWORD needed = SizeOf(1);
    EXPECT_EQ(ErrorOfAdjusting(token, &wanted, needed - 1, &previous, &length), Error(ERROR_INSUFFICIENT_BUFFER));
    EXPECT_EQ(length, needed);
    EXPECT_EQ(Switch(token, One("SeShutdownPrivilege", 0)).PrivilegeCount, 0u);
    Close(token);
}

TEST_P(SecurityContract, ATokenIsGoodForWhatItWasOpenedForOnly)
{
    TOKEN_PRIVILEGES wanted = One("SeChangeNotifyPrivilege", SE_PRIVILEGE_ENABLED);
    const HANDLE reading = OpenOwn(TOKEN_QUERY);
    EXPECT_EQ(ErrorOfAdjusting(reading, &wanted), Error(ERROR_ACCESS_DENIED));
    Close(reading);

    const HANDLE adjusting = OpenOwn(TOKEN_ADJUST_PRIVILEGES);
    EXPECT_TRUE(Security().AdjustTokenPrivileges(adjusting, FALSE, &wanted, 0, nullptr, nullptr));
    TOKEN_PRIVILEGES previous{};
    DWORD length = 0;
    EXPECT_EQ(ErrorOfAdjusting(adjusting, &wanted, sizeof previous, &previous, &length), Error(ERROR_ACCESS_DENIED))
        << "the state before is a question";
    Close(adjusting);
}

TEST_P(SecurityContract, AdjustingTakesAToken)
{
    TOKEN_PRIVILEGES wanted = One("SeChangeNotifyPrivilege", SE_PRIVILEGE_ENABLED);
    const auto nobodys = reinterpret_cast<HANDLE>(UINT_PTR{0x00BADBAC});
    for (const HANDLE token : {HANDLE{nullptr}, nobodys})
        EXPECT_EQ(ErrorOfAdjusting(token, &wanted), Error(ERROR_INVALID_HANDLE));
}

TEST_P(SecurityContract, AdjustingNeedsToKnowToWhat)
{
    const HANDLE token = OpenOwn();
    constexpr DWORD kNoAccess = 998; // Wine follows the null pointer, and catches itself.
    EXPECT_EQ(ErrorOfAdjusting(token, nullptr), OrOnWine(Error(ERROR_INVALID_PARAMETER), kNoAccess));
    Close(token);
}

TEST_P(SecurityContract, AllCanBeDisabledAtOnceAndGivenBack)
{
    if (IsWine())
        GTEST_SKIP() << "Wine disables all without telling what was enabled";
    const HANDLE token = OpenOwn();
    Switch(token, One("SeShutdownPrivilege", SE_PRIVILEGE_ENABLED));
    // Room for as many privileges as there are.
    constexpr std::size_t kPrivileges = 64;
    std::array<LUID_AND_ATTRIBUTES, kPrivileges + 1> room{};
    auto* const previous = reinterpret_cast<TOKEN_PRIVILEGES*>(room.data());
    DWORD length = 0;
    LeaveUnlikelyError();
    EXPECT_TRUE(Security().AdjustTokenPrivileges(token, TRUE, nullptr, sizeof room, previous, &length));
    EXPECT_EQ(LastError(), Error(ERROR_SUCCESS));
    EXPECT_GE(previous->PrivilegeCount, 2u) << "this one, and passing through folders, which everybody may";
    EXPECT_EQ(length, SizeOf(previous->PrivilegeCount));
    const TOKEN_PRIVILEGES after = Switch(token, One("SeShutdownPrivilege", SE_PRIVILEGE_ENABLED));
    EXPECT_EQ(after.PrivilegeCount, 1u) << "it was disabled";
    EXPECT_TRUE(Security().AdjustTokenPrivileges(token, FALSE, previous, 0, nullptr, nullptr));
    EXPECT_EQ(LastError(), Error(ERROR_SUCCESS));
    Switch(token, One("SeShutdownPrivilege", 0));
    Close(token);
}

} // namespace

} // namespace calvix::test::security_contract_test
