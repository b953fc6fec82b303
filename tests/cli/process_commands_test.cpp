#include "cli_test.h"

#include <calvix/testing/computer.h>

namespace calvix::test::process_commands_test
{
namespace
{

class RunCommandTest : public CliTest
{
protected:
    calvix::testing::Computer m_computer =
        calvix::testing::Computer::FromFile(CALVIX_SOURCE_DIR "/scenarios/laptop.json");
};

TEST_F(RunCommandTest, WaitsForTheEndOfTheProgram)
{
    EXPECT_EQ(kSuccess, Run({"run", "ipconfig /all"}).exitCode);
    EXPECT_EQ(std::chrono::milliseconds(300), m_computer.Now());
}

TEST_F(RunCommandTest, TakesNoEndlessCommandLine)
{
    EXPECT_EQ(kBadInput, Run({"run", std::string(1001, 'x')}).exitCode);
    EXPECT_EQ(0u, m_computer.CallCount("CreateProcessA"));
}

} // namespace
} // namespace calvix::test::process_commands_test
