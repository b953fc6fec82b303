// Commands that wait for a connection, where text alone does not show what they do; tests/data/transcripts has the rest.

#include "cli_test.h"

namespace calvix::test::connecting_test
{
namespace
{

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class ConnectingCommands : public CliTest
{
};

TEST_F(ConnectingCommands, ProgressIsForTerminalsAndVanishes)
{
    const std::pair<std::vector<std::string>, const char*> rows[] = {
        {{"connect", "OfficeNet"}, "Requested \"OfficeNet\", waiting for the connection 1."},
        {{"best"}, "Requested \"HomeNet\", waiting for the connection"},
        {{"radio", "restart"}, "The radio is on, waiting for the connection"},
        {{"power", "keep-awake", "--for", "2", "--yes"}, "Keeping the computer awake"}};
    simulation::Scenario scenario = RichScenario();
    scenario.adapters = {scenario.adapters[0]};
    scenario.adapters[0].phys = {{}};
    for (auto [command, text] : rows)
    {
        SCOPED_TRACE(text);
        const std::string err = RunOn(scenario, command, {.isTerminal = true}).err;
        EXPECT_THAT(err, HasSubstr(text));
        EXPECT_THAT(err, EndsWith(" \r"));
        command.push_back("--json");
        EXPECT_THAT(RunOn(scenario, command, {.isTerminal = true}).err, IsEmpty());
    }
}

TEST_F(ConnectingCommands, WhatIsOnlyRehearsedLeavesNoTrace)
{
    for (const std::vector<std::string>& command :
         {std::vector<std::string>{"best", "--trace"}, {"roam", "--dry-run", "--trace"}})
    {
        const Outcome outcome = RunOn(RichScenario(), command);
        EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
        EXPECT_THAT(outcome.err, HasSubstr("trace: "));
        EXPECT_THAT(outcome.err, Not(HasSubstr("WlanConnect failed")));
    }
}

} // namespace
} // namespace calvix::test::connecting_test
