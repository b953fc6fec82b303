#include <calvix/wireless_manage.h>

#include <gtest/gtest.h>

namespace
{

/// Ends as every program should. Later there is nothing to come back to: the library keeps the closed handle.
class Farewell final : public testing::Environment
{
public:
    void TearDown() override { CWirelessManage::Delete(); }
};

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    testing::AddGlobalTestEnvironment(new Farewell);
    return RUN_ALL_TESTS();
}
