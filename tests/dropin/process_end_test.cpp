// A process may end at any moment, with everything open and running.

#include "dropin/child_process.h"

#include <gtest/gtest.h>

#include <string>

namespace calvix::test::dropin_process_end_test
{
namespace
{

TEST(DropinProcessEnd, ACallbackThatEndedWithItsThreadDelaysNothing)
{
    const ProgramEnd end = RunProgram(L"" CALVIX_DROPIN_PROGRAMS "/wlan_abandoning_client.exe");
    EXPECT_EQ(end.exitCode, 0u);
    EXPECT_EQ(end.output, "all as expected\r\nclosed at the end: 1115\n"); // ERROR_SHUTDOWN_IN_PROGRESS
    EXPECT_EQ(end.errors, "");
}

} // namespace
} // namespace calvix::test::dropin_process_end_test
