#include "support/edited_answers.h"
#include "support/library_test.h"

namespace calvix::test::radio_restart_test
{

using simulation::RadioSwitch;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::chrono_literals;

namespace
{

constexpr unsigned kPolls = 10;
constexpr unsigned kNever = kPolls;

/// What a poll hears before the radio has got where it was sent.
enum class InVain
{
    theOtherState,
    noPhy,
    refusal
};

/// A radio that takes its time: in the first phase (the software radio was switched off) it reports off at one poll
/// and in the second phase on at another, both counted from 0; kNever is later than anybody asks.
struct SlowRadio
{
    unsigned offAt;
    unsigned onAt;
    InVain inVain;
    unsigned switches = 0;
    unsigned polls = 0;

    bool InSecondPhase() const { return switches == 2; }

    /// Counts a call. Whether it is a poll to be refused.
    std::optional<DWORD> Hear(std::string_view operation)
    {
        if (operation == "WlanSetInterface")
        {
            ++switches;
            polls = 0;
        }
        if (operation != "WlanQueryInterface")
            return std::nullopt;
        ++polls;
        return inVain == InVain::refusal && !HasArrived() ? std::optional<DWORD>(31) : std::nullopt;
    }

    bool HasArrived() const { return polls > (InSecondPhase() ? onAt : offAt); }

    void Answer(WLAN_RADIO_STATE& radio) const
    {
        if (inVain == InVain::noPhy && !HasArrived())
            radio.dwNumberOfPhys = 0;
        const bool on = InSecondPhase() == HasArrived();
        radio.PhyRadioState[0].dot11SoftwareRadioState = on ? dot11_radio_state_on : dot11_radio_state_off;
        radio.PhyRadioState[0].dot11HardwareRadioState = dot11_radio_state_on;
    }
};

/// The calls of one phase: the switch, then polls, each unsuccessful one followed by a pause.
void AddPhase(std::vector<std::string>& calls, unsigned arrival, bool refused)
{
    calls.push_back("WlanSetInterface");
    for (unsigned poll = 0; poll < kPolls && poll <= arrival; ++poll)
    {
        calls.push_back("WlanQueryInterface");
        if (!refused || poll == arrival)
            calls.push_back("WlanFreeMemory");
        if (poll < arrival)
            calls.push_back("Sleep");
    }
}

class RadioRestartTest : public LibraryTest, public ::testing::WithParamInterface<InVain>
{
public:
    void RunAndCheck(unsigned offAt, unsigned onAt)
    {
        SCOPED_TRACE("off at poll " + std::to_string(offAt) + ", on at poll " + std::to_string(onAt));
        ClearCalls();
        ClearFailures();
        SlowRadio radio{offAt, onAt, GetParam()};
        FailWhen([&radio](const Call& call) { return radio.Hear(call.operation); });
        const EditedAnswers altered({.query = [&radio](WLAN_INTF_OPCODE, PVOID data, DWORD&)
                                     { radio.Answer(*static_cast<WLAN_RADIO_STATE*>(data)); }});
        const auto before = computer().Now();
        manager().RestartWiFiRadio(&kAdapterA);

        std::vector<std::string> expected;
        AddPhase(expected, offAt, GetParam() == InVain::refusal);
        AddPhase(expected, onAt, GetParam() == InVain::refusal);
        EXPECT_EQ(expected, calls());
        EXPECT_EQ(1000ms * (offAt + onAt), computer().Now() - before) << "a second after each unsuccessful poll";
        EXPECT_EQ(offAt + onAt, callCount("Sleep"));
        for (unsigned sleep = 1; sleep <= offAt + onAt; ++sleep)
            ASSERT_EQ("1000", call("Sleep", sleep)["milliseconds"]);
        ExpectNothingHeld();
    }
};

class RadioRestartSceneTest : public LibraryTest
{
};

} // namespace

TEST_P(RadioRestartTest, WaitsForEachStateAsLongAsItTakesAndNoLongerThanTenPolls)
{
    for (unsigned offAt = 0; offAt <= kNever; ++offAt)
        for (unsigned onAt = 0; onAt <= kNever; ++onAt)
            RunAndCheck(offAt, onAt);
}

INSTANTIATE_TEST_SUITE_P(WhatPollsHearInVain,
                         RadioRestartTest,
                         ::testing::Values(InVain::theOtherState, InVain::noPhy, InVain::refusal));

TEST_F(RadioRestartSceneTest, AnOrdinaryRestartTakesNoPause)
{
    manager().RestartWiFiRadio(&kAdapterA);
    EXPECT_THAT(calls(), ElementsAre("WlanSetInterface", "WlanQueryInterface", "WlanFreeMemory", "WlanSetInterface",
                                     "WlanQueryInterface", "WlanFreeMemory"));
    EXPECT_EQ("{phyIndex=0, software=2}", call("WlanSetInterface", 1)["data"]);
    EXPECT_EQ("{phyIndex=0, software=1}", call("WlanSetInterface", 2)["data"]);
    EXPECT_THAT(traced(), IsEmpty());
    EXPECT_EQ(RadioSwitch::on, computer().Snapshot().adapters[0].phys[0].software);
}

TEST_F(RadioRestartSceneTest, ARadioThatIsAlreadyOffIsSeenOffAtOnce)
{
    computer().SetRadio(0, 0, RadioSwitch::off, RadioSwitch::on);
    const auto before = computer().Now();
    manager().RestartWiFiRadio(&kAdapterA);
    EXPECT_EQ(0u, callCount("Sleep"));
    EXPECT_EQ(before, computer().Now());
    EXPECT_EQ(1, manager().PhyRadioIsOn(&kAdapterA));
}

TEST_F(RadioRestartSceneTest, WithTheHardwareSwitchOffTheSecondPhaseRunsOut)
{
    computer().SetRadio(0, 0, RadioSwitch::on, RadioSwitch::off);
    const auto before = computer().Now();
    manager().RestartWiFiRadio(&kAdapterA);
    EXPECT_EQ(11u, callCount("WlanQueryInterface")) << "one poll for off, ten for on";
    EXPECT_EQ(10u, callCount("Sleep"));
    EXPECT_EQ(10000ms, computer().Now() - before);
}

// The results of the two switches are not looked at: both phases run all the same.
TEST_F(RadioRestartSceneTest, RefusedSwitchesDoNotEndIt)
{
    FailOn("WlanSetInterface", 1);
    manager().RestartWiFiRadio(&kAdapterA);
    EXPECT_EQ(2u, callCount("WlanSetInterface"));
    EXPECT_EQ(11u, callCount("WlanQueryInterface")) << "never off, and on all the time";
    EXPECT_EQ(10u, callCount("Sleep"));
    EXPECT_THAT(traced(), ElementsAre("set state failed!err is 1", "set state failed!err is 1"));
    EXPECT_EQ("set state failed!err is 1", sharedTrace()) << "the second switch traces through the shared buffer";
}

TEST_F(RadioRestartSceneTest, WithoutAClientHandleItTakesTwentySeconds)
{
    ForgetClient();
    FailOn("WlanOpenHandle", 1722);
    const auto before = computer().Now();
    manager().RestartWiFiRadio(&kAdapterA);
    EXPECT_EQ(22u, callCount("WlanOpenHandle")) << "each switch and each poll tries anew";
    EXPECT_EQ(20000ms, computer().Now() - before);
    EXPECT_THAT(traced(), ::testing::Each("WlanOpenHandle failed with error: 1722"));
}

} // namespace calvix::test::radio_restart_test
