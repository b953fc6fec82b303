#include "windows/wine_stubs.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

namespace calvix::test::wine_stubs_test
{
namespace
{

using calvix::windows::IsWineStub;

bool RunsOnWine()
{
    return ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

/// A stub as Wine's tools write it, which is never called.
struct StubCode
{
    unsigned char reserveStack[4] = {0x48, 0x83, 0xEC, 0x28};
    unsigned char loadLibraryName[7] = {0x48, 0x8D, 0x0D};
    unsigned char loadOwnName[3] = {0x48, 0x8D, 0x15};
    unsigned char ownNameDistance[4] = {};
    unsigned char call[6] = {0xE8, 0, 0, 0, 0, 0x90};
    char ownName[16] = "WlanExample";

    StubCode()
    {
        const auto distance = static_cast<std::int32_t>(ownName - reinterpret_cast<const char*>(call));
        std::memcpy(ownNameDistance, &distance, sizeof(distance));
    }

    FARPROC Address() const { return reinterpret_cast<FARPROC>(reinterpret_cast<ULONG_PTR>(this)); }
};

TEST(WineStub, IsRecognisedByLoadingItsOwnName)
{
    const StubCode stub;
    EXPECT_EQ(IsWineStub(stub.Address(), "WlanExample"), RunsOnWine());
    EXPECT_FALSE(IsWineStub(stub.Address(), "WlanOther"));
}

TEST(WineStub, OtherCodeIsNone)
{
    StubCode other;
    other.reserveStack[3] = 0x38;
    EXPECT_FALSE(IsWineStub(other.Address(), "WlanExample"));
    other = StubCode();
    other.loadOwnName[2] = 0x05;
    EXPECT_FALSE(IsWineStub(other.Address(), "WlanExample"));
    other = StubCode();
    other.call[0] = 0xE9;
    EXPECT_FALSE(IsWineStub(other.Address(), "WlanExample"));
}

TEST(WineStub, WhatIsWrittenIsNone)
{
    const HMODULE kernel = ::GetModuleHandleW(L"kernel32.dll");
    for (const char* const name : {"GetTickCount", "MulDiv", "CreateProcessA", "WaitForSingleObject"})
        EXPECT_FALSE(IsWineStub(::GetProcAddress(kernel, name), name)) << name;
}

} // namespace
} // namespace calvix::test::wine_stubs_test
