#include "wrappers/intercepted_wlan_service.h"

#include "wrappers/argument_texts.h"

namespace calvix::wrappers
{

using namespace argument;

namespace
{

Handle Client(HANDLE client)
{
    return {"client", HandleFamily::client, client};
}

Guid Interface(const GUID* guid)
{
    return {"interface", guid};
}

Pointer Reserved(PVOID reserved)
{
    return {"reserved", reserved};
}

} // namespace

DWORD InterceptedWlanService::WlanOpenHandle(DWORD clientVersion,
                                             PVOID reserved,
                                             DWORD* negotiatedVersion,
                                             HANDLE* client)
{
    return m_point.ErrorNumber(
        "WlanOpenHandle", [&] { return m_inner.WlanOpenHandle(clientVersion, reserved, negotiatedVersion, client); },
        Number{"clientVersion", clientVersion}, Reserved(reserved), Pointer{"negotiatedVersion", negotiatedVersion},
        Pointer{"client", client});
}

DWORD InterceptedWlanService::WlanCloseHandle(HANDLE client, PVOID reserved)
{
    return m_point.ErrorNumber(
        "WlanCloseHandle", [&] { return m_inner.WlanCloseHandle(client, reserved); }, Client(client),
        Reserved(reserved));
}

DWORD InterceptedWlanService::WlanEnumInterfaces(HANDLE client, PVOID reserved, WLAN_INTERFACE_INFO_LIST** list)
{
    return m_point.ErrorNumber(
        "WlanEnumInterfaces", [&] { return m_inner.WlanEnumInterfaces(client, reserved, list); }, Client(client),
        Reserved(reserved), Pointer{"list", list});
}

DWORD InterceptedWlanService::WlanScan(
    HANDLE client, const GUID* interfaceGuid, const DOT11_SSID* ssid, const WLAN_RAW_DATA* ieData, PVOID reserved)
{
    return m_point.ErrorNumber(
        "WlanScan", [&] { return m_inner.WlanScan(client, interfaceGuid, ssid, ieData, reserved); }, Client(client),
        Interface(interfaceGuid), Ssid{"ssid", ssid}, Pointer{"ieData", ieData}, Reserved(reserved));
}

DWORD InterceptedWlanService::WlanGetAvailableNetworkList(
    HANDLE client, const GUID* interfaceGuid, DWORD flags, PVOID reserved, WLAN_AVAILABLE_NETWORK_LIST** list)
{
    return m_point.ErrorNumber(
        "WlanGetAvailableNetworkList",
        [&] { return m_inner.WlanGetAvailableNetworkList(client, interfaceGuid, flags, reserved, list); },
        Client(client), Interface(interfaceGuid), Number{"flags", flags}, Reserved(reserved), Pointer{"list", list});
}

DWORD InterceptedWlanService::WlanGetNetworkBssList(HANDLE client,
                                                    const GUID* interfaceGuid,
                                                    const DOT11_SSID* ssid,
                                                    DOT11_BSS_TYPE bssType,
                                                    BOOL securityEnabled,
                                                    PVOID reserved,
                                                    WLAN_BSS_LIST** list)
{
    return m_point.ErrorNumber(
        "WlanGetNetworkBssList",
        [&] {
            return m_inner.WlanGetNetworkBssList(client, interfaceGuid, ssid, bssType, securityEnabled, reserved, list);
        },
        Client(client), Interface(interfaceGuid), Ssid{"ssid", ssid}, BssType{"bssType", bssType},
        Flag{"securityEnabled", securityEnabled}, Reserved(reserved), Pointer{"list", list});
}

DWORD InterceptedWlanService::WlanQueryInterface(HANDLE client,
                                                 const GUID* interfaceGuid,
                                                 WLAN_INTF_OPCODE opcode,
                                                 PVOID reserved,
                                                 DWORD* dataSize,
                                                 PVOID* data,
                                                 WLAN_OPCODE_VALUE_TYPE* valueType)
{
    return m_point.ErrorNumber(
        "WlanQueryInterface",
        [&] { return m_inner.WlanQueryInterface(client, interfaceGuid, opcode, reserved, dataSize, data, valueType); },
        Client(client), Interface(interfaceGuid), Opcode{"opcode", opcode}, Reserved(reserved),
        SizeAt{"dataSize", dataSize, QueriedRecord(opcode)}, Pointer{"data", data}, Pointer{"valueType", valueType});
}

DWORD InterceptedWlanService::WlanSetInterface(
    HANDLE client, const GUID* interfaceGuid, WLAN_INTF_OPCODE opcode, DWORD dataSize, const void* data, PVOID reserved)
{
    return m_point.ErrorNumber(
        "WlanSetInterface",
        [&] { return m_inner.WlanSetInterface(client, interfaceGuid, opcode, dataSize, data, reserved); },
        Client(client), Interface(interfaceGuid), Opcode{"opcode", opcode},
        Size{"dataSize", dataSize, SetRecord(opcode)}, InterfaceData{"data", opcode, dataSize, data},
        Reserved(reserved));
}

DWORD InterceptedWlanService::WlanQueryAutoConfigParameter(HANDLE client,
                                                           WLAN_AUTOCONF_OPCODE opcode,
                                                           PVOID reserved,
                                                           DWORD* dataSize,
                                                           PVOID* data,
                                                           WLAN_OPCODE_VALUE_TYPE* valueType)
{
    return m_point.ErrorNumber(
        "WlanQueryAutoConfigParameter",
        [&] { return m_inner.WlanQueryAutoConfigParameter(client, opcode, reserved, dataSize, data, valueType); },
        Client(client), AutoConfigOpcode{"opcode", opcode}, Reserved(reserved),
        SizeAt{"dataSize", dataSize, QueriedRecord(opcode)}, Pointer{"data", data}, Pointer{"valueType", valueType});
}

DWORD InterceptedWlanService::WlanGetProfileList(HANDLE client,
                                                 const GUID* interfaceGuid,
                                                 PVOID reserved,
                                                 WLAN_PROFILE_INFO_LIST** list)
{
    return m_point.ErrorNumber(
        "WlanGetProfileList", [&] { return m_inner.WlanGetProfileList(client, interfaceGuid, reserved, list); },
        Client(client), Interface(interfaceGuid), Reserved(reserved), Pointer{"list", list});
}

DWORD InterceptedWlanService::WlanGetProfile(HANDLE client,
                                             const GUID* interfaceGuid,
                                             const wchar_t* name,
                                             PVOID reserved,
                                             wchar_t** xml,
                                             DWORD* flags,
                                             DWORD* grantedAccess)
{
    return m_point.ErrorNumber(
        "WlanGetProfile",
        [&] { return m_inner.WlanGetProfile(client, interfaceGuid, name, reserved, xml, flags, grantedAccess); },
        Client(client), Interface(interfaceGuid), Wide{"name", name}, Reserved(reserved), Pointer{"xml", xml},
        NumberAt{"flags", flags}, NumberAt{"grantedAccess", grantedAccess});
}

DWORD InterceptedWlanService::WlanSetProfile(HANDLE client,
                                             const GUID* interfaceGuid,
                                             DWORD flags,
                                             const wchar_t* xml,
                                             const wchar_t* allUserProfileSecurity,
                                             BOOL overwrite,
                                             PVOID reserved,
                                             DWORD* reasonCode)
{
    return m_point.ErrorNumber(
        "WlanSetProfile",
        [&]
        {
            return m_inner.WlanSetProfile(client, interfaceGuid, flags, xml, allUserProfileSecurity, overwrite,
                                          reserved, reasonCode);
        },
        Client(client), Interface(interfaceGuid), Number{"flags", flags}, Wide{"xml", xml},
        Wide{"allUserProfileSecurity", allUserProfileSecurity}, Flag{"overwrite", overwrite}, Reserved(reserved),
        Pointer{"reasonCode", reasonCode});
}

DWORD InterceptedWlanService::WlanDeleteProfile(HANDLE client,
                                                const GUID* interfaceGuid,
                                                const wchar_t* name,
                                                PVOID reserved)
{
    return m_point.ErrorNumber(
        "WlanDeleteProfile", [&] { return m_inner.WlanDeleteProfile(client, interfaceGuid, name, reserved); },
        Client(client), Interface(interfaceGuid), Wide{"name", name}, Reserved(reserved));
}

DWORD InterceptedWlanService::WlanSetProfilePosition(
    HANDLE client, const GUID* interfaceGuid, const wchar_t* name, DWORD position, PVOID reserved)
{
    return m_point.ErrorNumber(
        "WlanSetProfilePosition",
        [&] { return m_inner.WlanSetProfilePosition(client, interfaceGuid, name, position, reserved); }, Client(client),
        Interface(interfaceGuid), Wide{"name", name}, Number{"position", position}, Reserved(reserved));
}

DWORD InterceptedWlanService::WlanConnect(HANDLE client,
                                          const GUID* interfaceGuid,
                                          const WLAN_CONNECTION_PARAMETERS* parameters,
                                          PVOID reserved)
{
    return m_point.ErrorNumber(
        "WlanConnect", [&] { return m_inner.WlanConnect(client, interfaceGuid, parameters, reserved); }, Client(client),
        Interface(interfaceGuid), ConnectionParameters{"parameters", parameters}, Reserved(reserved));
}

DWORD InterceptedWlanService::WlanDisconnect(HANDLE client, const GUID* interfaceGuid, PVOID reserved)
{
    return m_point.ErrorNumber(
        "WlanDisconnect", [&] { return m_inner.WlanDisconnect(client, interfaceGuid, reserved); }, Client(client),
        Interface(interfaceGuid), Reserved(reserved));
}

DWORD InterceptedWlanService::WlanRegisterNotification(HANDLE client,
                                                       DWORD source,
                                                       BOOL ignoreDuplicate,
                                                       WLAN_NOTIFICATION_CALLBACK callback,
                                                       PVOID context,
                                                       PVOID reserved,
                                                       DWORD* previousSource)
{
    return m_point.ErrorNumber(
        "WlanRegisterNotification",
        [&]
        {
            return m_inner.WlanRegisterNotification(client, source, ignoreDuplicate, callback, context, reserved,
                                                    previousSource);
        },
        Client(client), Number{"source", source}, Flag{"ignoreDuplicate", ignoreDuplicate},
        Function{"callback", callback != nullptr}, Pointer{"context", context}, Reserved(reserved),
        Pointer{"previousSource", previousSource});
}

DWORD InterceptedWlanService::WlanIhvControl(HANDLE client,
                                             const GUID* interfaceGuid,
                                             WLAN_IHV_CONTROL_TYPE type,
                                             DWORD inputSize,
                                             PVOID input,
                                             DWORD outputSize,
                                             PVOID output,
                                             DWORD* bytesReturned)
{
    return m_point.ErrorNumber(
        "WlanIhvControl",
        [&] {
            return m_inner.WlanIhvControl(client, interfaceGuid, type, inputSize, input, outputSize, output,
                                          bytesReturned);
        },
        Client(client), Interface(interfaceGuid), Number{"type", type}, Number{"inputSize", inputSize},
        Pointer{"input", input}, Number{"outputSize", outputSize}, Pointer{"output", output},
        Pointer{"bytesReturned", bytesReturned});
}

DWORD InterceptedWlanService::WlanSetSecuritySettings(HANDLE client, WLAN_SECURABLE_OBJECT object, const wchar_t* sddl)
{
    return m_point.ErrorNumber(
        "WlanSetSecuritySettings", [&] { return m_inner.WlanSetSecuritySettings(client, object, sddl); },
        Client(client), Number{"object", object}, Wide{"sddl", sddl});
}

DWORD InterceptedWlanService::WlanReasonCodeToString(DWORD reasonCode,
                                                     DWORD bufferSize,
                                                     wchar_t* buffer,
                                                     PVOID reserved)
{
    return m_point.ErrorNumber(
        "WlanReasonCodeToString",
        [&] { return m_inner.WlanReasonCodeToString(reasonCode, bufferSize, buffer, reserved); },
        Number{"reasonCode", reasonCode}, Number{"bufferSize", bufferSize}, Pointer{"buffer", buffer},
        Reserved(reserved));
}

void InterceptedWlanService::WlanFreeMemory(PVOID memory)
{
    m_point.Certain(
        "WlanFreeMemory", [&] { m_inner.WlanFreeMemory(memory); }, Pointer{"memory", memory});
}

} // namespace calvix::wrappers
