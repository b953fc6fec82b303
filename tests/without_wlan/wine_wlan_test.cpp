// Wine's own wlanapi.dll: the client handle opens, there is no adapter, and most operations have not been written.

#include "without_wlan/method_case.h"

#include <gtest/gtest.h>

namespace calvix::test::wine_wlan_test
{
namespace
{

using every_method::MethodCase;

class WineWlan : public every_method::OnWine
{
};

class EveryMethodOnWine : public WineWlan, public testing::WithParamInterface<MethodCase>
{
};

TEST_F(WineWlan, IsThere)
{
    EXPECT_NE(::LoadLibraryW(L"wlanapi.dll"), nullptr);
}

TEST_P(EveryMethodOnWine, ReportsWhatIsRefused)
{
    CWirelessManage* const manager = CWirelessManage::Get();
    ASSERT_NE(manager, nullptr);
    EXPECT_THAT(GetParam().call(*manager), GetParam().onWine);
}

INSTANTIATE_TEST_SUITE_P(All, EveryMethodOnWine, testing::ValuesIn(every_method::AllMethods()), every_method::TestName);

} // namespace
} // namespace calvix::test::wine_wlan_test
