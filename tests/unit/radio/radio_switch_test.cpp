#include "support/contract_table.h"
#include "unit/inventory/trace_texts.h"
#include "unit/radio/radio_answers.h"

#include <algorithm>

namespace calvix::test::radio_switch_test
{

using simulation::RadioSwitch;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::chrono_literals;

namespace
{

constexpr unsigned long kUnseen = 77;
constexpr const char* kSetFailed = "set state failed!err is %u";

std::string SetLine(int software)
{
    return std::string("WlanSetInterface(client=1, interface=") + kAdapterAText +
           ", opcode=radio_state, dataSize=sizeof(WLAN_PHY_RADIO_STATE), data={phyIndex=0, software=" +
           std::to_string(software) + "}, reserved=null)";
}

const std::string kSetOn = SetLine(1);
const std::string kSetOff = SetLine(2);

class RadioSwitchTest : public LibraryTest
{
public:
    simulation::PhyDescription Phy(std::size_t index) { return computer().Snapshot().adapters[0].phys[index]; }
};

long long On(CWirelessManage& manager)
{
    return manager.RadioTurnOn(&kAdapterA);
}

long long OnByItsOtherName(CWirelessManage& manager)
{
    return manager.TurnOnSoftwareRadio(&kAdapterA);
}

/// An error number of the service's own: it has the highest of its 32 bits set.
constexpr unsigned kPowerState = 2150899714;

/// TurnOnSoftwareRadio, which must return the error of the row.
long long OnWithError(CWirelessManage& manager)
{
    unsigned long error = kUnseen;
    const int code = manager.TurnOnSoftwareRadio(&kAdapterA, error);
    EXPECT_EQ(kPowerState, error);
    return code;
}

long long Off(CWirelessManage& manager)
{
    return manager.RadioTurnOff(&kAdapterA);
}

long long Reset(CWirelessManage& manager)
{
    return manager.ResetWiFiRadio(&kAdapterA);
}

} // namespace

// --- RadioTurnOn, TurnOnSoftwareRadio, RadioTurnOff ---

TEST_F(RadioSwitchTest, TurnsTheFirstPhysSoftwareRadioOnAndOff)
{
    EXPECT_EQ(0, manager().RadioTurnOff(&kAdapterA));
    EXPECT_THAT(callLines(), ElementsAre(kSetOff));
    EXPECT_EQ(RadioSwitch::off, Phy(0).software);
    EXPECT_EQ(RadioSwitch::on, Phy(0).hardware);
    EXPECT_EQ(RadioSwitch::on, Phy(1).software) << "the other PHYs are left alone";

    ClearCalls();
    EXPECT_EQ(0, manager().RadioTurnOn(&kAdapterA));
    EXPECT_THAT(callLines(), ElementsAre(kSetOn));
    EXPECT_EQ(RadioSwitch::on, Phy(0).software);
    EXPECT_THAT(traced(), IsEmpty());
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(RadioSwitchTest, TurnOnHasTwoMoreNames)
{
    unsigned long error = kUnseen;
    EXPECT_EQ(0, manager().TurnOnSoftwareRadio(&kAdapterA));
    EXPECT_EQ(0, manager().TurnOnSoftwareRadio(&kAdapterA, error));
    EXPECT_THAT(callLines(), ElementsAre(kSetOn, kSetOn));
    EXPECT_EQ(kUnseen, error) << "success leaves the error alone";
}

// The hardware switch is the user's; unknown is what the library says of it.
TEST_F(RadioSwitchTest, AsksNothingOfTheHardwareSwitch)
{
    std::vector<WLAN_PHY_RADIO_STATE> asked;
    const AlteredAnswers altered({.set = [&asked](WLAN_INTF_OPCODE opcode, DWORD size, const void* data)
                                  {
                                      ASSERT_EQ(wlan_intf_opcode_radio_state, opcode);
                                      ASSERT_EQ(sizeof(WLAN_PHY_RADIO_STATE), size);
                                      asked.push_back(*static_cast<const WLAN_PHY_RADIO_STATE*>(data));
                                  }});
    manager().RadioTurnOff(&kAdapterA);
    manager().RadioTurnOn(&kAdapterA);
    manager().ResetWiFiRadio(&kAdapterA);
    ASSERT_EQ(4u, asked.size());
    for (const WLAN_PHY_RADIO_STATE& phy : asked)
    {
        EXPECT_EQ(0u, phy.dwPhyIndex);
        EXPECT_EQ(dot11_radio_state_unknown, phy.dot11HardwareRadioState);
    }
}

TEST_F(RadioSwitchTest, ARadioSwitchedOffInHardwareStaysOff)
{
    computer().SetRadio(0, 0, RadioSwitch::off, RadioSwitch::off);
    EXPECT_EQ(0, manager().RadioTurnOn(&kAdapterA)) << "the software radio is on now";
    EXPECT_EQ(0, manager().PhyRadioIsOn(&kAdapterA));
}

TEST_F(RadioSwitchTest, EveryWayForASwitchToFail)
{
    const auto local = TraceBuffer::local;
    CheckFailures(*this, {
                             {"RadioTurnOn", On, "WlanOpenHandle", -1, {kOpenFailed}},
                             {"RadioTurnOn", On, "WlanSetInterface", -4, {kSetFailed}},
                             {"TurnOnSoftwareRadio", OnByItsOtherName, "WlanOpenHandle", -1, {kOpenFailed}},
                             {"TurnOnSoftwareRadio", OnByItsOtherName, "WlanSetInterface", -4, {kSetFailed}},
                             {"TurnOnSoftwareRadio with error",
                              OnWithError,
                              "WlanOpenHandle",
                              -1,
                              {kOpenFailed},
                              TraceBuffer::shared,
                              kPowerState},
                             {"TurnOnSoftwareRadio with error",
                              OnWithError,
                              "WlanSetInterface",
                              -4,
                              {kSetFailed},
                              TraceBuffer::shared,
                              kPowerState},
                             {"RadioTurnOff", Off, "WlanOpenHandle", -1, {kOpenFailed}, local},
                             {"RadioTurnOff", Off, "WlanSetInterface", -4, {kSetFailed}, local},
                         });
}

TEST_F(RadioSwitchTest, LargeErrorsAreReportedWhole)
{
    FailOn("WlanSetInterface", 0x80342002);
    unsigned long error = kUnseen;
    EXPECT_EQ(-4, manager().TurnOnSoftwareRadio(&kAdapterA, error));
    EXPECT_EQ(0x80342002u, error);
    EXPECT_THAT(traced(), ElementsAre("set state failed!err is 2150899714"));
}

// --- ResetWiFiRadio ---

TEST_F(RadioSwitchTest, ResetPausesHalfASecondBetweenOffAndOn)
{
    const auto before = computer().Now();
    EXPECT_EQ(0, manager().ResetWiFiRadio(&kAdapterA));
    EXPECT_THAT(callLines(), ElementsAre(kSetOff, "Sleep(milliseconds=500)", kSetOn));
    EXPECT_EQ(500ms, computer().Now() - before);
    EXPECT_THAT(traced(), ElementsAre("set radio off OK", "set radio on OK"));
    EXPECT_TRUE(sharedTraceUntouched());
    EXPECT_EQ(RadioSwitch::on, Phy(0).software);
}

// Deliberate: what becomes of the two switches is only traced.
TEST_F(RadioSwitchTest, ResetSwitchesOnThroughTheCurrentClientHandle)
{
    const HANDLE before = ManagerInternals::Client();
    HANDLE other = nullptr;
    DWORD negotiated = 0;
    ASSERT_EQ(0u, computer().wlan().WlanOpenHandle(2, nullptr, &negotiated, &other));
    FailWhen(
        [&](const Call& call) -> std::optional<unsigned long>
        {
            if (call.operation == "Sleep")
                ManagerInternals::Client() = other;
            return std::nullopt;
        });
    EXPECT_EQ(0, manager().ResetWiFiRadio(&kAdapterA));
    EXPECT_EQ(2u, callCount("WlanSetInterface"));
    EXPECT_NE(call("WlanSetInterface", 1)["client"], call("WlanSetInterface", 2)["client"]);
    EXPECT_EQ(0u, computer().wlan().WlanCloseHandle(other, nullptr));
    ManagerInternals::Client() = before;
}

TEST_F(RadioSwitchTest, EveryWayForResetToFail)
{
    const auto local = TraceBuffer::local;
    CheckFailures(*this, {
                             {"ResetWiFiRadio", Reset, "WlanOpenHandle", -1, {kOpenFailed}, local},
                             {.method = "ResetWiFiRadio, on refused",
                              .call = Reset,
                              .failingOperation = "WlanSetInterface",
                              .expected = 0,
                              .traced = {"set radio off OK", kSetFailed},
                              .buffer = local,
                              .fromCall = 2},
                             {"ResetWiFiRadio, both refused",
                              Reset,
                              "WlanSetInterface",
                              0,
                              {"set radio failed!err is %u", kSetFailed},
                              local},
                         });
}

TEST_F(RadioSwitchTest, ResetGoesOnAfterARefusedSwitch)
{
    FailOn("WlanSetInterface", 1, 1, 1);
    EXPECT_EQ(0, manager().ResetWiFiRadio(&kAdapterA));
    EXPECT_THAT(callLines(), ElementsAre(kSetOff, "Sleep(milliseconds=500)", kSetOn));
    EXPECT_THAT(traced(), ElementsAre("set radio failed!err is 1", "set radio on OK"));
}

TEST_F(RadioSwitchTest, ResetWithoutAClientHandleSwitchesNothing)
{
    ForgetClient();
    FailOn("WlanOpenHandle", 1722);
    EXPECT_EQ(-1, manager().ResetWiFiRadio(&kAdapterA));
    EXPECT_THAT(calls(), ElementsAre("WlanOpenHandle"));
}

// --- All ---

TEST_F(RadioSwitchTest, AnInterfaceThatIsNoneIsTheServicesToRefuse)
{
    for (const GUID* none : {&kNoAdapter, static_cast<const GUID*>(nullptr)})
    {
        EXPECT_EQ(-4, manager().RadioTurnOn(none));
        EXPECT_EQ(-4, manager().TurnOnSoftwareRadio(none));
        EXPECT_EQ(-4, manager().RadioTurnOff(none));
        EXPECT_EQ(0, manager().ResetWiFiRadio(none));
    }
}

} // namespace calvix::test::radio_switch_test
