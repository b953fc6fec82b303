/* What the documentation says of arguments that cannot be used: 87 for what is null and must not be, or is reserved and
   must be; 6 for a handle that is not open. */

#include "check.h"

#include <windows.h>
#include <wlanapi.h>

#include <stddef.h>
#include <string.h>

static GUID adapter;
static WLAN_CONNECTION_PARAMETERS parameters;

/* Every operation that takes a client, with nothing else to object to. */
static void CheckHandle(DWORD expected, HANDLE client)
{
    DWORD number = 0;
    PVOID data = NULL;
    BOOL flag = TRUE;
    LPWSTR xml = NULL;
    PWLAN_INTERFACE_INFO_LIST interfaces = NULL;
    PWLAN_AVAILABLE_NETWORK_LIST networks = NULL;
    PWLAN_BSS_LIST points = NULL;
    PWLAN_PROFILE_INFO_LIST profiles = NULL;
    CHECK_ANSWER(expected, WlanCloseHandle(client, NULL));
    CHECK_ANSWER(expected, WlanEnumInterfaces(client, NULL, &interfaces));
    CHECK_ANSWER(expected, WlanScan(client, &adapter, NULL, NULL, NULL));
    CHECK_ANSWER(expected, WlanGetAvailableNetworkList(client, &adapter, 0, NULL, &networks));
    CHECK_ANSWER(expected, WlanGetNetworkBssList(client, &adapter, NULL, dot11_BSS_type_any, FALSE, NULL, &points));
    CHECK_ANSWER(expected,
                 WlanQueryInterface(client, &adapter, wlan_intf_opcode_interface_state, NULL, &number, &data, NULL));
    CHECK_ANSWER(expected,
                 WlanSetInterface(client, &adapter, wlan_intf_opcode_autoconf_enabled, sizeof(flag), &flag, NULL));
    CHECK_ANSWER(expected,
                 WlanQueryAutoConfigParameter(client, wlan_autoconf_opcode_power_setting, NULL, &number, &data, NULL));
    CHECK_ANSWER(expected, WlanGetProfileList(client, &adapter, NULL, &profiles));
    CHECK_ANSWER(expected, WlanGetProfile(client, &adapter, L"Lindenhof", NULL, &xml, NULL, NULL));
    CHECK_ANSWER(expected, WlanSetProfile(client, &adapter, 0, L"<x/>", NULL, TRUE, NULL, &number));
    CHECK_ANSWER(expected, WlanDeleteProfile(client, &adapter, L"Lindenhof", NULL));
    CHECK_ANSWER(expected, WlanSetProfilePosition(client, &adapter, L"Lindenhof", 0, NULL));
    CHECK_ANSWER(expected, WlanConnect(client, &adapter, &parameters, NULL));
    CHECK_ANSWER(expected, WlanDisconnect(client, &adapter, NULL));
    CHECK_ANSWER(expected,
                 WlanRegisterNotification(client, WLAN_NOTIFICATION_SOURCE_NONE, FALSE, NULL, NULL, NULL, NULL));
    CHECK_ANSWER(expected, WlanIhvControl(client, &adapter, wlan_ihv_control_type_driver, 0, NULL, 0, NULL, &number));
    CHECK_ANSWER(expected, WlanSetSecuritySettings(client, wlan_secure_ihv_control, L"D:(A;;GA;;;BA)"));
    CHECK(interfaces == NULL && networks == NULL && points == NULL && profiles == NULL && xml == NULL && data == NULL);
}

static void CheckMissingOutputs(HANDLE client)
{
    DWORD number = 0;
    PVOID data = NULL;
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanEnumInterfaces(client, NULL, NULL));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanGetAvailableNetworkList(client, &adapter, 0, NULL, NULL));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER,
                 WlanGetNetworkBssList(client, &adapter, NULL, dot11_BSS_type_any, FALSE, NULL, NULL));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER,
                 WlanQueryInterface(client, &adapter, wlan_intf_opcode_interface_state, NULL, NULL, &data, NULL));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER,
                 WlanQueryInterface(client, &adapter, wlan_intf_opcode_interface_state, NULL, &number, NULL, NULL));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER,
                 WlanQueryAutoConfigParameter(client, wlan_autoconf_opcode_power_setting, NULL, &number, NULL, NULL));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanGetProfileList(client, &adapter, NULL, NULL));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanGetProfile(client, &adapter, L"Lindenhof", NULL, NULL, NULL, NULL));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanSetProfile(client, &adapter, 0, L"<x/>", NULL, TRUE, NULL, NULL));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER,
                 WlanIhvControl(client, &adapter, wlan_ihv_control_type_driver, 0, NULL, 0, NULL, NULL));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanReasonCodeToString(0, 10, NULL, NULL));
}

