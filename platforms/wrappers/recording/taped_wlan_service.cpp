#include "wrappers/recording/taped_wlan_service.h"

#include "wrappers/recording/wlan_records.h"
#include "wrappers/recording/wlan_results.h"

#include <cwchar>

namespace calvix::recording
{

using wrappers::HandleFamily;

namespace
{

void GiveReserved(Fields& fields, const void* reserved)
{
    // It is null in every correct call, and then not worth a word.
    if (reserved != nullptr)
        fields.GivenPointer("reserved", reserved);
}

void GiveClient(Fields& fields, HANDLE client, const void* reserved = nullptr)
{
    fields.GivenHandle("client", HandleFamily::client, client);
    GiveReserved(fields, reserved);
}

void GiveAdapter(Fields& fields, HANDLE client, const GUID* interfaceGuid, const void* reserved = nullptr)
{
    GiveClient(fields, client, reserved);
    fields.GivenAdapter(interfaceGuid);
}

/// The handing out of a list, where the call succeeds and a place for the list is given.
template <typename List>
auto ListResult(List** list)
{
    return [list](Fields& fields, DWORD& error)
    {
        if (error == ERROR_SUCCESS && list != nullptr)
            DescribeList(fields, list);
    };
}

template <typename Opcode>
auto AnswerResult(Opcode opcode, DWORD* size, PVOID* data, WLAN_OPCODE_VALUE_TYPE* valueType)
{
    return [=](Fields& fields, DWORD& error)
    {
        if (error != ERROR_SUCCESS || size == nullptr || data == nullptr)
            return;
        DescribeAnswer(fields, opcode, size, data);
        fields.NumberAt("valueType", valueType);
    };
}

} // namespace

DWORD TapedWlanService::WlanOpenHandle(DWORD clientVersion, PVOID reserved, DWORD* negotiatedVersion, HANDLE* client)
{
    return m_tape.Pass(
        "WlanOpenHandle", kNoAnswer,
        [&] { return m_inner->WlanOpenHandle(clientVersion, reserved, negotiatedVersion, client); },
        [&](Fields& fields)
        {
            fields.Given("clientVersion", clientVersion);
            GiveReserved(fields, reserved);
        },
        [&](Fields& fields, DWORD& error)
        {
            if (error != ERROR_SUCCESS)
                return;
            fields.NumberAt("negotiatedVersion", negotiatedVersion);
            fields.HandedOutAt("client", HandleFamily::client, client);
        });
}

DWORD TapedWlanService::WlanCloseHandle(HANDLE client, PVOID reserved)
{
    return m_tape.Pass(
        "WlanCloseHandle", kNoAnswer, [&] { return m_inner->WlanCloseHandle(client, reserved); },
        [&](Fields& fields) { GiveClient(fields, client, reserved); });
}

DWORD TapedWlanService::WlanEnumInterfaces(HANDLE client, PVOID reserved, WLAN_INTERFACE_INFO_LIST** list)
{
    return m_tape.Pass(
        "WlanEnumInterfaces", kNoAnswer, [&] { return m_inner->WlanEnumInterfaces(client, reserved, list); },
        [&](Fields& fields) { GiveClient(fields, client, reserved); }, ListResult(list));
}

DWORD TapedWlanService::WlanScan(
    HANDLE client, const GUID* interfaceGuid, const DOT11_SSID* ssid, const WLAN_RAW_DATA* ieData, PVOID reserved)
{
    return m_tape.Pass(
        "WlanScan", kNoAnswer, [&] { return m_inner->WlanScan(client, interfaceGuid, ssid, ieData, reserved); },
        [&](Fields& fields)
        {
            GiveAdapter(fields, client, interfaceGuid, reserved);
            fields.GivenRecord("ssid", ssid);
            fields.GivenPointer("ieData", ieData);
        });
}

DWORD TapedWlanService::WlanGetAvailableNetworkList(
    HANDLE client, const GUID* interfaceGuid, DWORD flags, PVOID reserved, WLAN_AVAILABLE_NETWORK_LIST** list)
{
    return m_tape.Pass(
        "WlanGetAvailableNetworkList", kNoAnswer,
        [&] { return m_inner->WlanGetAvailableNetworkList(client, interfaceGuid, flags, reserved, list); },
        [&](Fields& fields)
        {
            GiveAdapter(fields, client, interfaceGuid, reserved);
            fields.Given("flags", flags);
        },
        ListResult(list));
}

DWORD TapedWlanService::WlanGetNetworkBssList(HANDLE client,
                                              const GUID* interfaceGuid,
                                              const DOT11_SSID* ssid,
                                              DOT11_BSS_TYPE bssType,
                                              BOOL securityEnabled,
                                              PVOID reserved,
                                              WLAN_BSS_LIST** list)
{
    return m_tape.Pass(
        "WlanGetNetworkBssList", kNoAnswer,
        [&] {
            return m_inner->WlanGetNetworkBssList(client, interfaceGuid, ssid, bssType, securityEnabled, reserved,
                                                  list);
        },
        [&](Fields& fields)
        {
            GiveAdapter(fields, client, interfaceGuid, reserved);
            fields.GivenRecord("ssid", ssid);
            fields.Given("bssType", bssType);
            fields.Given("securityEnabled", securityEnabled);
        },
        ListResult(list));
}

DWORD TapedWlanService::WlanQueryInterface(HANDLE client,
                                           const GUID* interfaceGuid,
                                           WLAN_INTF_OPCODE opcode,
                                           PVOID reserved,
                                           DWORD* dataSize,
                                           PVOID* data,
                                           WLAN_OPCODE_VALUE_TYPE* valueType)
{
    return m_tape.Pass(
        "WlanQueryInterface", kNoAnswer,
        [&] { return m_inner->WlanQueryInterface(client, interfaceGuid, opcode, reserved, dataSize, data, valueType); },
        [&](Fields& fields)
        {
            GiveAdapter(fields, client, interfaceGuid, reserved);
            fields.Given("opcode", opcode);
        },
        AnswerResult(opcode, dataSize, data, valueType));
}

DWORD TapedWlanService::WlanSetInterface(
    HANDLE client, const GUID* interfaceGuid, WLAN_INTF_OPCODE opcode, DWORD dataSize, const void* data, PVOID reserved)
{
    return m_tape.Pass(
        "WlanSetInterface", kNoAnswer,
        [&] { return m_inner->WlanSetInterface(client, interfaceGuid, opcode, dataSize, data, reserved); },
        [&](Fields& fields)
        {
            GiveAdapter(fields, client, interfaceGuid, reserved);
            fields.Given("opcode", opcode);
            GiveInterfaceData(fields, opcode, dataSize, data);
        });
}

DWORD TapedWlanService::WlanQueryAutoConfigParameter(HANDLE client,
                                                     WLAN_AUTOCONF_OPCODE opcode,
                                                     PVOID reserved,
                                                     DWORD* dataSize,
                                                     PVOID* data,
                                                     WLAN_OPCODE_VALUE_TYPE* valueType)
{
    return m_tape.Pass(
        "WlanQueryAutoConfigParameter", kNoAnswer,
        [&] { return m_inner->WlanQueryAutoConfigParameter(client, opcode, reserved, dataSize, data, valueType); },
        [&](Fields& fields)
        {
            GiveClient(fields, client, reserved);
            fields.Given("opcode", opcode);
        },
        AnswerResult(opcode, dataSize, data, valueType));
}

DWORD TapedWlanService::WlanGetProfileList(HANDLE client,
                                           const GUID* interfaceGuid,
                                           PVOID reserved,
                                           WLAN_PROFILE_INFO_LIST** list)
{
    return m_tape.Pass(
        "WlanGetProfileList", kNoAnswer,
        [&] { return m_inner->WlanGetProfileList(client, interfaceGuid, reserved, list); },
        [&](Fields& fields) { GiveAdapter(fields, client, interfaceGuid, reserved); }, ListResult(list));
}

DWORD TapedWlanService::WlanGetProfile(HANDLE client,
                                       const GUID* interfaceGuid,
                                       const wchar_t* name,
                                       PVOID reserved,
                                       wchar_t** xml,
                                       DWORD* flags,
                                       DWORD* grantedAccess)
{
    return m_tape.Pass(
        "WlanGetProfile", kNoAnswer,
        [&] { return m_inner->WlanGetProfile(client, interfaceGuid, name, reserved, xml, flags, grantedAccess); },
        [&](Fields& fields)
        {
            GiveAdapter(fields, client, interfaceGuid, reserved);
            fields.GivenName("name", name);
            // It asks for the key, or for a profile of the user's.
            if (flags != nullptr)
                fields.Given("flags", *flags);
        },
        [&](Fields& fields, DWORD& error)
        {
            if (error != ERROR_SUCCESS || xml == nullptr)
                return;
            DescribeText(fields, xml);
            fields.NumberAt("flags", flags);
            fields.NumberAt("grantedAccess", grantedAccess);
        });
}

DWORD TapedWlanService::WlanSetProfile(HANDLE client,
                                       const GUID* interfaceGuid,
                                       DWORD flags,
                                       const wchar_t* xml,
                                       const wchar_t* allUserProfileSecurity,
                                       BOOL overwrite,
                                       PVOID reserved,
                                       DWORD* reasonCode)
{
    return m_tape.Pass(
        "WlanSetProfile", kNoAnswer,
        [&]
        {
            return m_inner->WlanSetProfile(client, interfaceGuid, flags, xml, allUserProfileSecurity, overwrite,
                                           reserved, reasonCode);
        },
        [&](Fields& fields)
        {
            GiveAdapter(fields, client, interfaceGuid, reserved);
            fields.Given("flags", flags);
            fields.GivenText("xml", xml);
            fields.GivenText("allUserProfileSecurity", allUserProfileSecurity);
            fields.Given("overwrite", overwrite);
        },
        [&](Fields& fields, DWORD&) { fields.NumberAt("reasonCode", reasonCode); });
}

DWORD TapedWlanService::WlanDeleteProfile(HANDLE client, const GUID* interfaceGuid, const wchar_t* name, PVOID reserved)
{
    return m_tape.Pass(
        "WlanDeleteProfile", kNoAnswer,
        [&] { return m_inner->WlanDeleteProfile(client, interfaceGuid, name, reserved); },
        [&](Fields& fields)
        {
            GiveAdapter(fields, client, interfaceGuid, reserved);
            fields.GivenName("name", name);
        });
}

DWORD TapedWlanService::WlanSetProfilePosition(
    HANDLE client, const GUID* interfaceGuid, const wchar_t* name, DWORD position, PVOID reserved)
{
    return m_tape.Pass(
        "WlanSetProfilePosition", kNoAnswer,
        [&] { return m_inner->WlanSetProfilePosition(client, interfaceGuid, name, position, reserved); },
        [&](Fields& fields)
        {
            GiveAdapter(fields, client, interfaceGuid, reserved);
            fields.GivenName("name", name);
            fields.Given("position", position);
        });
}

DWORD TapedWlanService::WlanConnect(HANDLE client,
                                    const GUID* interfaceGuid,
                                    const WLAN_CONNECTION_PARAMETERS* parameters,
                                    PVOID reserved)
{
    return m_tape.Pass(
        "WlanConnect", kNoAnswer, [&] { return m_inner->WlanConnect(client, interfaceGuid, parameters, reserved); },
        [&](Fields& fields)
        {
            GiveAdapter(fields, client, interfaceGuid, reserved);
            GiveParameters(fields, parameters);
        });
}

DWORD TapedWlanService::WlanDisconnect(HANDLE client, const GUID* interfaceGuid, PVOID reserved)
{
    return m_tape.Pass(
        "WlanDisconnect", kNoAnswer, [&] { return m_inner->WlanDisconnect(client, interfaceGuid, reserved); },
        [&](Fields& fields) { GiveAdapter(fields, client, interfaceGuid, reserved); });
}

DWORD TapedWlanService::WlanRegisterNotification(HANDLE client,
                                                 DWORD source,
                                                 BOOL ignoreDuplicate,
                                                 WLAN_NOTIFICATION_CALLBACK callback,
                                                 PVOID context,
                                                 PVOID reserved,
                                                 DWORD* previousSource)
{
    return m_tape.Pass(
        "WlanRegisterNotification", kNoAnswer,
        [&]
        {
            const Tape::Listener listener = m_tape.Listen(client, {callback, context});
            return m_inner->WlanRegisterNotification(client, source, ignoreDuplicate, listener.callback,
                                                     listener.context, reserved, previousSource);
        },
        [&](Fields& fields)
        {
            GiveClient(fields, client, reserved);
            fields.Given("source", source);
            fields.Given("ignoreDuplicate", ignoreDuplicate);
            fields.Given("callback", callback != nullptr ? 1 : 0);
        },
        [&](Fields& fields, DWORD& error)
        {
            if (error != ERROR_SUCCESS)
                return;
            fields.NumberAt("previousSource", previousSource);
            if (fields.isReading())
                m_tape.Listen(client, {callback, context});
        });
}

DWORD TapedWlanService::WlanIhvControl(HANDLE client,
                                       const GUID* interfaceGuid,
                                       WLAN_IHV_CONTROL_TYPE type,
                                       DWORD inputSize,
                                       PVOID input,
                                       DWORD outputSize,
                                       PVOID output,
                                       DWORD* bytesReturned)
{
    return m_tape.Pass(
        "WlanIhvControl", kNoAnswer,
        [&] {
            return m_inner->WlanIhvControl(client, interfaceGuid, type, inputSize, input, outputSize, output,
                                           bytesReturned);
        },
        [&](Fields& fields)
        {
            GiveAdapter(fields, client, interfaceGuid);
            fields.Given("type", type);
            fields.GivenBytes("input", input, inputSize);
            fields.Given("outputSize", outputSize);
        },
        [&](Fields& fields, DWORD& error)
        {
            if (error != ERROR_SUCCESS || bytesReturned == nullptr)
                return;
            fields.Number("bytesReturned", *bytesReturned);
            fields.Into("output", output, (std::min)(outputSize, *bytesReturned));
        });
}

DWORD TapedWlanService::WlanSetSecuritySettings(HANDLE client, WLAN_SECURABLE_OBJECT object, const wchar_t* sddl)
{
    return m_tape.Pass(
        "WlanSetSecuritySettings", kNoAnswer, [&] { return m_inner->WlanSetSecuritySettings(client, object, sddl); },
        [&](Fields& fields)
        {
            GiveClient(fields, client);
            fields.Given("object", object);
            fields.GivenText("sddl", sddl);
        });
}

DWORD TapedWlanService::WlanReasonCodeToString(DWORD reasonCode, DWORD bufferSize, wchar_t* buffer, PVOID reserved)
{
    return m_tape.Pass(
        "WlanReasonCodeToString", kNoAnswer,
        [&] { return m_inner->WlanReasonCodeToString(reasonCode, bufferSize, buffer, reserved); },
        [&](Fields& fields)
        {
            fields.Given("reasonCode", reasonCode);
            fields.Given("bufferSize", bufferSize);
            GiveReserved(fields, reserved);
        },
        [&](Fields& fields, DWORD& error)
        {
            if (error == ERROR_SUCCESS && buffer != nullptr)
                fields.TerminatedInto("text", buffer, bufferSize);
        });
}

void TapedWlanService::WlanFreeMemory(PVOID memory)
{
    const int block = m_tape.holdings().NumberOfBlock(memory);
    m_tape.Tell(
        "WlanFreeMemory",
        [&]
        {
            // Once it is given back, the service may hand the same address out again.
            m_tape.holdings().Release(memory);
            m_inner->WlanFreeMemory(memory);
        },
        [&](Fields& fields) { fields.Given("block", block); });
    if (m_inner == nullptr)
        m_tape.holdings().Release(memory);
}

} // namespace calvix::recording
