#pragma once

// The fixture of the tests that run the whole program in this process.
//
//     TEST_F(StatusTest, SaysWhatTheAdapterIsConnectedTo)
//     {
//         const Outcome outcome = RunOn(test::RichScenario(), {"status"});
//         EXPECT_EQ(0, outcome.exitCode);
//     }

#include "program/program.h"
#include "simulation/scenario.h"
#include "support/test_scenarios.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace calvix::test
{

/// The result of a run of the program.
struct Outcome
{
    int exitCode = -1;
    std::string out;
    std::string err;
};

/// A text that presses Ctrl-C when it is flushed first.
class InterruptingText : public std::stringbuf
{
protected:
    int sync() override
    {
        if (!std::exchange(m_pressed, true))
            std::raise(SIGINT);
        return std::stringbuf::sync();
    }

private:
    bool m_pressed = false;
};

class CliTest : public ::testing::Test
{
protected:
    CliTest();
    ~CliTest() override;

    /// Runs the program as a new process would find the library: no instance, no client handle.
    Outcome Run(const std::vector<std::string>& arguments, host::TerminalTraits terminal = {});
    /// The same with standard output and standard error in one stream, `out`, in the order in which they are written.
    Outcome RunTogether(const std::vector<std::string>& arguments);
    /// Run with a scenario file of this scenario.
    Outcome
    RunOn(const simulation::Scenario& scenario, std::vector<std::string> arguments, host::TerminalTraits terminal = {});

    /// What the program's questions are answered with from now on: standard input, empty unless set.
    void Answer(std::string input) { m_input = std::move(input); }

    /// A path in a folder that is gone after the test.
    std::string PathFor(const std::string& name) const;
    /// Writes a file there and returns its path.
    std::string FileWith(const std::string& name, const std::string& content) const;
    static std::string Content(const std::string& path);

    static constexpr int kSuccess = 0;
    static constexpr int kFailed = 1;
    static constexpr int kBadInput = 2;
    static constexpr int kUnavailable = 3;
    static constexpr int kNotConfirmed = 4;

private:
    std::string m_folder;
    std::string m_input;
};

} // namespace calvix::test
