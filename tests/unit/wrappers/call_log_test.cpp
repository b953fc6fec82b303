#include "support/test_scenarios.h"
#include "unit/wrappers/fake_platform.h"
#include "wrappers/call_log.h"
#include "wrappers/intercepted_platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>

namespace calvix::test::call_log_test
{

using ::testing::ElementsAre;

namespace
{

/// A log between a test and nothing.
class CallLogTest : public ::testing::Test
{
protected:
    /// The line of the only call since the last time.
    std::string Line()
    {
        const std::vector<std::string> lines = m_log.Lines();
        m_log.Clear();
        EXPECT_EQ(1u, lines.size());
        return lines.empty() ? std::string() : lines.back();
    }

    platform::WlanService& wlan() { return m_layer.wlan(); }

    FakePlatform m_inner;
    wrappers::CallLog m_log;
    wrappers::InterceptedPlatform m_layer{m_inner, m_log};
    int m_target = 0;
    HANDLE m_client = &m_target;
};

} // namespace

TEST_F(CallLogTest, NamesOperationsAndArguments)
{
    wlan().WlanScan(m_client, &kAdapterA, nullptr, nullptr, nullptr);
    EXPECT_EQ("WlanScan(client=1, interface={A0000001-0001-4001-8001-00000000000A}, ssid=null, ieData=null, "
              "reserved=null)",
              Line());
    wlan().WlanFreeMemory(nullptr);
    EXPECT_EQ("WlanFreeMemory(memory=null)", Line());
    m_layer.errors().GetLastError();
    EXPECT_EQ("GetLastError()", Line());
}

TEST_F(CallLogTest, KeepsTheOrderAndCounts)
{
    wlan().WlanFreeMemory(&m_target);
    wlan().WlanCloseHandle(m_client, nullptr);
    wlan().WlanFreeMemory(&m_target);
    EXPECT_THAT(m_log.Operations(), ElementsAre("WlanFreeMemory", "WlanCloseHandle", "WlanFreeMemory"));
    EXPECT_EQ(2u, m_log.Count("WlanFreeMemory"));
    EXPECT_EQ(0u, m_log.Count("WlanScan"));
    EXPECT_EQ("non-null", m_log.Calls()[0]["memory"]);
    EXPECT_EQ("", m_log.Calls()[0]["nothing of this name"]);
    m_log.Clear();
    EXPECT_TRUE(m_log.Operations().empty());
}

TEST_F(CallLogTest, NumbersTheHandlesOfEachFamilyInOrderOfAppearance)
{
    int second = 0;
    wlan().WlanCloseHandle(m_client, nullptr);
    wlan().WlanCloseHandle(&second, nullptr);
    wlan().WlanCloseHandle(m_client, nullptr);
    wlan().WlanCloseHandle(nullptr, nullptr);
    m_layer.processes().CloseHandle(&second);
    m_layer.processes().CloseHandle(INVALID_HANDLE_VALUE);
    EXPECT_THAT(m_log.Lines(),
                ElementsAre("WlanCloseHandle(client=1, reserved=null)", "WlanCloseHandle(client=2, reserved=null)",
                            "WlanCloseHandle(client=1, reserved=null)", "WlanCloseHandle(client=null, reserved=null)",
                            "CloseHandle(handle=1)", "CloseHandle(handle=current)"));
}

TEST_F(CallLogTest, QuotesSsidsWithTheirLength)
{
    const auto described = [this](const DOT11_SSID& ssid)
    {
        m_log.Clear();
        wlan().WlanGetNetworkBssList(m_client, nullptr, &ssid, dot11_BSS_type_infrastructure, TRUE, nullptr, nullptr);
        return std::string(m_log.Calls().at(0)["ssid"]);
    };
    EXPECT_EQ("\"HomeNet\"/7", described(MakeSsid("HomeNet")));
    EXPECT_EQ("\"\"/0", described(MakeSsid("")));
    EXPECT_EQ("\"a\\xFF\\x00\\\"\\\\\"/5", described(MakeSsid(std::string("a\xFF\0\"\\", 5))));

    DOT11_SSID tooLong = MakeSsid(std::string(32, 'x'));
    tooLong.uSSIDLength = 64;
    EXPECT_EQ("\"" + std::string(32, 'x') + "\"/64", described(tooLong)) << "never read past the record";

    wlan().WlanGetNetworkBssList(m_client, nullptr, nullptr, dot11_BSS_type_any, FALSE, nullptr, nullptr);
    EXPECT_EQ("any", m_log.Calls().at(1)["bssType"]);
    EXPECT_EQ("false", m_log.Calls().at(1)["securityEnabled"]);
}

TEST_F(CallLogTest, ShowsRecordSizesByName)
{
    DWORD size = sizeof(WLAN_CONNECTION_ATTRIBUTES);
    wlan().WlanQueryInterface(m_client, nullptr, wlan_intf_opcode_current_connection, nullptr, &size, nullptr, nullptr);
    EXPECT_EQ("WlanQueryInterface(client=1, interface=null, opcode=current_connection, reserved=null, "
              "dataSize=sizeof(WLAN_CONNECTION_ATTRIBUTES), data=null, valueType=null)",
              Line());
    size = 3;
    wlan().WlanQueryInterface(m_client, nullptr, wlan_intf_opcode_current_connection, nullptr, &size, nullptr, nullptr);
    EXPECT_THAT(Line(), ::testing::HasSubstr("dataSize=3,"));
    wlan().WlanQueryInterface(m_client, nullptr, static_cast<WLAN_INTF_OPCODE>(0x30000001), nullptr, nullptr, nullptr,
                              nullptr);
    EXPECT_THAT(Line(), ::testing::HasSubstr("opcode=805306369, reserved=null, dataSize=null"));
}

TEST_F(CallLogTest, ShowsWhatAnInterfaceIsSetTo)
{
    WLAN_PHY_RADIO_STATE radio{};
    radio.dwPhyIndex = 2;
    radio.dot11SoftwareRadioState = dot11_radio_state_off;
    wlan().WlanSetInterface(m_client, nullptr, wlan_intf_opcode_radio_state, sizeof radio, &radio, nullptr);
    EXPECT_EQ("WlanSetInterface(client=1, interface=null, opcode=radio_state, dataSize=sizeof(WLAN_PHY_RADIO_STATE), "
              "data={phyIndex=2, software=2}, reserved=null)",
              Line());
    const BOOL enabled = TRUE;
    wlan().WlanSetInterface(m_client, nullptr, wlan_intf_opcode_autoconf_enabled, sizeof enabled, &enabled, nullptr);
    EXPECT_THAT(Line(), ::testing::HasSubstr("opcode=autoconf_enabled, dataSize=sizeof(BOOL), data=1,"));
    const DOT11_BSS_TYPE type = dot11_BSS_type_independent;
    wlan().WlanSetInterface(m_client, nullptr, wlan_intf_opcode_bss_type, sizeof type, &type, nullptr);
    EXPECT_THAT(Line(), ::testing::HasSubstr("data=independent,"));
    wlan().WlanSetInterface(m_client, nullptr, wlan_intf_opcode_bss_type, 1, &type, nullptr);
    EXPECT_THAT(Line(), ::testing::HasSubstr("data=non-null,")) << "never read past the given size";
}

TEST_F(CallLogTest, ShowsConnectionParameters)
{
    DOT11_SSID ssid = MakeSsid("Net");
    struct
    {
        DOT11_BSSID_LIST list;
        UCHAR second[6];
    } bssids{};
    bssids.list.uNumOfEntries = 2;
    const UCHAR addresses[] = {0, 0x11, 0x22, 0x33, 0x44, 0x55, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF};
    std::memcpy(reinterpret_cast<UCHAR*>(&bssids) + offsetof(DOT11_BSSID_LIST, BSSIDs), addresses, sizeof addresses);
    WLAN_CONNECTION_PARAMETERS parameters{};
    parameters.wlanConnectionMode = wlan_connection_mode_profile;
    parameters.strProfile = L"Net \u00E9";
    parameters.dot11BssType = dot11_BSS_type_infrastructure;
    wlan().WlanConnect(m_client, nullptr, &parameters, nullptr);
    EXPECT_EQ("WlanConnect(client=1, interface=null, parameters={mode=profile, profile=\"Net \\u00E9\", ssid=null, "
              "bssids=null, bssType=infrastructure, flags=0}, reserved=null)",
              Line());
    parameters.pDot11Ssid = &ssid;
    parameters.pDesiredBssidList = &bssids.list;
    parameters.wlanConnectionMode = wlan_connection_mode_discovery_secure;
    parameters.dwFlags = 1;
    wlan().WlanConnect(m_client, nullptr, &parameters, nullptr);
    EXPECT_THAT(Line(),
                ::testing::HasSubstr("{mode=discovery_secure, profile=\"Net \\u00E9\", ssid=\"Net\"/3, "
                                     "bssids=[00:11:22:33:44:55 AA:BB:CC:DD:EE:FF], bssType=infrastructure, flags=1}"));
}

TEST_F(CallLogTest, ShowsProfileNamesAndPresetNumbers)
{
    DWORD flags = 4;
    DWORD access = 0x20001;
    wchar_t* xml = nullptr;
    wlan().WlanGetProfile(m_client, nullptr, L"Home\"Net", nullptr, &xml, &flags, &access);
    EXPECT_EQ("WlanGetProfile(client=1, interface=null, name=\"Home\\\"Net\", reserved=null, xml=non-null, flags=4, "
              "grantedAccess=131073)",
              Line());
}

TEST_F(CallLogTest, ShowsTextByItsLength)
{
    m_layer.text().MultiByteToWideChar(0, 8, "abcdef", 3, nullptr, 0);
    EXPECT_EQ("MultiByteToWideChar(codePage=0, flags=8, source=\"abc\", sourceLength=3, destination=null, "
              "destinationLength=0)",
              Line());
    m_layer.text().WideCharToMultiByte(65001, 0, L"abc", -1, nullptr, 0, nullptr, nullptr);
    EXPECT_EQ("WideCharToMultiByte(codePage=65001, flags=0, source=\"abc\", sourceLength=-1, destination=null, "
              "destinationLength=0, defaultCharacter=null, usedDefaultCharacter=null)",
              Line());
}

TEST_F(CallLogTest, ShowsWhatTheComputerIsAskedFor)
{
    DWORD timeout = 3000;
    m_layer.internet().InternetSetOptionA(nullptr, 2, &timeout, sizeof timeout);
    EXPECT_EQ("InternetSetOptionA(internet=null, option=2, buffer=3000, bufferSize=sizeof(DWORD))", Line());

    TOKEN_PRIVILEGES privileges{};
    privileges.PrivilegeCount = 1;
    privileges.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    m_layer.security().AdjustTokenPrivileges(m_client, FALSE, &privileges, 0, nullptr, nullptr);
    EXPECT_EQ("AdjustTokenPrivileges(token=1, disableAll=false, newState={count=1, attributes=2}, previousSize=0, "
              "previous=null, returnLength=null)",
              Line());

    ULONGLONG time = 0;
    m_layer.power().CallNtPowerInformation(LastWakeTime, nullptr, 0, &time, sizeof time);
    EXPECT_EQ("CallNtPowerInformation(level=LastWakeTime, input=null, inputSize=0, output=non-null, "
              "outputSize=sizeof(ULONGLONG))",
              Line());

    wchar_t name[] = L"Scheme";
    m_layer.power().PowerWriteFriendlyName(nullptr, &kAdapterA, nullptr, nullptr, reinterpret_cast<UCHAR*>(name),
                                           sizeof name);
    EXPECT_THAT(Line(), ::testing::HasSubstr("buffer=\"Scheme\""));

    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    char command[] = "run me";
    m_layer.processes().CreateProcessA(nullptr, command, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                                       nullptr);
    EXPECT_THAT(Line(),
                ::testing::AllOf(::testing::HasSubstr("application=null, commandLine=\"run me\""),
                                 ::testing::HasSubstr("startup={size=sizeof(STARTUPINFOA), flags=0, showWindow=0}")));
}

} // namespace calvix::test::call_log_test
