// A computer without wlanapi.dll: a Windows Server without the wireless feature.

#include "without_wlan/expectations.h"

#include "support/test_worlds.h"

#include <windows.h>

namespace calvix::test::without_wlan_test
{
namespace
{

class WithoutWlan : public every_method::OnWine
{
};

class EveryMethodWithoutWlan : public WithoutWlan, public testing::WithParamInterface<methods::Method>
{
};

TEST_F(WithoutWlan, ThereIsNoWlanLibraryHere)
{
    EXPECT_EQ(::LoadLibraryW(L"wlanapi.dll"), nullptr);
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
}

TEST_P(EveryMethodWithoutWlan, ReportsAClientThatCannotBeOpened)
{
    Check(GetParam(), every_method::Computer::withoutWlan);
}

INSTANTIATE_TEST_SUITE_P(All,
                         EveryMethodWithoutWlan,
                         testing::ValuesIn(every_method::AllMethods()),
                         [](const auto& method) { return TestName(method.param, method.index); });

TEST_F(WithoutWlan, ARefusalNamesTheMissingLibrary)
{
    unsigned long error = 0;
    EXPECT_EQ(CWirelessManage::Get()->Rescan(&kAdapterA, error), -1);
    EXPECT_EQ(error, static_cast<unsigned long>(ERROR_MOD_NOT_FOUND));
}

TEST_F(WithoutWlan, DeleteHasNothingToClose)
{
    CWirelessManage::Get();
    CWirelessManage::Delete();
    ASSERT_NE(CWirelessManage::Get(), nullptr);
    EXPECT_EQ(CWirelessManage::Get()->GetWiFiAdapterCount(), -2);
}

TEST_F(WithoutWlan, AProgramThatIsNotThereIsNotStarted)
{
    std::string name = "calvix-no-such-program.exe";
    EXPECT_EQ(CWirelessManage::Get()->CreateProcRunExe(name.data()), 0);
    CWirelessManage::Get()->CreateProcRunCmd(name.data());
}

} // namespace
} // namespace calvix::test::without_wlan_test