static void CheckMissingInputs(HANDLE client)
{
    DWORD number = 0;
    LPWSTR xml = NULL;
    PWLAN_PROFILE_INFO_LIST profiles = NULL;
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanScan(client, NULL, NULL, NULL, NULL));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanGetProfileList(client, NULL, NULL, &profiles));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanGetProfile(client, &adapter, NULL, NULL, &xml, NULL, NULL));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanSetProfile(client, &adapter, 0, NULL, NULL, TRUE, NULL, &number));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanDeleteProfile(client, &adapter, NULL, NULL));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanSetProfilePosition(client, &adapter, NULL, 0, NULL));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanConnect(client, &adapter, NULL, NULL));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanDisconnect(client, NULL, NULL));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER,
                 WlanSetInterface(client, &adapter, wlan_intf_opcode_autoconf_enabled, 4, NULL, NULL));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER,
                 WlanRegisterNotification(client, WLAN_NOTIFICATION_SOURCE_ACM, FALSE, NULL, NULL, NULL, NULL));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanSetSecuritySettings(client, wlan_secure_ihv_control, NULL));
}

static void CheckReserved(HANDLE client)
{
    DWORD version = 0;
    HANDLE other = NULL;
    PWLAN_INTERFACE_INFO_LIST interfaces = NULL;
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanOpenHandle(2, &version, &version, &other));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanEnumInterfaces(client, &version, &interfaces));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanDisconnect(client, &adapter, &version));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanCloseHandle(client, &version));
    CHECK(other == NULL && interfaces == NULL);
}

static void CheckOpening(void)
{
    DWORD version = 0;
    HANDLE client = NULL;
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanOpenHandle(2, NULL, NULL, &client));
    CHECK_ANSWER(ERROR_INVALID_PARAMETER, WlanOpenHandle(2, NULL, &version, NULL));
    CHECK_ANSWER(ERROR_NOT_SUPPORTED, WlanOpenHandle(0, NULL, &version, &client));
    CHECK(client == NULL);
}

/* Neither hurts: what is no block of the library is left alone, and what was freed stays freed. */
static void CheckFreeing(HANDLE client)
{
    int foreign = 0;
    PWLAN_INTERFACE_INFO_LIST interfaces = NULL;
    CHECK_ANSWER(ERROR_SUCCESS, WlanEnumInterfaces(client, NULL, &interfaces));
    if (interfaces != NULL && interfaces->dwNumberOfItems > 0)
    {
        adapter = interfaces->InterfaceInfo[0].InterfaceGuid;
    }
    WlanFreeMemory(interfaces);
    WlanFreeMemory(interfaces);
    WlanFreeMemory(&foreign);
    WlanFreeMemory(NULL);
}

int main(void)
{
    HANDLE client = NULL;
    DWORD version = 0;
    memset(&parameters, 0, sizeof(parameters));
    parameters.strProfile = L"Lindenhof";
    parameters.dot11BssType = dot11_BSS_type_infrastructure;
    CHECK_ANSWER(ERROR_SUCCESS, WlanOpenHandle(2, NULL, &version, &client));
    CheckFreeing(client);
    CheckOpening();
    CheckMissingOutputs(client);
    CheckMissingInputs(client);
    CheckReserved(client);
    CheckHandle(ERROR_INVALID_PARAMETER, NULL);
    CHECK_ANSWER(ERROR_SUCCESS, WlanCloseHandle(client, NULL));
    CheckHandle(ERROR_INVALID_HANDLE, client);
    return CheckedExitCode();
}
