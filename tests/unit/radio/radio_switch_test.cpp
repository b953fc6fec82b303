#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/call_lines.h"

namespace calvix::test::radio_switch_test
{

using simulation::RadioSwitch;
using ::testing::ElementsAre;
using namespace std::chrono_literals;

namespace
{

constexpr unsigned long kUnseen = 77;

std::string SetLine(int software)
{
    return CallForA("WlanSetInterface", "opcode=radio_state, dataSize=sizeof(WLAN_PHY_RADIO_STATE), "
                                        "data={phyIndex=0, software=" +
                                            std::to_string(software) + "}, reserved=null");
}

const std::string kSetOn = SetLine(1);
const std::string kSetOff = SetLine(2);

class RadioSwitchTest : public LibraryTest
{
public:
    simulation::PhyDescription Phy(std::size_t index) { return computer().Snapshot().adapters[0].phys[index]; }
};

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
    ExpectSilence();
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
    const EditedAnswers altered({.set = [&asked](WLAN_INTF_OPCODE opcode, DWORD size, const void* data)
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

TEST_F(RadioSwitchTest, TurnOnTellsItsError)
{
    const struct
    {
        const char* operation;
        int code;
        const char* traced;
    } rows[] = {{"WlanSetInterface", -4, "set state failed!err is 2150899714"},
                {"WlanOpenHandle", -1, "WlanOpenHandle failed with error: 2150899714"}};
    for (const auto& row : rows)
    {
        ForgetClient();
        FailOn(row.operation, 0x80342002);
        unsigned long error = kUnseen;
        EXPECT_EQ(row.code, manager().TurnOnSoftwareRadio(&kAdapterA, error));
        EXPECT_EQ(0x80342002u, error);
        EXPECT_THAT(traced(), ElementsAre(row.traced));
        EXPECT_EQ(row.traced, sharedTrace());
    }
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

TEST_F(RadioSwitchTest, ResetGoesOnAfterARefusedSwitch)
{
    FailOn("WlanSetInterface", 1, 1, 1);
    EXPECT_EQ(0, manager().ResetWiFiRadio(&kAdapterA));
    EXPECT_THAT(callLines(), ElementsAre(kSetOff, "Sleep(milliseconds=500)", kSetOn));
    EXPECT_THAT(traced(), ElementsAre("set radio failed!err is 1", "set radio on OK"));
}

} // namespace calvix::test::radio_switch_test
