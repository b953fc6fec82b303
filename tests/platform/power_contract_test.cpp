// Nothing here changes the computer's power schemes or puts it to sleep: what would, is refused for its arguments.

#include "provider.h"

#include <array>
#include <cstdint>
#include <vector>

namespace calvix::test::power_contract_test
{

namespace
{

// Statuses are 32 bits wide on the platform.
constexpr std::uint32_t kInvalidParameter = 0xC000000D;
constexpr std::uint32_t kBufferTooSmall = 0xC0000023;

constexpr GUID kNobodysScheme = {0xcafe0001, 0x0002, 0x0003, {4, 5, 6, 7, 8, 9, 10, 11}};

class PowerContract : public PlatformContract
{
protected:
    platform::Power& Power() { return System().power(); }

    std::uint32_t
    Query(POWER_INFORMATION_LEVEL level, PVOID output, std::size_t size, PVOID input = nullptr, ULONG inputSize = 0)
    {
        return static_cast<std::uint32_t>(
            Power().CallNtPowerInformation(level, input, inputSize, output, static_cast<ULONG>(size)));
    }

    /// Whether an operation answered what it answers where it does not exist: Wine 8 has written few of these.
    bool IsUnwritten(DWORD error) const
    {
        return IsWine() && (error == ERROR_CALL_NOT_IMPLEMENTED || error == ERROR_PROC_NOT_FOUND);
    }

    DWORD Enumerate(ULONG index, UCHAR* buffer, DWORD* size)
    {
        return Power().PowerEnumerate(nullptr, nullptr, nullptr, ACCESS_SCHEME, index, buffer, size);
    }

