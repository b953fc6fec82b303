#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/call_lines.h"

#include <cstring>

namespace calvix::test::interface_settings_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr unsigned long kUnseen = 77;

const std::string kSettingQuery = "WlanQueryAutoConfigParameter(client=1, opcode=power_setting, reserved=null, "
                                  "dataSize=sizeof(WLAN_POWER_SETTING), data=non-null, valueType=null)";

class InterfaceSettingsTest : public LibraryTest
{
public:
    /// The service's answer to the question whether a behaviour is on.
    bool IsEnabled(WLAN_INTF_OPCODE behaviour)
    {
        DWORD size = 0;
        PVOID data = nullptr;
        EXPECT_EQ(0u, computer().wlan().WlanQueryInterface(ManagerInternals::Client(), &kAdapterA, behaviour, nullptr,
                                                           &size, &data, nullptr));
        const bool enabled = *static_cast<BOOL*>(data) != FALSE;
        computer().wlan().WlanFreeMemory(data);
        return enabled;
    }

    void Disable(WLAN_INTF_OPCODE behaviour)
    {
        const BOOL off = FALSE;
        ASSERT_EQ(0u, computer().wlan().WlanSetInterface(ManagerInternals::Client(), &kAdapterA, behaviour, sizeof(off),
                                                         &off, nullptr));
        ASSERT_FALSE(IsEnabled(behaviour));
    }
};

std::string SetLine(const char* opcode)
{
    return CallForA("WlanSetInterface",
                    std::string("opcode=") + opcode + ", dataSize=sizeof(BOOL), data=1, reserved=null");
}

} // namespace

// --- EnableAutoCfg, EnableBackgroundScan ---

TEST_F(InterfaceSettingsTest, BehavioursAreSwitchedOn)
{
    const struct
    {
        WLAN_INTF_OPCODE behaviour;
        const char* opcode;
        decltype(&CWirelessManage::EnableAutoCfg) enable;
    } rows[] = {
        {wlan_intf_opcode_autoconf_enabled, "autoconf_enabled", &CWirelessManage::EnableAutoCfg},
        {wlan_intf_opcode_background_scan_enabled, "background_scan_enabled", &CWirelessManage::EnableBackgroundScan}};
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.opcode);
        Disable(row.behaviour);
        ClearCalls();
        for (int time = 1; time <= 2; ++time) // once more changes nothing
        {
            EXPECT_EQ(0, (manager().*row.enable)(&kAdapterA));
            EXPECT_TRUE(IsEnabled(row.behaviour));
        }
        EXPECT_THAT(callLines(), ElementsAre(SetLine(row.opcode), SetLine(row.opcode)));
        ExpectSilence();
    }
}

// What is handed over is 4 bytes with the value 1 in either world.
TEST_F(InterfaceSettingsTest, TheSettingIsFourBytes)
{
    int seen = 0;
    const EditedAnswers altered({.set = [&seen](WLAN_INTF_OPCODE, DWORD size, const void* data)
                                 {
                                     ASSERT_EQ(4u, size);
                                     std::uint32_t value = 0;
                                     std::memcpy(&value, data, sizeof(value));
                                     EXPECT_EQ(1u, value);
                                     ++seen;
                                 }});
    manager().EnableAutoCfg(&kAdapterA);
    manager().EnableBackgroundScan(&kAdapterA);
    EXPECT_EQ(2, seen);
}

// --- GetPowerSetting, SetPowerSetting ---

TEST_F(InterfaceSettingsTest, ThePowerSettingIsTheServices)
{
    for (unsigned setting = 0; setting <= 4; ++setting)
    {
        simulation::Scenario scenario = RichScenario();
        scenario.powerSetting = setting;
        UseScenario(scenario);
        unsigned long level = kUnseen;
        EXPECT_EQ(0, manager().GetPowerSetting(level));
        EXPECT_EQ(setting, level);
        EXPECT_THAT(callLines(), ElementsAre(kSettingQuery, kRelease));
        ExpectSilence();
    }
    EXPECT_EQ(4u, sizeof(WLAN_POWER_SETTING));
}

TEST_F(InterfaceSettingsTest, SettingThePowerLevelDoesNothing)
{
    for (const unsigned long level : {0UL, 3UL, 4UL, 99UL})
        EXPECT_EQ(0, manager().SetPowerSetting(level));
    EXPECT_THAT(timeline(), IsEmpty());
    EXPECT_TRUE(sharedTraceUntouched());
    unsigned long level = kUnseen;
    manager().GetPowerSetting(level);
    EXPECT_EQ(0u, level);
}

// --- GetPowerSettingStr ---

TEST_F(InterfaceSettingsTest, PowerLevelsHaveThePlatformsNames)
{
    struct
    {
        unsigned long level;
        const char* text;
    } const rows[] = {{0, "wlan_power_setting_no_saving"},     {1, "wlan_power_setting_low_saving"},
                      {2, "wlan_power_setting_medium_saving"}, {3, "wlan_power_setting_maximum_saving"},
                      {4, "wlan_power_setting_invalid"},       {5, "wlan_power_setting_invalid"},
                      {99, "wlan_power_setting_invalid"},      {0xFFFFFFFF, "wlan_power_setting_invalid"}};
    for (const auto& row : rows)
    {
        char* const text = manager().GetPowerSettingStr(row.level);
        EXPECT_STREQ(row.text, text) << row.level;
        EXPECT_EQ(ManagerInternals::PowerSetting(manager()), text) << "the text is the object's";
    }
    EXPECT_THAT(timeline(), IsEmpty());
}

} // namespace calvix::test::interface_settings_test
