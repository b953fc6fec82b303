// What docs/recordings.md shows: a recorded session in the place of a computer.

#include "simulation/computer.h"
#include "support/test_scenarios.h"
#include "testing/manager_internals.h"
#include "wrappers/recording/recorder.h"
#include "wrappers/recording/replay.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace calvix::test::session_in_a_test
{
namespace
{

constexpr GUID guid = kAdapterA;

/// Counts the networks of a simulated computer and writes the session down.
int RecordSession(const std::string& session)
{
    ManagerInternals::Reset();
    simulation::Computer computer(RichScenario());
    std::ofstream file(session);
    recording::Recorder recorder(computer, file, {.simulated = true});
    platform::ReplacePlatform(&recorder.platform());
    const int networks = CWirelessManage::Get()->GetAvailableNetworkCount(&guid);
    CWirelessManage::Delete();
    platform::ReplacePlatform(nullptr);
    recorder.Finish();
    ManagerInternals::Reset();
    return networks;
}

TEST(SessionInATest, ReplacesTheComputer)
{
    const std::string session = testing::TempDir() + "calvix-session-in-a-test.jsonl";
    const int networks = RecordSession(session);
    ASSERT_GT(networks, 0);

    std::ifstream file(session);
    calvix::recording::Replay replay(file, session);
    calvix::platform::ReplacePlatform(&replay.platform());
    EXPECT_EQ(networks, CWirelessManage::Get()->GetAvailableNetworkCount(&guid));
    CWirelessManage::Delete();
    calvix::platform::ReplacePlatform(nullptr);
    EXPECT_FALSE(replay.Finish()) << replay.Trouble()->text;

    ManagerInternals::Reset();
    file.close();
    std::filesystem::remove(session);
}

} // namespace
} // namespace calvix::test::session_in_a_test
