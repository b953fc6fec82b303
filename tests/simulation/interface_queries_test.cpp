#include "service_fixture.h"

namespace calvix::simulation::interface_queries_test
{

using InterfaceQueries = ServiceTest;

TEST_F(InterfaceQueries, InterfacesAreEnumeratedInTheirOrder)
{
    scenario.adapters[0].description = "Adapter \xc3\xa9";
    Start();
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    ASSERT_EQ(Wlan().WlanEnumInterfaces(client, nullptr, &list), ERROR_SUCCESS);
    ASSERT_EQ(list->dwNumberOfItems, 2u);
    EXPECT_TRUE(list->InterfaceInfo[0].InterfaceGuid == first);
    EXPECT_STREQ(list->InterfaceInfo[0].strInterfaceDescription, L"Adapter \u00e9");
    EXPECT_EQ(list->InterfaceInfo[0].isState, wlan_interface_state_disconnected);
    EXPECT_TRUE(list->InterfaceInfo[1].InterfaceGuid == second);
    Wlan().WlanFreeMemory(list);
}

TEST_F(InterfaceQueries, AComputerMayHaveNoAdapter)
{
    scenario.adapters.clear();
    Start();
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    ASSERT_EQ(Wlan().WlanEnumInterfaces(client, nullptr, &list), ERROR_SUCCESS);
    EXPECT_EQ(list->dwNumberOfItems, 0u);
    Wlan().WlanFreeMemory(list);
}

TEST_F(InterfaceQueries, RadioStateHasEverySwitch)
{
    scenario.adapters[0].phys[0].hardware = RadioSwitch::off;
    scenario.adapters[0].phys[1].software = RadioSwitch::off;
    Start();
    const auto radio = Query<WLAN_RADIO_STATE>(wlan_intf_opcode_radio_state).value();
    ASSERT_EQ(radio.dwNumberOfPhys, 2u);
    EXPECT_EQ(radio.PhyRadioState[0].dwPhyIndex, 0u);
    EXPECT_EQ(radio.PhyRadioState[0].dot11SoftwareRadioState, dot11_radio_state_on);
    EXPECT_EQ(radio.PhyRadioState[0].dot11HardwareRadioState, dot11_radio_state_off);
    EXPECT_EQ(radio.PhyRadioState[1].dwPhyIndex, 1u);
    EXPECT_EQ(radio.PhyRadioState[1].dot11SoftwareRadioState, dot11_radio_state_off);
    EXPECT_EQ(radio.PhyRadioState[1].dot11HardwareRadioState, dot11_radio_state_on);
}

TEST_F(InterfaceQueries, OnlyTheSoftwareSwitchIsSet)
{
    scenario.adapters[0].phys[0].hardware = RadioSwitch::off;
    Start();
    EXPECT_EQ(SetSoftwareRadio(0, dot11_radio_state_off), ERROR_SUCCESS);
    auto radio = Query<WLAN_RADIO_STATE>(wlan_intf_opcode_radio_state).value();
    EXPECT_EQ(radio.PhyRadioState[0].dot11SoftwareRadioState, dot11_radio_state_off);
    EXPECT_EQ(SetSoftwareRadio(0, dot11_radio_state_on), ERROR_SUCCESS);
    radio = Query<WLAN_RADIO_STATE>(wlan_intf_opcode_radio_state).value();
    EXPECT_EQ(radio.PhyRadioState[0].dot11SoftwareRadioState, dot11_radio_state_on);
    EXPECT_EQ(radio.PhyRadioState[0].dot11HardwareRadioState, dot11_radio_state_off);
}

TEST_F(InterfaceQueries, AnAnswerNeedsAPlaceForItsSize)
{
    Start();
    PVOID data = nullptr;
    const auto opcode = wlan_intf_opcode_interface_state;
    EXPECT_EQ(Wlan().WlanQueryInterface(client, &first, opcode, nullptr, nullptr, &data, nullptr),
              ERROR_INVALID_PARAMETER);
    EXPECT_EQ(data, nullptr);
}

TEST_F(InterfaceQueries, RadioSettingsThatMakeNoSense)
{
    Start();
    EXPECT_EQ(SetSoftwareRadio(2, dot11_radio_state_on), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(SetSoftwareRadio(0, dot11_radio_state_unknown), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Set(wlan_intf_opcode_radio_state, BOOL{TRUE}), ERROR_INVALID_PARAMETER);
}

TEST_F(InterfaceQueries, SettingsThatCannotBeSet)
{
    Start();
    EXPECT_EQ(Set(wlan_intf_opcode_statistics, BOOL{TRUE}), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Set(wlan_intf_opcode_autoconf_enabled, 'x'), ERROR_INVALID_PARAMETER);
}

TEST_F(InterfaceQueries, StatisticsCountUnicastFrames)
{
    Start();
    DWORD size = 0;
    PVOID data = nullptr;
    ASSERT_EQ(Wlan().WlanQueryInterface(client, &first, wlan_intf_opcode_statistics, nullptr, &size, &data, nullptr),
              ERROR_SUCCESS);
    const auto& statistics = *static_cast<const WLAN_STATISTICS*>(data);
    EXPECT_EQ(size, sizeof(WLAN_STATISTICS) + sizeof(WLAN_PHY_FRAME_STATISTICS)) << "for two PHYs";
    EXPECT_EQ(statistics.MacUcastCounters.ullTransmittedFrameCount, 1234u);
    EXPECT_EQ(statistics.MacUcastCounters.ullReceivedFrameCount, 5678u);
    EXPECT_EQ(statistics.dwNumberOfPhys, 2u);
    Wlan().WlanFreeMemory(data);
}

TEST_F(InterfaceQueries, WhatSpeaksOfAConnectionNeedsOne)
{
    Start();
    for (const auto opcode :
         {wlan_intf_opcode_current_connection, wlan_intf_opcode_rssi, wlan_intf_opcode_channel_number})
        EXPECT_EQ(ErrorOf(opcode), ERROR_INVALID_STATE) << opcode;
}

TEST_F(InterfaceQueries, SignalStrengthNeedsNoLocationConsent)
{
    scenario.adapters[0].connection = simulation::Connection{"HomeNet", std::nullopt};
    scenario.locationConsent = false;
    Start();
    EXPECT_EQ(Query<std::int32_t>(wlan_intf_opcode_rssi), -50);
    EXPECT_EQ(ErrorOf(wlan_intf_opcode_current_connection), ERROR_ACCESS_DENIED);
}

TEST_F(InterfaceQueries, TheLinkHasTheRatesOfTheScenario)
{
    scenario.adapters[0].connection = simulation::Connection{"HomeNet", std::nullopt, 2401900, 117000};
    Start();
    const WLAN_ASSOCIATION_ATTRIBUTES link = Connection()->wlanAssociationAttributes;
    EXPECT_EQ(link.ulRxRate, 2401900u);
    EXPECT_EQ(link.ulTxRate, 117000u);
    EXPECT_EQ(computer->Snapshot().adapters[0].connection->receiveKbps, 2401900u);
}

TEST_F(InterfaceQueries, ChannelsHaveTheirCustomaryNumbers)
{
    scenario.accessPoints.resize(1);
    scenario.adapters[0].connection = simulation::Connection{"HomeNet", std::nullopt};
    const struct
    {
        std::uint32_t frequencyKhz;
        ULONG channel;
    } cases[] = {{2412000, 1},   {2472000, 13}, {2484000, 14}, {5180000, 36}, {5825000, 165},
                 {4920000, 184}, {5935000, 2},  {5955000, 1},  {6415000, 93}};
    for (const auto& each : cases)
    {
        scenario.accessPoints[0].frequencyKhz = each.frequencyKhz;
        Start();
        EXPECT_EQ(Query<ULONG>(wlan_intf_opcode_channel_number), each.channel) << each.frequencyKhz;
    }
}

TEST_F(InterfaceQueries, ShowWhetherTheValueCanBeSet)
{
    Start();
    const auto typeOf = [&](WLAN_INTF_OPCODE opcode)
    {
        DWORD size = 0;
        PVOID data = nullptr;
        WLAN_OPCODE_VALUE_TYPE type = wlan_opcode_value_type_invalid;
        EXPECT_EQ(Wlan().WlanQueryInterface(client, &first, opcode, nullptr, &size, &data, &type), ERROR_SUCCESS);
        Wlan().WlanFreeMemory(data);
        return type;
    };
    EXPECT_EQ(typeOf(wlan_intf_opcode_radio_state), wlan_opcode_value_type_set_by_user);
    EXPECT_EQ(typeOf(wlan_intf_opcode_interface_state), wlan_opcode_value_type_query_only);
}

TEST_F(InterfaceQueries, SafeModeIsSupportedAndUnknownThingsAreNot)
{
    Start();
    EXPECT_EQ(Query<BOOL>(wlan_intf_opcode_supported_safe_mode), TRUE);
    EXPECT_EQ(ErrorOf(wlan_intf_opcode_ihv_start), ERROR_NOT_SUPPORTED);
}

} // namespace calvix::simulation::interface_queries_test
