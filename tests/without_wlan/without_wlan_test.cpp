// A computer without wlanapi.dll: a Windows Server on which nobody has added the wireless feature.

#include <calvix/wireless_manage.h>

#include <gtest/gtest.h>

#include <vector>

namespace
{

constexpr GUID kInterface = {0xcafe0001, 0x0002, 0x0003, {4, 5, 6, 7, 8, 9, 10, 11}};

TEST(WithoutWlan, ThereIsNoWlanLibraryHere)
{
    EXPECT_EQ(::LoadLibraryW(L"wlanapi.dll"), nullptr);
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
}

TEST(WithoutWlan, TheManagerIsThereAllTheSame)
{
    CWirelessManage* const manager = CWirelessManage::Get();
    ASSERT_NE(manager, nullptr);
    EXPECT_STREQ(manager->GetWlanInterfaceState(1), "connected");
    EXPECT_EQ(manager->GetSignalStrength(-75), 50);
}

TEST(WithoutWlan, MethodsReportAClientThatCannotBeOpened)
{
    CWirelessManage* const manager = CWirelessManage::Get();
    std::vector<WLAN_INTERFACE_INFO> adapters;
    EXPECT_EQ(manager->GetWiFiAdapterCount(), -2);
    EXPECT_EQ(manager->GetWlanInterface(&adapters), -1);
    EXPECT_EQ(manager->GetWlanStatus(&kInterface), -2);
    EXPECT_EQ(manager->Rescan(), -1);
    EXPECT_EQ(manager->GetAvailableNetworkCount(&kInterface), -2);
    EXPECT_EQ(manager->GetProfileCount(&kInterface), -1);
    EXPECT_EQ(manager->GetWlanProfile(&kInterface, "home"), ERROR_MOD_NOT_FOUND);
}

TEST(WithoutWlan, ARefusalNamesTheMissingLibrary)
{
    unsigned long error = 0;
    EXPECT_EQ(CWirelessManage::Get()->Rescan(&kInterface, error), -1);
    EXPECT_EQ(error, static_cast<unsigned long>(ERROR_MOD_NOT_FOUND));
}

TEST(WithoutWlan, DeleteHasNothingToClose)
{
    CWirelessManage::Get();
    CWirelessManage::Delete();
    ASSERT_NE(CWirelessManage::Get(), nullptr);
    EXPECT_EQ(CWirelessManage::Get()->GetWiFiAdapterCount(), -2);
}

} // namespace
