// Wine's own wlanapi.dll: the client handle opens, there is no adapter, and most operations have not been written.

#include "without_wlan/expectations.h"

#include <windows.h>

namespace calvix::test::wine_wlan_test
{
namespace
{

class WineWlan : public every_method::OnWine
{
};

class EveryMethodOnWine : public WineWlan, public testing::WithParamInterface<methods::Method>
{
};

TEST_F(WineWlan, IsThere)
{
    EXPECT_NE(::LoadLibraryW(L"wlanapi.dll"), nullptr);
}

TEST_P(EveryMethodOnWine, ReportsWhatIsRefused)
{
    Check(GetParam(), every_method::Computer::wine);
}

INSTANTIATE_TEST_SUITE_P(All,
                         EveryMethodOnWine,
                         testing::ValuesIn(every_method::AllMethods()),
                         [](const auto& method) { return TestName(method.param, method.index); });

} // namespace
} // namespace calvix::test::wine_wlan_test
