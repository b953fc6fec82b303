#include "any_of.h"

#include <calvix/wireless_manage.h>

namespace
{

TEST(LibraryLifetime, GetGivesTheOneInstance)
{
    CWirelessManage* const manager = CWirelessManage::Get();
    ASSERT_NE(manager, nullptr);
    EXPECT_EQ(CWirelessManage::Get(), manager);
}

TEST(LibraryLifetime, DeleteEndsItAndGetBeginsANewOne)
{
    CWirelessManage* manager = CWirelessManage::Get();
    ASSERT_NE(manager, nullptr);
    EXPECT_STREQ(manager->GetWlanInterfaceState(1), "connected");
    CWirelessManage::Delete();
    CWirelessManage::Delete();

    manager = CWirelessManage::Get();
    ASSERT_NE(manager, nullptr);
    EXPECT_EQ(CWirelessManage::Get(), manager);
    EXPECT_STREQ(manager->GetWlanInterfaceState(1), "connected");
    // The client that Delete closed is not opened again.
    EXPECT_TRUE(GaveAnyOf(manager->GetWiFiAdapterCount(), {-2, -3}));
}

} // namespace
