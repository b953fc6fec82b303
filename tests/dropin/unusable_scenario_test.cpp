// Without a scenario there is no computer, and every call reports that. A process has one computer or none, so all of
// this is one test; it is the only one in this program that calls the library.

#include "dropin/function_names.h"

#include <calvix/platform_records.h>

#include <gtest/gtest.h>

#include <string_view>

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

/// Any function of the library, with more arguments than each has: on 64 bits it is the caller who takes them away.
using AnyFunction = DWORD(WINAPI*)(PVOID, PVOID, PVOID, PVOID, PVOID, PVOID, PVOID, PVOID);

/// Zeroes for all arguments: without a computer they are not read.
DWORD CallWithNothing(const char* name)
{
    const FARPROC address = ::GetProcAddress(::GetModuleHandleW(L"wlanapi.dll"), name);
    const auto function = reinterpret_cast<AnyFunction>(reinterpret_cast<void (*)()>(address));
    return function(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
}

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

    for (const std::string_view name : answeredNames)
        if (name != "WlanAllocateMemory" && name != "WlanFreeMemory")
            EXPECT_EQ(CallWithNothing(name.data()), static_cast<DWORD>(ERROR_INVALID_DATA)) << name;
    EXPECT_EQ(::WlanAllocateMemory(1), nullptr);
    int foreign = 0;
    ::WlanFreeMemory(&foreign);

    EXPECT_EQ(debuggerMessages, messages) << "once is enough";
    ::RemoveVectoredExceptionHandler(handler);
    ::SetEnvironmentVariableW(L"CALVIX_SCENARIO", nullptr);
}

} // namespace
} // namespace calvix::test::dropin_unusable_scenario_test
