// A computer without wlanapi.dll: a Windows Server on which nobody has added the wireless feature.

#include "without_wlan/method_case.h"

#include <gtest/gtest.h>

namespace calvix::test::without_wlan_test
{
namespace
{

using every_method::MethodCase;

class WithoutWlan : public every_method::OnWine
{
};

class EveryMethodWithoutWlan : public WithoutWlan, public testing::WithParamInterface<MethodCase>
{
};

TEST_F(WithoutWlan, ThereIsNoWlanLibraryHere)
{
    EXPECT_EQ(::LoadLibraryW(L"wlanapi.dll"), nullptr);
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
}

TEST_F(WithoutWlan, EveryExportedMethodIsCalled)
{
    std::vector<std::string> called;
    for (const MethodCase& method : every_method::AllMethods())
        called.push_back(method.declaration);
    EXPECT_THAT(called, testing::UnorderedElementsAreArray(every_method::ExportedMethods()));
}

TEST_P(EveryMethodWithoutWlan, ReportsAClientThatCannotBeOpened)
{
    CWirelessManage* const manager = CWirelessManage::Get();
    ASSERT_NE(manager, nullptr);
    EXPECT_THAT(GetParam().call(*manager), GetParam().withoutWlan);
}

INSTANTIATE_TEST_SUITE_P(All,
                         EveryMethodWithoutWlan,
                         testing::ValuesIn(every_method::AllMethods()),
                         every_method::TestName);

TEST_F(WithoutWlan, ARefusalNamesTheMissingLibrary)
{
    unsigned long error = 0;
    EXPECT_EQ(CWirelessManage::Get()->Rescan(&every_method::kAdapter, error), -1);
    EXPECT_EQ(error, static_cast<unsigned long>(ERROR_MOD_NOT_FOUND));
}

TEST_F(WithoutWlan, DeleteHasNothingToClose)
{
    CWirelessManage::Get();
    CWirelessManage::Delete();
    ASSERT_NE(CWirelessManage::Get(), nullptr);
    EXPECT_EQ(CWirelessManage::Get()->GetWiFiAdapterCount(), -2);
}

} // namespace
} // namespace calvix::test::without_wlan_test
