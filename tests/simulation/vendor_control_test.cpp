// Requests to the driver, security settings and the service's own parameters.
#include "service_fixture.h"

namespace calvix::simulation::vendor_control_test
{

class VendorControl : public ServiceTest
{
protected:
    VendorControl()
    {
        scenario.adapters[0].ihv[{0x01, 0xFF}] = {{0xA0, 0xB1, 0xC2}, 0};
        scenario.adapters[0].ihv[{}] = {{0x7F}, 0};
        scenario.adapters[0].ihv[{0x02}] = {{}, 31};
    }

    void SetUp() override { Start(); }

    /// Sends the request and gets the answer in the same buffer, which has room for `capacity` bytes.
    DWORD Ask(Bytes& buffer, std::size_t capacity, WLAN_IHV_CONTROL_TYPE type = wlan_ihv_control_type_driver)
    {
        const DWORD requestSize = static_cast<DWORD>(buffer.size());
        buffer.resize(capacity, 0xEE);
        return Wlan().WlanIhvControl(client, &first, type, requestSize, buffer.data(), static_cast<DWORD>(capacity),
                                     buffer.data(), &returned);
    }

    DWORD returned = 99;
};

TEST_F(VendorControl, TheAnswerTakesTheRequestsPlace)
{
    Bytes buffer{0x01, 0xFF};
    EXPECT_EQ(Ask(buffer, 4), ERROR_SUCCESS);
    EXPECT_EQ(returned, 3u);
    EXPECT_EQ(buffer, (Bytes{0xA0, 0xB1, 0xC2, 0xEE}));
}

TEST_F(VendorControl, ARequestMayBeEmpty)
{
    Bytes buffer;
    EXPECT_EQ(Ask(buffer, 1), ERROR_SUCCESS);
    EXPECT_EQ(returned, 1u);
    EXPECT_EQ(buffer, Bytes{0x7F});
}

TEST_F(VendorControl, FailsAsTheScriptSaysAndWhereItSaysNothing)
{
    Bytes buffer{0x02};
    EXPECT_EQ(Ask(buffer, 8), 31u);
    buffer = {0x03};
    EXPECT_EQ(Ask(buffer, 8), ERROR_NOT_SUPPORTED);
    buffer = {0x01, 0xFF};
    EXPECT_EQ(Ask(buffer, 8, wlan_ihv_control_type_service), ERROR_NOT_SUPPORTED);
    EXPECT_EQ(returned, 99u);
}

TEST_F(VendorControl, AnAnswerThatDoesNotFitIsNotGiven)
{
    Bytes buffer{0x01, 0xFF};
    EXPECT_EQ(Ask(buffer, 2), ERROR_INSUFFICIENT_BUFFER);
    EXPECT_EQ(buffer, (Bytes{0x01, 0xFF}));
}

TEST_F(VendorControl, ASizeNeedsABuffer)
{
    std::uint8_t byte = 0;
    const auto type = wlan_ihv_control_type_driver;
    EXPECT_EQ(Wlan().WlanIhvControl(client, &first, type, 1, nullptr, 1, &byte, &returned), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Wlan().WlanIhvControl(client, &first, type, 1, &byte, 1, nullptr, &returned), ERROR_INVALID_PARAMETER);
}

using SecurityDescriptors = ServiceTest;

TEST_F(SecurityDescriptors, AreRememberedByObject)
{
    Start();
    EXPECT_EQ(Wlan().WlanSetSecuritySettings(client, wlan_secure_ihv_control, L"D:(A;;CC;;;BU)"), ERROR_SUCCESS);
    EXPECT_EQ(Wlan().WlanSetSecuritySettings(client, wlan_secure_ihv_control, L"D:(A;;CC;;;BA)"), ERROR_SUCCESS);
    EXPECT_EQ(computer->SecuritySettings(wlan_secure_ihv_control), L"D:(A;;CC;;;BA)");
    EXPECT_EQ(computer->SecuritySettings(wlan_secure_bss_type), L"");
}

TEST_F(SecurityDescriptors, AreForAdministratorsToSet)
{
    scenario.administrator = false;
    Start();
    EXPECT_EQ(Wlan().WlanSetSecuritySettings(client, wlan_secure_ihv_control, L"D:"), ERROR_ACCESS_DENIED);
    EXPECT_EQ(computer->SecuritySettings(wlan_secure_ihv_control), L"");
    computer->SetAdministrator(true);
    EXPECT_EQ(Wlan().WlanSetSecuritySettings(client, wlan_secure_ihv_control, L"D:"), ERROR_SUCCESS);
}

TEST_F(SecurityDescriptors, RefusedOnes)
{
    Start();
    const auto unknown = static_cast<WLAN_SECURABLE_OBJECT>(15);
    EXPECT_EQ(Wlan().WlanSetSecuritySettings(client, unknown, L"D:"), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Wlan().WlanSetSecuritySettings(client, wlan_secure_ihv_control, L""), ERROR_INVALID_PARAMETER);
}

using ServiceParameters = ServiceTest;

TEST_F(ServiceParameters, ThePowerSettingIsTheComputers)
{
    scenario.powerSetting = 2;
    Start();
    EXPECT_EQ(QueryService<WLAN_POWER_SETTING>(wlan_autoconf_opcode_power_setting), wlan_power_setting_medium_saving);
    computer->SetPowerSetting(wlan_power_setting_low_saving);
    EXPECT_EQ(QueryService<WLAN_POWER_SETTING>(wlan_autoconf_opcode_power_setting), wlan_power_setting_low_saving);
}

TEST_F(ServiceParameters, OthersHaveTheirOrdinaryValues)
{
    Start();
    EXPECT_EQ(QueryService<BOOL>(wlan_autoconf_opcode_show_denied_networks), FALSE);
    EXPECT_EQ(QueryService<BOOL>(wlan_autoconf_opcode_allow_explicit_creds), TRUE);
    EXPECT_EQ(QueryService<ULONG>(wlan_autoconf_opcode_block_period), 0u);
}

TEST_F(ServiceParameters, RefusedQuestions)
{
    Start();
    PVOID data = nullptr;
    EXPECT_EQ(Wlan().WlanQueryAutoConfigParameter(client, wlan_autoconf_opcode_power_setting, nullptr, nullptr, &data,
                                                  nullptr),
              ERROR_INVALID_PARAMETER);
    DWORD size = 0;
    EXPECT_EQ(Wlan().WlanQueryAutoConfigParameter(client, wlan_autoconf_opcode_end, nullptr, &size, &data, nullptr),
              ERROR_INVALID_PARAMETER);
}

} // namespace calvix::simulation::vendor_control_test
