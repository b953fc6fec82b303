#include "methods/method.h"
#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/call_lines.h"

namespace calvix::test::radio_state_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr unsigned kUnknown = 0;
constexpr unsigned kOn = 1;
constexpr unsigned kOff = 2;
constexpr unsigned kUnseen = 77;

const std::string kRadioQuery = QueryLine("radio_state", "WLAN_RADIO_STATE");
constexpr const char* kNoPhyText = "No valid Phy";

class RadioStateTest : public LibraryTest
{
public:
    /// What the method with this name, or beginning of its declaration, gives; it has to leave its outputs alone.
    long long Ask(const char* method)
    {
        methods::Arguments useful;
        methods::Call call(methods::FindMethod(method), useful);
        call.Make(manager());
        EXPECT_THAT(call.Outcome().outputs, ::testing::Each(methods::kUntouched));
        return call.Outcome().code.value();
    }
};

struct Switches
{
    unsigned software = kUnseen;
    unsigned hardware = kUnseen;
};

/// One of the five methods that ask for the radio, and how it words that there is no PHY.
struct RadioMethod
{
    const char* name;
    long long noPhy;
    bool traceIsShared;
};

const RadioMethod kMethods[] = {
    {"PhyRadioIsOn2(GUID const*, unsigned", -5, false},
    {"PhyRadioIsOn2(GUID const*)", -5, true},
    {"PhyRadioIsOn", 0, true},
    {"PhyRadioTurnedOff", 0, true},
    {"PhyRadioTurnedOff2", -5, true},
};

} // namespace

// Only the state off counts as off; unknown and undefined numbers do not.
TEST_F(RadioStateTest, OffIsWhatOneOfTheTwoSwitchesSays)
{
    for (const unsigned software : {kUnknown, kOn, kOff, 3U})
    {
        for (const unsigned hardware : {kUnknown, kOn, kOff, 3U})
        {
            SCOPED_TRACE("software " + std::to_string(software) + ", hardware " + std::to_string(hardware));
            const auto answer = [software, hardware](WLAN_INTF_OPCODE, PVOID data, DWORD&)
            {
                WLAN_PHY_RADIO_STATE& first = static_cast<WLAN_RADIO_STATE*>(data)->PhyRadioState[0];
                first.dot11SoftwareRadioState = static_cast<DOT11_RADIO_STATE>(software);
                first.dot11HardwareRadioState = static_cast<DOT11_RADIO_STATE>(hardware);
            };
            const EditedAnswers altered({.query = answer});
            const int off = software == kOff || hardware == kOff ? 1 : 0;
            Switches seen;
            EXPECT_EQ(1 - off, manager().PhyRadioIsOn(&kAdapterA));
            EXPECT_EQ(1 - off, manager().PhyRadioIsOn2(&kAdapterA));
            EXPECT_EQ(1 - off, manager().PhyRadioIsOn2(&kAdapterA, seen.software, seen.hardware));
            EXPECT_EQ(off, manager().PhyRadioTurnedOff(&kAdapterA));
            EXPECT_EQ(off, manager().PhyRadioTurnedOff2(&kAdapterA));
            EXPECT_EQ(software, seen.software);
            EXPECT_EQ(hardware, seen.hardware);
        }
    }
    ExpectSilence();
}

// Deliberate: an adapter whose first PHY is on counts as on.
TEST_F(RadioStateTest, OnlyTheFirstPhyCounts)
{
    computer().SetRadio(0, 1, simulation::RadioSwitch::off, simulation::RadioSwitch::off);
    computer().SetRadio(0, 2, simulation::RadioSwitch::off, simulation::RadioSwitch::off);
    EXPECT_EQ(1, manager().PhyRadioIsOn(&kAdapterA));
    EXPECT_EQ(1, manager().PhyRadioIsOn2(&kAdapterA));
    EXPECT_EQ(0, manager().PhyRadioTurnedOff(&kAdapterA));
    EXPECT_EQ(0, manager().PhyRadioTurnedOff2(&kAdapterA));

    computer().SetRadio(0, 0, simulation::RadioSwitch::off, simulation::RadioSwitch::on);
    computer().SetRadio(0, 1, simulation::RadioSwitch::on, simulation::RadioSwitch::on);
    Switches seen;
    EXPECT_EQ(0, manager().PhyRadioIsOn2(&kAdapterA, seen.software, seen.hardware));
    EXPECT_EQ(kOff, seen.software);
    EXPECT_EQ(kOn, seen.hardware);
    EXPECT_EQ(1, manager().PhyRadioTurnedOff(&kAdapterA));
}

TEST_F(RadioStateTest, TheInterfaceIsTheCallers)
{
    computer().SetRadio(0, 0, simulation::RadioSwitch::off, simulation::RadioSwitch::on);
    EXPECT_EQ(1, manager().PhyRadioIsOn(&kAdapterB));
    EXPECT_EQ(0, manager().PhyRadioIsOn(&kAdapterA));
}

// What lies where the first PHY would be says off.
TEST_F(RadioStateTest, AnAdapterWithoutAnyPhy)
{
    const EditedAnswers altered({.query = [](WLAN_INTF_OPCODE, PVOID data, DWORD&)
                                 {
                                     auto& radio = *static_cast<WLAN_RADIO_STATE*>(data);
                                     radio.dwNumberOfPhys = 0;
                                     radio.PhyRadioState[0].dot11SoftwareRadioState = dot11_radio_state_off;
                                 }});
    for (const RadioMethod& method : kMethods)
    {
        SCOPED_TRACE(method.name);
        ClearCalls();
        EXPECT_EQ(method.noPhy, Ask(method.name));
        EXPECT_THAT(traced(), ElementsAre(kNoPhyText));
        EXPECT_EQ(method.traceIsShared, !sharedTraceUntouched());
        EXPECT_THAT(callLines(), ElementsAre(kRadioQuery, kRelease));
        ExpectNothingHeld();
    }
}

TEST_F(RadioStateTest, SafeModeIsThePlatformsBoolean)
{
    for (const int supported : {0, 1, -1, 256})
    {
        const EditedAnswers altered({.query = [supported](WLAN_INTF_OPCODE opcode, PVOID data, DWORD&)
                                     {
                                         ASSERT_EQ(wlan_intf_opcode_supported_safe_mode, opcode);
                                         *static_cast<BOOL*>(data) = supported;
                                     }});
        ClearCalls();
        EXPECT_EQ(supported, manager().SupportedSafeMode(&kAdapterA));
        EXPECT_THAT(callLines(), ElementsAre(QueryLine("supported_safe_mode", "BOOL"), kRelease));
        EXPECT_THAT(traced(), IsEmpty());
    }
}

} // namespace calvix::test::radio_state_test
