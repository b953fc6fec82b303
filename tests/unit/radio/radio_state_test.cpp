#include "support/contract_table.h"
#include "unit/inventory/trace_texts.h"
#include "unit/radio/radio_answers.h"

#include <functional>

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

const std::string kRadioQuery = std::string("WlanQueryInterface(client=1, interface=") + kAdapterAText +
                                ", opcode=radio_state, reserved=null, dataSize=sizeof(WLAN_RADIO_STATE), "
                                "data=non-null, valueType=null)";
constexpr const char* kNoPhyText = "No valid Phy";

class RadioStateTest : public LibraryTest
{
};

struct Switches
{
    unsigned software = kUnseen;
    unsigned hardware = kUnseen;
};

long long IsOn(CWirelessManage& manager)
{
    return manager.PhyRadioIsOn(&kAdapterA);
}

long long IsOn2(CWirelessManage& manager)
{
    return manager.PhyRadioIsOn2(&kAdapterA);
}

/// PhyRadioIsOn2 that has to leave its outputs alone.
long long IsOn2Outputs(CWirelessManage& manager)
{
    Switches seen;
    const long code = manager.PhyRadioIsOn2(&kAdapterA, seen.software, seen.hardware);
    EXPECT_EQ(kUnseen, seen.software);
    EXPECT_EQ(kUnseen, seen.hardware);
    return code;
}

long long TurnedOff(CWirelessManage& manager)
{
    return manager.PhyRadioTurnedOff(&kAdapterA);
}

long long TurnedOff2(CWirelessManage& manager)
{
    return manager.PhyRadioTurnedOff2(&kAdapterA);
}

long long SafeMode(CWirelessManage& manager)
{
    return manager.SupportedSafeMode(&kAdapterA);
}

using Method = long long (*)(CWirelessManage&);

/// One of the five methods that ask for the radio, and how it words what can happen.
struct RadioMethod
{
    const char* name;
    Method call;
    bool asksForOff;
    long long notOpened;
    long long queryFailed;
    long long noPhy;
    TraceBuffer buffer;
    TraceBuffer noPhyBuffer;
};

const RadioMethod kMethods[] = {
    {"PhyRadioIsOn2 with outputs", IsOn2Outputs, false, -1, -4, -5, TraceBuffer::local, TraceBuffer::local},
    {"PhyRadioIsOn2", IsOn2, false, -1, -4, -5, TraceBuffer::shared, TraceBuffer::shared},
    {"PhyRadioIsOn", IsOn, false, 0, 0, 0, TraceBuffer::local, TraceBuffer::shared},
    {"PhyRadioTurnedOff", TurnedOff, true, 0, 0, 0, TraceBuffer::local, TraceBuffer::shared},
    {"PhyRadioTurnedOff2", TurnedOff2, true, -1, -4, -5, TraceBuffer::local, TraceBuffer::shared},
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
            const AlteredAnswers altered(WithFirstPhy(software, hardware));
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
}

TEST_F(RadioStateTest, EachAsksOnceAndReleasesTheAnswer)
{
    for (const RadioMethod& method : kMethods)
    {
        SCOPED_TRACE(method.name);
        ClearCalls();
        Switches seen;
        if (method.call == IsOn2Outputs)
            EXPECT_EQ(1, manager().PhyRadioIsOn2(&kAdapterA, seen.software, seen.hardware));
        else
            EXPECT_EQ(method.asksForOff ? 0 : 1, method.call(manager()));
        EXPECT_THAT(callLines(), ElementsAre(kRadioQuery, kRelease));
        EXPECT_THAT(traced(), IsEmpty());
        EXPECT_TRUE(sharedTraceUntouched());
    }
}

// Deliberate: an adapter whose first PHY is on counts as on.
TEST_F(RadioStateTest, OnlyTheFirstPhyCounts)
{
    computer().SetRadio(0, 1, simulation::RadioSwitch::off, simulation::RadioSwitch::off);
    computer().SetRadio(0, 2, simulation::RadioSwitch::off, simulation::RadioSwitch::off);
    EXPECT_EQ(1, IsOn(manager()));
    EXPECT_EQ(1, IsOn2(manager()));
    EXPECT_EQ(0, TurnedOff(manager()));
    EXPECT_EQ(0, TurnedOff2(manager()));

    computer().SetRadio(0, 0, simulation::RadioSwitch::off, simulation::RadioSwitch::on);
    computer().SetRadio(0, 1, simulation::RadioSwitch::on, simulation::RadioSwitch::on);
    Switches seen;
    EXPECT_EQ(0, manager().PhyRadioIsOn2(&kAdapterA, seen.software, seen.hardware));
    EXPECT_EQ(kOff, seen.software);
    EXPECT_EQ(kOn, seen.hardware);
    EXPECT_EQ(1, TurnedOff(manager()));
}

