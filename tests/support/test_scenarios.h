#pragma once

#include "simulation/scenario.h"

#include <calvix/platform_records.h>

#include <algorithm>
#include <cstring>
#include <string>

namespace calvix::test
{

/// The scenarios that the tests of the library play in.
///
/// RichScenario: two adapters in one airspace.
///
///   adapter  PHYs                profiles in preference order                              connection
///   A        0 HT, 1 VHT, 2 HE   HomeNet, OfficeNet, HiddenNet, AdHocNet, GoneNet          HomeNet, its 2.4 GHz AP
///   B        0 HT                CafeNet                                                   none
///
///   network    profile mode         access points (channel, dBm)                           security
///   HomeNet    A: auto              2.4 GHz 6, -50; 5 GHz 36, -62; 6 GHz 1, -70            WPA2-PSK, AES
///   OfficeNet  A: manual            5 GHz 149, -65                                         WPA2-PSK, AES
///   HiddenNet  A: auto, hidden      2.4 GHz 11, -68, beacons carry no SSID                 WPA2-PSK, AES
///   AdHocNet   A: manual            2.4 GHz 3, -80, independent BSS                        open
///   GoneNet    A: auto              not on the air                                         WPA2-PSK, AES
///   HomeNet5G  none                 5 GHz 44, -58; its SSID begins with HomeNet's          WPA3-SAE, AES
///   CafeNet    B: manual            2.4 GHz 1, -75                                         open

inline constexpr GUID kAdapterA = {0xA0000001, 0x0001, 0x4001, {0x80, 0x01, 0, 0, 0, 0, 0, 0x0A}};
inline constexpr GUID kAdapterB = {0xB0000002, 0x0002, 0x4002, {0x80, 0x02, 0, 0, 0, 0, 0, 0x0B}};
/// No adapter has this one.
inline constexpr GUID kNoAdapter = {0xC0000003, 0x0003, 0x4003, {0x80, 0x03, 0, 0, 0, 0, 0, 0x0C}};

inline constexpr const char* kAdapterAText = "{A0000001-0001-4001-8001-00000000000A}";
inline constexpr const char* kAdapterBText = "{B0000002-0002-4002-8002-00000000000B}";
inline constexpr const wchar_t* kAdapterADescription = L"Wireless Adapter A";
inline constexpr const wchar_t* kAdapterBDescription = L"Wireless Adapter B";

inline constexpr simulation::MacAddress kHomeNet24 = {0x02, 0x11, 0x00, 0x00, 0x24, 0x06};
inline constexpr simulation::MacAddress kHomeNet5 = {0x02, 0x11, 0x00, 0x00, 0x50, 0x24};
inline constexpr simulation::MacAddress kHomeNet6 = {0x02, 0x11, 0x00, 0x00, 0x60, 0x01};
inline constexpr simulation::MacAddress kOfficeNet = {0x02, 0x22, 0x00, 0x00, 0x50, 0x95};
inline constexpr simulation::MacAddress kHiddenNet = {0x02, 0x33, 0x00, 0x00, 0x24, 0x0B};
inline constexpr simulation::MacAddress kAdHocNet = {0x02, 0x44, 0x00, 0x00, 0x24, 0x03};
inline constexpr simulation::MacAddress kHomeNet5G = {0x02, 0x55, 0x00, 0x00, 0x50, 0x2C};
inline constexpr simulation::MacAddress kCafeNet = {0x02, 0x66, 0x00, 0x00, 0x24, 0x01};

simulation::Scenario RichScenario();

/// RichScenario with a disconnected adapter A.
simulation::Scenario DisconnectedScenario();

/// The adapters of RichScenario, connected to nothing and hearing nothing.
simulation::Scenario SilentScenario();

/// RichScenario's airspace and no adapter.
simulation::Scenario NoAdapterScenario();

/// RichScenario without any stored profile, hence without a connection.
simulation::Scenario NoProfileScenario();

/// RichScenario on a computer with this narrow code page.
simulation::Scenario ScenarioInCodePage(std::uint32_t codePage);

/// The scenario with what the methods ask beside the radio: power, programs, processes, an answer of the first adapter's
/// driver. Listing the power schemes fails, or GetPowerScheme would never end.
simulation::Scenario Furnished(simulation::Scenario scenario);

/// Building blocks for further scenarios.
simulation::AccessPoint MakeAccessPoint(const std::string& ssid,
                                        const simulation::MacAddress& bssid,
                                        std::uint32_t frequencyKhz,
                                        std::int32_t rssi);
simulation::StoredProfile MakeProfile(const std::string& name, const std::string& mode = "auto");

inline DOT11_SSID MakeSsid(const std::string& bytes)
{
    DOT11_SSID ssid{};
    ssid.uSSIDLength = static_cast<ULONG>(bytes.size());
    std::memcpy(ssid.ucSSID, bytes.data(), (std::min)(bytes.size(), sizeof ssid.ucSSID));
    return ssid;
}

} // namespace calvix::test
