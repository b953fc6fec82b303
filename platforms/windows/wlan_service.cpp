#include "windows/wlan_service.h"

#include "windows/optional_library.h"

namespace calvix::windows
{

namespace
{

/// What wlanapi.dll exports, absent on a Windows Server without the wireless feature.
struct WlanExports
{
    /// Beside the program first: a simulation may stand in for the service there.
    OptionalLibrary library{L"wlanapi.dll", LOAD_LIBRARY_SEARCH_APPLICATION_DIR};
    OptionalExport<decltype(&::WlanOpenHandle)> WlanOpenHandle{library, "WlanOpenHandle"};
    OptionalExport<decltype(&::WlanCloseHandle)> WlanCloseHandle{library, "WlanCloseHandle"};
    OptionalExport<decltype(&::WlanEnumInterfaces)> WlanEnumInterfaces{library, "WlanEnumInterfaces"};
    OptionalExport<decltype(&::WlanScan)> WlanScan{library, "WlanScan"};
    OptionalExport<decltype(&::WlanGetAvailableNetworkList)> WlanGetAvailableNetworkList{library,
                                                                                         "WlanGetAvailableNetworkList"};
    OptionalExport<decltype(&::WlanGetNetworkBssList)> WlanGetNetworkBssList{library, "WlanGetNetworkBssList"};
    OptionalExport<decltype(&::WlanQueryInterface)> WlanQueryInterface{library, "WlanQueryInterface"};
    OptionalExport<decltype(&::WlanSetInterface)> WlanSetInterface{library, "WlanSetInterface"};
    OptionalExport<decltype(&::WlanQueryAutoConfigParameter)> WlanQueryAutoConfigParameter{
        library, "WlanQueryAutoConfigParameter"};
    OptionalExport<decltype(&::WlanGetProfileList)> WlanGetProfileList{library, "WlanGetProfileList"};
    OptionalExport<decltype(&::WlanGetProfile)> WlanGetProfile{library, "WlanGetProfile"};
    OptionalExport<decltype(&::WlanSetProfile)> WlanSetProfile{library, "WlanSetProfile"};
    OptionalExport<decltype(&::WlanDeleteProfile)> WlanDeleteProfile{library, "WlanDeleteProfile"};
    OptionalExport<decltype(&::WlanSetProfilePosition)> WlanSetProfilePosition{library, "WlanSetProfilePosition"};
    OptionalExport<decltype(&::WlanConnect)> WlanConnect{library, "WlanConnect"};
    OptionalExport<decltype(&::WlanDisconnect)> WlanDisconnect{library, "WlanDisconnect"};
    OptionalExport<decltype(&::WlanRegisterNotification)> WlanRegisterNotification{library, "WlanRegisterNotification"};
    OptionalExport<decltype(&::WlanIhvControl)> WlanIhvControl{library, "WlanIhvControl"};
    OptionalExport<decltype(&::WlanSetSecuritySettings)> WlanSetSecuritySettings{library, "WlanSetSecuritySettings"};
    OptionalExport<decltype(&::WlanReasonCodeToString)> WlanReasonCodeToString{library, "WlanReasonCodeToString"};
    OptionalExport<decltype(&::WlanFreeMemory)> WlanFreeMemory{library, "WlanFreeMemory"};
};

const WlanExports& WlanLibrary()
{
    static const WlanExports exports;
    return exports;
}

/// For inputs whose const the SDK's prototypes lose: "const PDOT11_SSID" is a constant pointer, not a pointer to
/// something constant. The service only reads them.
template <typename Record>
Record* Input(const Record* record)
{
    return const_cast<Record*>(record);
}

} // namespace

DWORD WlanService::WlanOpenHandle(DWORD clientVersion, PVOID reserved, DWORD* negotiatedVersion, HANDLE* client)
{
    return WlanLibrary().WlanOpenHandle(clientVersion, reserved, negotiatedVersion, client);
}

DWORD WlanService::WlanCloseHandle(HANDLE client, PVOID reserved)
{
    return WlanLibrary().WlanCloseHandle(client, reserved);
}

DWORD WlanService::WlanEnumInterfaces(HANDLE client, PVOID reserved, WLAN_INTERFACE_INFO_LIST** list)
{
    return WlanLibrary().WlanEnumInterfaces(client, reserved, list);
}

DWORD WlanService::WlanScan(
    HANDLE client, const GUID* interfaceGuid, const DOT11_SSID* ssid, const WLAN_RAW_DATA* ieData, PVOID reserved)
{
    return WlanLibrary().WlanScan(client, interfaceGuid, Input(ssid), Input(ieData), reserved);
}

DWORD WlanService::WlanGetAvailableNetworkList(
    HANDLE client, const GUID* interfaceGuid, DWORD flags, PVOID reserved, WLAN_AVAILABLE_NETWORK_LIST** list)
{
    return WlanLibrary().WlanGetAvailableNetworkList(client, interfaceGuid, flags, reserved, list);
}

DWORD WlanService::WlanGetNetworkBssList(HANDLE client,
                                         const GUID* interfaceGuid,
                                         const DOT11_SSID* ssid,
                                         DOT11_BSS_TYPE bssType,
                                         BOOL securityEnabled,
                                         PVOID reserved,
                                         WLAN_BSS_LIST** list)
{
    return WlanLibrary().WlanGetNetworkBssList(client, interfaceGuid, Input(ssid), bssType, securityEnabled, reserved,
                                               list);
}

DWORD WlanService::WlanQueryInterface(HANDLE client,
                                      const GUID* interfaceGuid,
                                      WLAN_INTF_OPCODE opcode,
                                      PVOID reserved,
                                      DWORD* dataSize,
                                      PVOID* data,
                                      WLAN_OPCODE_VALUE_TYPE* valueType)
{
    return WlanLibrary().WlanQueryInterface(client, interfaceGuid, opcode, reserved, dataSize, data, valueType);
}

DWORD WlanService::WlanSetInterface(
    HANDLE client, const GUID* interfaceGuid, WLAN_INTF_OPCODE opcode, DWORD dataSize, const void* data, PVOID reserved)
{
    return WlanLibrary().WlanSetInterface(client, interfaceGuid, opcode, dataSize, Input(data), reserved);
}

DWORD WlanService::WlanQueryAutoConfigParameter(HANDLE client,
                                                WLAN_AUTOCONF_OPCODE opcode,
                                                PVOID reserved,
                                                DWORD* dataSize,
                                                PVOID* data,
                                                WLAN_OPCODE_VALUE_TYPE* valueType)
{
    return WlanLibrary().WlanQueryAutoConfigParameter(client, opcode, reserved, dataSize, data, valueType);
}

DWORD WlanService::WlanGetProfileList(HANDLE client,
                                      const GUID* interfaceGuid,
                                      PVOID reserved,
                                      WLAN_PROFILE_INFO_LIST** list)
{
    return WlanLibrary().WlanGetProfileList(client, interfaceGuid, reserved, list);
}

DWORD WlanService::WlanGetProfile(HANDLE client,
                                  const GUID* interfaceGuid,
                                  const wchar_t* name,
                                  PVOID reserved,
                                  wchar_t** xml,
                                  DWORD* flags,
                                  DWORD* grantedAccess)
{
    return WlanLibrary().WlanGetProfile(client, interfaceGuid, name, reserved, xml, flags, grantedAccess);
}

DWORD WlanService::WlanSetProfile(HANDLE client,
                                  const GUID* interfaceGuid,
                                  DWORD flags,
                                  const wchar_t* xml,
                                  const wchar_t* allUserProfileSecurity,
                                  BOOL overwrite,
                                  PVOID reserved,
                                  DWORD* reasonCode)
{
    return WlanLibrary().WlanSetProfile(client, interfaceGuid, flags, xml, allUserProfileSecurity, overwrite, reserved,
                                        reasonCode);
}

DWORD WlanService::WlanDeleteProfile(HANDLE client, const GUID* interfaceGuid, const wchar_t* name, PVOID reserved)
{
    return WlanLibrary().WlanDeleteProfile(client, interfaceGuid, name, reserved);
}

DWORD WlanService::WlanSetProfilePosition(
    HANDLE client, const GUID* interfaceGuid, const wchar_t* name, DWORD position, PVOID reserved)
{
    return WlanLibrary().WlanSetProfilePosition(client, interfaceGuid, name, position, reserved);
}

DWORD WlanService::WlanConnect(HANDLE client,
                               const GUID* interfaceGuid,
                               const WLAN_CONNECTION_PARAMETERS* parameters,
                               PVOID reserved)
{
    return WlanLibrary().WlanConnect(client, interfaceGuid, Input(parameters), reserved);
}

DWORD WlanService::WlanDisconnect(HANDLE client, const GUID* interfaceGuid, PVOID reserved)
{
    return WlanLibrary().WlanDisconnect(client, interfaceGuid, reserved);
}

DWORD WlanService::WlanRegisterNotification(HANDLE client,
                                            DWORD source,
                                            BOOL ignoreDuplicate,
                                            WLAN_NOTIFICATION_CALLBACK callback,
                                            PVOID context,
                                            PVOID reserved,
                                            DWORD* previousSource)
{
    return WlanLibrary().WlanRegisterNotification(client, source, ignoreDuplicate, callback, context, reserved,
                                                  previousSource);
}

DWORD WlanService::WlanIhvControl(HANDLE client,
                                  const GUID* interfaceGuid,
                                  WLAN_IHV_CONTROL_TYPE type,
                                  DWORD inputSize,
                                  PVOID input,
                                  DWORD outputSize,
                                  PVOID output,
                                  DWORD* bytesReturned)
{
    return WlanLibrary().WlanIhvControl(client, interfaceGuid, type, inputSize, input, outputSize, output,
                                        bytesReturned);
}

DWORD WlanService::WlanSetSecuritySettings(HANDLE client, WLAN_SECURABLE_OBJECT object, const wchar_t* sddl)
{
    return WlanLibrary().WlanSetSecuritySettings(client, object, sddl);
}

DWORD WlanService::WlanReasonCodeToString(DWORD reasonCode, DWORD bufferSize, wchar_t* buffer, PVOID reserved)
{
    return WlanLibrary().WlanReasonCodeToString(reasonCode, bufferSize, buffer, reserved);
}

void WlanService::WlanFreeMemory(PVOID memory)
{
    WlanLibrary().WlanFreeMemory(memory);
}

} // namespace calvix::windows
