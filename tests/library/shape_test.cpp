// What the compiler of a host sees of the class.

#include <calvix/wireless_manage.h>

#include <gtest/gtest.h>

#include <type_traits>

namespace
{

static_assert(!std::is_default_constructible_v<CWirelessManage>, "only Get creates it");
static_assert(!std::is_copy_constructible_v<CWirelessManage>);
static_assert(!std::is_destructible_v<CWirelessManage>, "only Delete destroys it");
static_assert(!std::is_polymorphic_v<CWirelessManage>);
static_assert(sizeof(_WIFI_TXRX_COUNT) == 32);
#ifdef _WIN64
static_assert(sizeof(CWirelessManage) == 2616);
#endif

TEST(LibraryShape, AnInstanceCanBeAssignedToItself)
{
    CWirelessManage* const manager = CWirelessManage::Get();
    ASSERT_NE(manager, nullptr);
    EXPECT_EQ(&manager->operator=(*manager), manager);
}

} // namespace
