// Computers with which something is not right, and how the methods say so. Each test is for the scenario of its name.

#include "end_to_end/host.h"

#include <gtest/gtest.h>

#include <vector>

namespace calvix::test::end_to_end_trouble_test
{
namespace
{

// scenarios/service-stopped.json. Wine has no service of this name either, so that CheckAutoConfig can start none.
TEST(ServiceStopped, NoClientCanBeOpened)
{
    std::vector<WLAN_INTERFACE_INFO> adapters;
    Manager().CheckAutoConfig();
    EXPECT_EQ(Manager().GetWiFiAdapterCount(), -2);
    EXPECT_EQ(Manager().GetWlanInterface(&adapters), -1);
    EXPECT_EQ(Manager().Rescan(), -1);
    const GUID any{};
    unsigned long error = 0;
    EXPECT_EQ(Manager().Rescan(&any, error), -1);
    EXPECT_EQ(error, static_cast<unsigned long>(ERROR_SERVICE_NOT_ACTIVE));
}

// scenarios/consent-denied.json.
TEST(ConsentDenied, WhatWouldRevealTheLocationIsRefused)
{
    const GUID adapter = FirstAdapter();
    EXPECT_EQ(Manager().GetWiFiAdapterCount(), 1);
    EXPECT_TRUE(Manager().GetWlanIsLink(&adapter));
    EXPECT_EQ(Manager().GetAvailableNetworkCount(&adapter), -5);
    EXPECT_EQ(Manager().GetNetworkBssCount(), -5);
    unsigned long error = 0;
    EXPECT_EQ(Manager().Rescan(&adapter, error), -4);
    EXPECT_EQ(error, static_cast<unsigned long>(ERROR_ACCESS_DENIED));
    WLAN_CONNECTION_ATTRIBUTES attributes{};
    EXPECT_EQ(Manager().GetCurrentConnection(&adapter, &attributes), -4);
    EXPECT_EQ(Manager().GetProfileCount(&adapter), 1) << "profiles do not reveal the location";
}

// scenarios/no-adapter.json.
TEST(NoAdapter, ThereIsNothingToAsk)
{
    std::vector<WLAN_INTERFACE_INFO> adapters;
    EXPECT_EQ(Manager().GetWiFiAdapterCount(), 0);
    EXPECT_EQ(Manager().GetWlanInterface(&adapters), -3);
    EXPECT_EQ(Manager().Rescan(), -3);
    EXPECT_EQ(Manager().GetNetworkBssCount(), -4);
    const GUID any{};
    EXPECT_EQ(Manager().GetWlanStatus(&any), -4);
}

// scenarios/radio-off.json: the switch on the case.
TEST(RadioOff, NoProgramCanSwitchItOn)
{
    const GUID adapter = FirstAdapter();
    EXPECT_EQ(Manager().PhyRadioIsOn2(&adapter), 0);
    EXPECT_EQ(Manager().RadioTurnOn(&adapter), 0);
    unsigned int software = 0;
    unsigned int hardware = 0;
    EXPECT_EQ(Manager().PhyRadioIsOn2(&adapter, software, hardware), 0);
    EXPECT_EQ(software, static_cast<unsigned int>(dot11_radio_state_on));
    EXPECT_EQ(hardware, static_cast<unsigned int>(dot11_radio_state_off));
    char profile[] = "Reading Room";
    EXPECT_EQ(static_cast<unsigned int>(Manager().LinkProfile(&adapter, profile)), 0x80342002u);
}

// A scenario file that is not there.
TEST(NoScenario, MethodsReportAClientThatCannotBeOpened)
{
    EXPECT_EQ(Manager().GetWiFiAdapterCount(), -2);
    const GUID any{};
    unsigned long error = 0;
    EXPECT_EQ(Manager().Rescan(&any, error), -1);
    EXPECT_EQ(error, static_cast<unsigned long>(ERROR_INVALID_DATA));
}

} // namespace
} // namespace calvix::test::end_to_end_trouble_test
