// The power schemes that have a GUID.
#include "forms/guid_text.h"
#include "system_fixture.h"

#include <cstring>

namespace calvix::simulation::power_schemes_test
{

namespace
{

const GUID kUnknown{1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};
const char kBalanced[] = "{381B4222-F694-41F0-9685-FF5BB260DF2E}";
const char kPowerSaver[] = "{A1841308-3541-4FAB-BC81-F71556F20B4A}";

GUID GuidOf(const char* text)
{
    return forms::GuidFromText(text).value();
}

class PowerSchemes : public SystemTest
{
protected:
    DWORD Enumerate(ULONG index, GUID& guid, DWORD size = sizeof(GUID))
    {
        return Power().PowerEnumerate(nullptr, nullptr, nullptr, ACCESS_SCHEME, index, reinterpret_cast<UCHAR*>(&guid),
                                      &size);
    }

    std::string NameOf(const GUID& scheme)
    {
        std::vector<std::uint8_t> name(1024);
        DWORD size = 1024;
        EXPECT_EQ(Power().PowerReadFriendlyName(nullptr, &scheme, nullptr, nullptr, name.data(), &size), ERROR_SUCCESS);
        name.resize(size);
        return TextOfFriendlyName(name).value_or("no text");
    }

    /// A copy of a scheme under a GUID of the computer's choice.
    GUID Duplicate(const GUID& source)
    {
        GUID* copy = nullptr;
        EXPECT_EQ(Power().PowerDuplicateScheme(nullptr, &source, &copy), ERROR_SUCCESS);
        const GUID guid = copy != nullptr ? *copy : GUID{};
        Power().LocalFree(copy);
        return guid;
    }