TEST_F(RadioStateTest, TheInterfaceIsTheCallers)
{
    computer().SetRadio(0, 0, simulation::RadioSwitch::off, simulation::RadioSwitch::on);
    EXPECT_EQ(1, manager().PhyRadioIsOn(&kAdapterB));
    EXPECT_EQ(0, manager().PhyRadioIsOn(&kAdapterA));
}

// A radio whose state cannot be read is neither on nor off.
TEST_F(RadioStateTest, EveryWayToFail)
{
    for (const RadioMethod& method : kMethods)
    {
        CheckFailures(
            *this,
            {
                {method.name, method.call, "WlanOpenHandle", method.notOpened, {kOpenFailed}, method.buffer},
                {method.name, method.call, "WlanQueryInterface", method.queryFailed, {kQueryFailed}, method.buffer},
            });
    }
}

TEST_F(RadioStateTest, AnAdapterWithoutAnyPhy)
{
    for (const RadioMethod& method : kMethods)
    {
        SCOPED_TRACE(method.name);
        ClearCalls();
        const AlteredAnswers altered(WithoutPhy());
        EXPECT_EQ(method.noPhy, method.call(manager()));
        EXPECT_THAT(traced(), ElementsAre(kNoPhyText));
        if (method.noPhyBuffer == TraceBuffer::shared)
            EXPECT_EQ(kNoPhyText, sharedTrace());
        else
            EXPECT_TRUE(sharedTraceUntouched());
        EXPECT_THAT(callLines(), ElementsAre(kRadioQuery, kRelease));
        ExpectNothingHeld();
    }
}

TEST_F(RadioStateTest, SafeModeIsThePlatformsBoolean)
{
    for (const int supported : {0, 1, -1, 256})
    {
        const AlteredAnswers altered({.query = [supported](WLAN_INTF_OPCODE opcode, PVOID data, DWORD&)
                                      {
                                          ASSERT_EQ(wlan_intf_opcode_supported_safe_mode, opcode);
                                          *static_cast<BOOL*>(data) = supported;
                                      }});
        ClearCalls();
        EXPECT_EQ(supported, SafeMode(manager()));
        EXPECT_THAT(callLines(), ElementsAre(std::string("WlanQueryInterface(client=1, interface=") + kAdapterAText +
                                                 ", opcode=supported_safe_mode, reserved=null, dataSize=sizeof(BOOL), "
                                                 "data=non-null, valueType=null)",
                                             kRelease));
        EXPECT_THAT(traced(), IsEmpty());
    }
}

TEST_F(RadioStateTest, EveryWayForSafeModeToFail)
{
    const auto local = TraceBuffer::local;
    CheckFailures(*this, {
                             {"SupportedSafeMode", SafeMode, "WlanOpenHandle", -2, {kOpenFailed}, local},
                             {"SupportedSafeMode", SafeMode, "WlanQueryInterface", -5, {kQueryFailed}, local},
                         });
}

TEST_F(RadioStateTest, AnInterfaceThatIsNoneIsTheServicesToRefuse)
{
    for (const GUID* none : {&kNoAdapter, static_cast<const GUID*>(nullptr)})
    {
        Switches seen;
        EXPECT_EQ(0, manager().PhyRadioIsOn(none));
        EXPECT_EQ(0, manager().PhyRadioTurnedOff(none));
        EXPECT_EQ(-4, manager().PhyRadioIsOn2(none));
        EXPECT_EQ(-4, manager().PhyRadioIsOn2(none, seen.software, seen.hardware));
        EXPECT_EQ(-4, manager().PhyRadioTurnedOff2(none));
        EXPECT_EQ(-5, manager().SupportedSafeMode(none));
        EXPECT_EQ(kUnseen, seen.software);
    }
}

} // namespace calvix::test::radio_state_test