    DWORD EnumerateOne(ULONG index, GUID& scheme)
    {
        DWORD size = sizeof scheme;
        return Enumerate(index, reinterpret_cast<UCHAR*>(&scheme), &size);
    }
};

#define SKIP_IF_UNWRITTEN(error)                                                                                       \
    if (IsUnwritten(error))                                                                                            \
    GTEST_SKIP() << "Wine 8 has not written this operation, error " << (error)

INSTANTIATE_TEST_SUITE_P(Platform, PowerContract, testing::ValuesIn(Providers()), ProviderName);

TEST_P(PowerContract, CapabilitiesNeedTheirRecord)
{
    SYSTEM_POWER_CAPABILITIES capabilities{};
    EXPECT_EQ(Query(SystemPowerCapabilities, &capabilities, sizeof capabilities), 0u);
    EXPECT_EQ(Query(SystemPowerCapabilities, &capabilities, sizeof capabilities - 1), kBufferTooSmall);
    EXPECT_EQ(Query(SystemPowerCapabilities, &capabilities, 1), kBufferTooSmall);
    std::array<BYTE, sizeof capabilities + 64> larger{};
    larger.back() = 7;
    EXPECT_EQ(Query(SystemPowerCapabilities, larger.data(), larger.size()), 0u) << "more room is no fault";
    EXPECT_EQ(larger.back(), 7);
}

TEST_P(PowerContract, CapabilitiesTakeNoInput)
{
    SYSTEM_POWER_CAPABILITIES capabilities{};
    DWORD input = 0;
    const std::uint32_t status =
        Query(SystemPowerCapabilities, &capabilities, sizeof capabilities, &input, sizeof input);
    EXPECT_EQ(status, OrOnWine(kInvalidParameter, std::uint32_t{0})) << "Wine overlooks it";
}

TEST_P(PowerContract, SwitchesAreYesOrNo)
{
    SYSTEM_POWER_CAPABILITIES capabilities{};
    ASSERT_EQ(Query(SystemPowerCapabilities, &capabilities, sizeof capabilities), 0u);
    EXPECT_LE(AoAcOf(capabilities), 1);
    for (const BOOLEAN value : {capabilities.SystemS3, capabilities.SystemS4, capabilities.SystemS5,
                                capabilities.HiberFilePresent, capabilities.SystemBatteriesPresent})
        EXPECT_LE(value, 1);
    for (const BOOLEAN allowed :
         {Power().IsPwrSuspendAllowed(), Power().IsPwrHibernateAllowed(), Power().IsPwrShutdownAllowed()})
        EXPECT_LE(allowed, 1);
}

TEST_P(PowerContract, TimesOfSleepHaveEightBytes)
{
    for (const POWER_INFORMATION_LEVEL level : {LastSleepTime, LastWakeTime})
    {
        std::uint64_t time = ~std::uint64_t{0};
        const std::uint32_t status = Query(level, &time, sizeof time);
        if (IsWine())
        {
            constexpr std::uint32_t kNotImplemented = 0xC0000002;
            EXPECT_EQ(status, kNotImplemented);
            continue;
        }
        EXPECT_EQ(status, 0u);
        EXPECT_NE(time, ~std::uint64_t{0});
        EXPECT_EQ(Query(level, &time, sizeof time - 1), kBufferTooSmall);
        EXPECT_EQ(Query(level, &time, sizeof time, &time, sizeof time), kInvalidParameter);
    }
    if (IsWine())
        GTEST_SKIP() << "Wine 8 knows nothing of sleeping";
}

TEST_P(PowerContract, SchemesAreListedToTheirEnd)
{
    GUID scheme{};
    const DWORD error = EnumerateOne(0, scheme);
    SKIP_IF_UNWRITTEN(error);
    ASSERT_EQ(error, Error(ERROR_SUCCESS));
    constexpr ULONG kMany = 1000;
    ULONG index = 1;
    while (index < kMany && EnumerateOne(index, scheme) == ERROR_SUCCESS)
        ++index;
    EXPECT_EQ(EnumerateOne(index, scheme), Error(ERROR_NO_MORE_ITEMS));
    EXPECT_EQ(EnumerateOne(index + 1, scheme), Error(ERROR_NO_MORE_ITEMS));
}

TEST_P(PowerContract, ListingNeedsRoom)
{
    GUID scheme{};
    DWORD size = sizeof scheme - 1;
    const DWORD error = Enumerate(0, reinterpret_cast<UCHAR*>(&scheme), &size);
    SKIP_IF_UNWRITTEN(error);
    EXPECT_EQ(error, Error(ERROR_MORE_DATA));
    EXPECT_EQ(size, sizeof scheme);
    size = 0;
    EXPECT_EQ(Enumerate(0, nullptr, &size), Error(ERROR_SUCCESS)) << "without a buffer it is a question for the size";
    EXPECT_EQ(size, sizeof scheme);
    EXPECT_EQ(Enumerate(0, nullptr, nullptr), Error(ERROR_INVALID_PARAMETER));
}

TEST_P(PowerContract, TheActiveSchemeIsOneOfThoseThatAreListed)
{
    GUID* active = nullptr;
    const DWORD error = Power().PowerGetActiveScheme(nullptr, &active);
    SKIP_IF_UNWRITTEN(error);
    ASSERT_EQ(error, Error(ERROR_SUCCESS));
    ASSERT_NE(active, nullptr);
    bool found = false;
    GUID scheme{};
    for (ULONG index = 0; !found && EnumerateOne(index, scheme) == ERROR_SUCCESS; ++index)
        found = scheme == *active;
    EXPECT_TRUE(found);
    Power().LocalFree(active);
}

TEST_P(PowerContract, TheActiveSchemeNeedsAnOutput)
{
    GUID* active = nullptr;
    const DWORD error = Power().PowerGetActiveScheme(nullptr, &active);
    SKIP_IF_UNWRITTEN(error);
    Power().LocalFree(active);
    EXPECT_EQ(Power().PowerGetActiveScheme(nullptr, nullptr), Error(ERROR_INVALID_PARAMETER));
}

TEST_P(PowerContract, NamesNeedRoom)
{
    GUID scheme{};
    const DWORD error = EnumerateOne(0, scheme);
    SKIP_IF_UNWRITTEN(error);
    DWORD needed = 0;
    ASSERT_EQ(Power().PowerReadFriendlyName(nullptr, &scheme, nullptr, nullptr, nullptr, &needed),
              Error(ERROR_SUCCESS));
    ASSERT_GE(needed, 2u);
    std::vector<UCHAR> name(needed, 0xFF);
    DWORD size = needed - 1;
    EXPECT_EQ(Power().PowerReadFriendlyName(nullptr, &scheme, nullptr, nullptr, name.data(), &size),
              Error(ERROR_MORE_DATA));
    EXPECT_EQ(size, needed);
    EXPECT_EQ(Power().PowerReadFriendlyName(nullptr, &scheme, nullptr, nullptr, name.data(), &size),
              Error(ERROR_SUCCESS));
    EXPECT_EQ(name[needed - 1], 0) << "terminated";
    EXPECT_EQ(name[needed - 2], 0);
}

TEST_P(PowerContract, UnknownSchemesAreMissed)
{
    DWORD size = 0;
    const DWORD read = Power().PowerReadFriendlyName(nullptr, &kNobodysScheme, nullptr, nullptr, nullptr, &size);
    SKIP_IF_UNWRITTEN(read);
    EXPECT_EQ(read, Error(ERROR_FILE_NOT_FOUND));
    const DWORD activated = Power().PowerSetActiveScheme(nullptr, &kNobodysScheme);
    if (!IsUnwritten(activated))
        EXPECT_EQ(activated, Error(ERROR_FILE_NOT_FOUND));
    GUID* duplicate = nullptr;
    const DWORD duplicated = Power().PowerDuplicateScheme(nullptr, &kNobodysScheme, &duplicate);
    if (!IsUnwritten(duplicated))
        EXPECT_EQ(duplicated, Error(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(duplicate, nullptr);
}

TEST_P(PowerContract, SettingsBelongToASchemeThatIsThere)
{
    EXPECT_EQ(Power().PowerWriteACValueIndex(nullptr, &kNobodysScheme, &power_guid::sleep_subgroup,
                                             &power_guid::standby_timeout, 0),
              OrOnWine(Error(ERROR_FILE_NOT_FOUND), Error(ERROR_PROC_NOT_FOUND)))
        << "Wine 8 lacks the operation";
}

TEST_P(PowerContract, LegacySchemesAreReadByTheirNumber)
{
    UINT active = 0;
    LeaveUnlikelyError();
    if (Power().GetActivePwrScheme(&active) == 0 && IsWine())
    {
        EXPECT_EQ(LastError(), Error(ERROR_FILE_NOT_FOUND));
        GTEST_SKIP() << "Wine 8 has no legacy schemes, and says so as a computer that has none active";
    }
    POWER_POLICY policy{};
    EXPECT_NE(Power().ReadPwrScheme(active, &policy), 0) << LastError();
    EXPECT_NE(ErrorOf([&] { return Power().ReadPwrScheme(0x7FFF0000, &policy); }), Error(ERROR_SUCCESS));
}

TEST_P(PowerContract, ReleasingNothingDoesNothing)
{
    LeaveUnlikelyError();
    Power().LocalFree(nullptr);
    EXPECT_EQ(LastError(), kUnlikelyError);
}

} // namespace

} // namespace calvix::test::power_contract_test