    DWORD WriteAc(const GUID& scheme, const GUID& setting, DWORD value)
    {
        return Power().PowerWriteACValueIndex(nullptr, &scheme, &power_guid::sleep_subgroup, &setting, value);
    }
};

TEST_F(PowerSchemes, AreListedByIndexToTheLast)
{
    std::vector<std::string> names;
    GUID guid{};
    for (ULONG index = 0; Enumerate(index, guid) == ERROR_SUCCESS; ++index)
        names.push_back(NameOf(guid));
    EXPECT_EQ(names, (std::vector<std::string>{"Balanced", "High performance", "Power saver"}));
    EXPECT_EQ(Enumerate(3, guid), ERROR_NO_MORE_ITEMS);
}

TEST_F(PowerSchemes, ListingWithoutRoomWritesNothing)
{
    GUID guid{};
    EXPECT_EQ(Enumerate(0, guid, 15), ERROR_MORE_DATA);
    EXPECT_EQ(guid, GUID{});
}

TEST_F(PowerSchemes, SubgroupsAreNotListed)
{
    DWORD size = 0;
    EXPECT_EQ(Power().PowerEnumerate(nullptr, nullptr, nullptr, ACCESS_SUBGROUP, 0, nullptr, &size),
              ERROR_NOT_SUPPORTED);
}

TEST_F(PowerSchemes, ListingMayFailWhileTheyAreThere)
{
    scenario.power.enumerationError = 5;
    GUID guid{};
    EXPECT_EQ(Enumerate(0, guid), ERROR_ACCESS_DENIED);
    GUID* active = nullptr;
    EXPECT_EQ(Power().PowerGetActiveScheme(nullptr, &active), ERROR_SUCCESS);
    EXPECT_EQ(*active, GuidOf(kBalanced));
    Power().LocalFree(active);
}

TEST_F(PowerSchemes, AStoreMayBeEmpty)
{
    scenario.power.schemes.clear();
    scenario.power.activeScheme.reset();
    GUID guid{};
    GUID* active = nullptr;
    EXPECT_EQ(Enumerate(0, guid), ERROR_NO_MORE_ITEMS);
    EXPECT_EQ(Power().PowerGetActiveScheme(nullptr, &active), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(active, nullptr);
}

TEST_F(PowerSchemes, WhatIsHandedOutIsCountedAndReleased)
{
    GUID* active = nullptr;
    EXPECT_EQ(Power().PowerGetActiveScheme(nullptr, &active), ERROR_SUCCESS);
    EXPECT_EQ(Machine().Audit().liveBlocks, 1u);
    Power().LocalFree(active);
    EXPECT_EQ(Machine().Audit().liveBlocks, 0u);
    Power().LocalFree(nullptr);
    EXPECT_TRUE(Defects().empty());
    Power().LocalFree(active);
    Machine().wlan().WlanFreeMemory(active);
    EXPECT_EQ(Defects(),
              (std::vector<std::string>{"double free of GUID of a power scheme", "free of a foreign pointer"}));
}

TEST_F(PowerSchemes, ACopyHasEverythingButTheGuid)
{
    const GUID copy = Duplicate(GuidOf(kPowerSaver));
    const PowerDescription power = Machine().Snapshot().power;
    ASSERT_EQ(power.schemes.size(), 4u);
    EXPECT_EQ(power.schemes[3].guid, forms::GuidText(copy));
    EXPECT_EQ(power.schemes[3].name, power.schemes[2].name);
    EXPECT_EQ(power.schemes[3].values, power.schemes[2].values);
    EXPECT_EQ(power.activeScheme, kBalanced);
    EXPECT_NE(Duplicate(copy), copy);
}

TEST_F(PowerSchemes, ACopyMayHaveTheCallersGuid)
{
    GUID own = kUnknown;
    GUID* duplicate = &own;
    const GUID source = GuidOf(kBalanced);
    EXPECT_EQ(Power().PowerDuplicateScheme(nullptr, &source, &duplicate), ERROR_SUCCESS);
    EXPECT_EQ(duplicate, &own);
    EXPECT_EQ(NameOf(kUnknown), "Balanced");
    EXPECT_EQ(Power().PowerDuplicateScheme(nullptr, &source, &duplicate), ERROR_ALREADY_EXISTS);
}

TEST_F(PowerSchemes, NamesAreTheBytesThatWereWritten)
{
    const GUID scheme = GuidOf(kBalanced);
    UCHAR name[260] = "Super energy-saving";
    EXPECT_EQ(Power().PowerWriteFriendlyName(nullptr, &scheme, nullptr, nullptr, name, sizeof(name)), ERROR_SUCCESS);
    const std::vector<std::uint8_t> stored = Machine().Snapshot().power.schemes[0].name;
    EXPECT_EQ(stored, std::vector<std::uint8_t>(name, name + sizeof(name)));
    UCHAR read[260] = {};
    DWORD size = sizeof(read);
    EXPECT_EQ(Power().PowerReadFriendlyName(nullptr, &scheme, nullptr, nullptr, read, &size), ERROR_SUCCESS);
    EXPECT_STREQ(reinterpret_cast<const char*>(read), "Super energy-saving");
}

TEST_F(PowerSchemes, WritingAnAcValueLeavesTheDcValue)
{
    const GUID scheme = GuidOf(kBalanced);
    EXPECT_EQ(WriteAc(scheme, power_guid::standby_timeout, 1), ERROR_SUCCESS);
    const PowerValue value = Machine().Snapshot().power.schemes[0].values[0];
    EXPECT_EQ(value.setting, forms::GuidText(power_guid::standby_timeout));
    EXPECT_EQ(value.ac, 1u);
    EXPECT_EQ(value.dc, 900u);
}

TEST_F(PowerSchemes, OnlySettingsThatTheComputerHasAreWritten)
{
    const GUID scheme = GuidOf(kBalanced);
    EXPECT_EQ(WriteAc(scheme, kUnknown, 1), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(Power().PowerWriteACValueIndex(nullptr, &scheme, nullptr, &power_guid::standby_timeout, 1),
              ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(Power().PowerWriteACValueIndex(nullptr, &scheme, &power_guid::sleep_subgroup, nullptr, 1),
              ERROR_INVALID_PARAMETER);
}

TEST_F(PowerSchemes, ASettingOfAnotherSchemeIsAdded)
{
    scenario.power.schemes[0].values.clear();
    EXPECT_EQ(WriteAc(GuidOf(kBalanced), power_guid::standby_timeout, 9), ERROR_SUCCESS);
    ASSERT_EQ(Machine().Snapshot().power.schemes[0].values.size(), 1u);
    EXPECT_EQ(Machine().Snapshot().power.schemes[0].values[0].ac, 9u);
}

TEST_F(PowerSchemes, OneIsActive)
{
    const GUID scheme = GuidOf(kPowerSaver);
    EXPECT_EQ(Power().PowerSetActiveScheme(nullptr, &scheme), ERROR_SUCCESS);
    EXPECT_EQ(Machine().Snapshot().power.activeScheme, kPowerSaver);
    EXPECT_EQ(Power().PowerSetActiveScheme(nullptr, nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Machine().Snapshot().power.activeScheme, kPowerSaver);
}

TEST_F(PowerSchemes, AnUnknownSchemeHasNoNameToWrite)
{
    UCHAR name[2] = {};
    EXPECT_EQ(Power().PowerWriteFriendlyName(nullptr, &kUnknown, nullptr, nullptr, name, 2), ERROR_FILE_NOT_FOUND);
}

TEST_F(PowerSchemes, TheRootIsReservedAndPointersAreNeeded)
{
    int anything = 0;
    const auto root = reinterpret_cast<HKEY>(&anything);
    const GUID scheme = GuidOf(kBalanced);
    GUID* block = nullptr;
    UCHAR name[2] = {};
    DWORD size = sizeof(name);
    EXPECT_EQ(Power().PowerEnumerate(root, nullptr, nullptr, ACCESS_SCHEME, 0, name, &size), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Power().PowerReadFriendlyName(root, &scheme, nullptr, nullptr, name, &size), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Power().PowerGetActiveScheme(root, &block), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Power().PowerDuplicateScheme(root, &scheme, &block), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Power().PowerDuplicateScheme(nullptr, nullptr, &block), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Power().PowerDuplicateScheme(nullptr, &scheme, nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Power().PowerWriteFriendlyName(root, &scheme, nullptr, nullptr, name, 2), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Power().PowerWriteFriendlyName(nullptr, &scheme, nullptr, nullptr, nullptr, 2), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Power().PowerSetActiveScheme(root, &scheme), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(block, nullptr);
}

TEST_F(PowerSchemes, FriendlyNamesAreTerminatedUtf16)
{
    EXPECT_EQ(FriendlyName("A\xC3\xA9"), (std::vector<std::uint8_t>{0x41, 0, 0xE9, 0, 0, 0}));
    EXPECT_EQ(FriendlyName("\xF0\x9F\x94\x8B"), (std::vector<std::uint8_t>{0x3D, 0xD8, 0x0B, 0xDD, 0, 0}));
    EXPECT_EQ(FriendlyName(""), (std::vector<std::uint8_t>{0, 0}));
    for (const char* text : {"", "Balanced", "A\xC3\xA9", "\xF0\x9F\x94\x8B and on"})
        EXPECT_EQ(TextOfFriendlyName(FriendlyName(text)), text);
}

TEST_F(PowerSchemes, OtherBytesAreNoText)
{
    const std::vector<std::vector<std::uint8_t>> cases{
        {}, {0x41}, {0x41, 0}, {0x41, 0, 0}, {0x41, 0, 0, 0, 0, 0}, {0x3D, 0xD8, 0, 0}, {0x0B, 0xDD, 0x41, 0, 0, 0}};
    for (const auto& bytes : cases)
        EXPECT_EQ(TextOfFriendlyName(bytes), std::nullopt);
}

} // namespace

} // namespace calvix::simulation::power_schemes_test
