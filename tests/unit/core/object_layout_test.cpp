#include "support/library_test.h"

#include <cstdint>
#include <type_traits>

namespace calvix::test::object_layout_test
{

// Hosts were compiled against this object: it has no virtual operations, no base, and its members lie where they lie.

static_assert(!std::is_polymorphic_v<CWirelessManage>);
static_assert(!std::is_default_constructible_v<CWirelessManage>, "only Get makes the instance");
static_assert(!std::is_copy_constructible_v<CWirelessManage>);
static_assert(!std::is_destructible_v<CWirelessManage>, "only Delete destroys the instance");
static_assert(std::is_copy_assignable_v<CWirelessManage>);

class ObjectLayoutTest : public LibraryTest
{
protected:
    template <typename Member>
    std::size_t OffsetOf(Member& member)
    {
        return static_cast<std::size_t>(reinterpret_cast<std::uintptr_t>(&member) -
                                        reinterpret_cast<std::uintptr_t>(&manager()));
    }
};

TEST_F(ObjectLayoutTest, TheTextsAreTwoRecordsOfALongAndAShortOne)
{
    CWirelessManage& object = manager();
    const std::size_t first = OffsetOf(ManagerInternals::InterfaceState(object));
    EXPECT_EQ(first + 256, OffsetOf(ManagerInternals::GuidText(object)));
    EXPECT_EQ(first + 384, OffsetOf(ManagerInternals::InterfaceDesc(object)));
    EXPECT_EQ(first + 640, OffsetOf(ManagerInternals::PowerSetting(object)));
    EXPECT_EQ(first + 768, OffsetOf(ManagerInternals::Spare(object)));
}

TEST_F(ObjectLayoutTest, TheMembersStandInTheirOrder)
{
    CWirelessManage& object = manager();
    const std::vector<std::size_t> offsets = {OffsetOf(ManagerInternals::SavedConnection(object)),
                                              OffsetOf(ManagerInternals::SavedNotification(object)),
                                              OffsetOf(ManagerInternals::SavedAutoConnMode(object)),
                                              OffsetOf(ManagerInternals::InterfaceState(object)),
                                              OffsetOf(ManagerInternals::Spare(object)),
                                              OffsetOf(ManagerInternals::SparePointer(object)),
                                              OffsetOf(ManagerInternals::SavedPowerPolicy(object)),
                                              OffsetOf(ManagerInternals::AppPath(object))};
    EXPECT_EQ(0u, offsets.front());
    EXPECT_TRUE(std::is_sorted(offsets.begin(), offsets.end()));
}

TEST_F(ObjectLayoutTest, TheInstanceHasTheHostsOffsets)
{
    if constexpr (sizeof(wchar_t) != 2 || sizeof(unsigned long) != 4 || sizeof(void*) != 8)
        GTEST_SKIP() << "the offsets are those of 64-bit Windows; here the platform's records have other sizes";
    CWirelessManage& object = manager();
    EXPECT_EQ(2616u, sizeof(CWirelessManage));
    EXPECT_EQ(604u, OffsetOf(ManagerInternals::SavedNotification(object)));
    EXPECT_EQ(1176u, OffsetOf(ManagerInternals::SavedAutoConnMode(object)));
    EXPECT_EQ(1180u, OffsetOf(ManagerInternals::InterfaceState(object)));
    EXPECT_EQ(1948u, OffsetOf(ManagerInternals::Spare(object)));
    EXPECT_EQ(1952u, OffsetOf(ManagerInternals::SparePointer(object)));
    EXPECT_EQ(1960u, OffsetOf(ManagerInternals::SavedPowerPolicy(object)));
    EXPECT_EQ(2104u, OffsetOf(ManagerInternals::AppPath(object)));
}

} // namespace calvix::test::object_layout_test
