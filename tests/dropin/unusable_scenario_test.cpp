// Without a scenario there is no computer, and every call reports that. A process has one computer or none, so all of
// this is one test; it is the only one in this program that calls the library.

#include <calvix/platform_records.h>

#include <gtest/gtest.h>

#include <string>

namespace calvix::test::dropin_unusable_scenario_test
{
namespace
{

std::size_t debuggerMessages = 0;

LONG CALLBACK CountDebuggerMessages(EXCEPTION_POINTERS* exception)
{
    constexpr DWORD narrowText = 0x40010006;
    constexpr DWORD wideText = 0x4001000A;
    const DWORD code = exception->ExceptionRecord->ExceptionCode;
    debuggerMessages += code == wideText || code == narrowText;
    return EXCEPTION_CONTINUE_SEARCH;
}

// Zeroes for all arguments: without a computer they are not read.
template <typename... Parameters>
DWORD AskForNothing(DWORD(WINAPI* operation)(Parameters...))
{
    return operation(Parameters{}...);
}

#define EXPECT_INVALID_DATA(operation)                                                                                 \
    EXPECT_EQ(AskForNothing(&::operation), static_cast<DWORD>(ERROR_INVALID_DATA)) << #operation

TEST(DropinUnusableScenario, EveryOperationAnswersInvalidData)
{
    ::SetEnvironmentVariableW(L"CALVIX_SCENARIO", L"no such file.json");
    void* const handler = ::AddVectoredExceptionHandler(1, CountDebuggerMessages);
    HANDLE client = nullptr;
    DWORD version = 0;
    EXPECT_EQ(::WlanOpenHandle(2, nullptr, &version, &client), static_cast<DWORD>(ERROR_INVALID_DATA));
    EXPECT_EQ(client, nullptr);
    EXPECT_GE(debuggerMessages, 1u);
    const std::size_t messages = debuggerMessages;

    EXPECT_INVALID_DATA(WlanCloseHandle);
    EXPECT_INVALID_DATA(WlanConnect);
    EXPECT_INVALID_DATA(WlanDeleteProfile);
    EXPECT_INVALID_DATA(WlanDisconnect);
    EXPECT_INVALID_DATA(WlanEnumInterfaces);
    EXPECT_INVALID_DATA(WlanGetAvailableNetworkList);
    EXPECT_INVALID_DATA(WlanGetInterfaceCapability);
    EXPECT_INVALID_DATA(WlanGetNetworkBssList);
    EXPECT_INVALID_DATA(WlanGetProfile);
    EXPECT_INVALID_DATA(WlanGetProfileCustomUserData);
    EXPECT_INVALID_DATA(WlanGetProfileList);
    EXPECT_INVALID_DATA(WlanGetSecuritySettings);
    EXPECT_INVALID_DATA(WlanIhvControl);
    EXPECT_INVALID_DATA(WlanOpenHandle);
    EXPECT_INVALID_DATA(WlanQueryAutoConfigParameter);
    EXPECT_INVALID_DATA(WlanQueryInterface);
    EXPECT_INVALID_DATA(WlanReasonCodeToString);
    EXPECT_INVALID_DATA(WlanRegisterNotification);
    EXPECT_INVALID_DATA(WlanRenameProfile);
    EXPECT_INVALID_DATA(WlanSaveTemporaryProfile);
    EXPECT_INVALID_DATA(WlanScan);
    EXPECT_INVALID_DATA(WlanSetAutoConfigParameter);
    EXPECT_INVALID_DATA(WlanSetInterface);
    EXPECT_INVALID_DATA(WlanSetProfile);
    EXPECT_INVALID_DATA(WlanSetProfileCustomUserData);
    EXPECT_INVALID_DATA(WlanSetProfileList);
    EXPECT_INVALID_DATA(WlanSetProfilePosition);
    EXPECT_INVALID_DATA(WlanSetSecuritySettings);
    EXPECT_EQ(::WlanAllocateMemory(1), nullptr);
    int foreign = 0;
    ::WlanFreeMemory(&foreign);

    EXPECT_EQ(debuggerMessages, messages) << "once is enough";
    ::RemoveVectoredExceptionHandler(handler);
    ::SetEnvironmentVariableW(L"CALVIX_SCENARIO", nullptr);
}

} // namespace
} // namespace calvix::test::dropin_unusable_scenario_test
