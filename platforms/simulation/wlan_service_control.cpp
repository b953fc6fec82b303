#include "simulation/reason_texts.h"
#include "simulation/service_records.h"
#include "simulation/wlan_service.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace calvix::simulation
{

namespace
{

// Chosen: no group policy restricts anything, and virtual stations are allowed. What programs may set is stored and returned,
// and changes nothing else: no network is denied and nothing blocked here.
std::optional<InterfaceAnswer> Answer(const Machine& machine, Blocks& blocks, WLAN_AUTOCONF_OPCODE opcode)
{
    switch (static_cast<unsigned int>(opcode))
    {
    case wlan_autoconf_opcode_power_setting:
        return AnswerNumber(blocks, static_cast<WLAN_POWER_SETTING>(machine.present.powerSetting));
    case wlan_autoconf_opcode_show_denied_networks:
        return AnswerNumber(blocks, machine.showDeniedNetworks);
    case wlan_autoconf_opcode_only_use_gp_profiles_for_allowed_networks:
        return AnswerNumber(blocks, FALSE);
    case wlan_autoconf_opcode_allow_explicit_creds:
        return AnswerNumber(blocks, machine.allowExplicitCredentials);
    case wlan_autoconf_opcode_allow_virtual_station_extensibility:
        return AnswerNumber(blocks, TRUE);
    case wlan_autoconf_opcode_block_period:
        return AnswerNumber(blocks, machine.blockPeriod);
    default:
        return std::nullopt;
    }
}

template <typename Number>
DWORD SetNumber(DWORD size, const void* data, Number& number)
{
    if (size != sizeof(number))
        return ERROR_INVALID_PARAMETER;
    std::memcpy(&number, data, sizeof(number));
    return ERROR_SUCCESS;
}

// Chosen as the default: everybody may do everything.
constexpr wchar_t defaultSecurity[] = L"D:(A;;GA;;;WD)";

Bytes RequestBytes(const void* input, DWORD size)
{
    const auto* const bytes = static_cast<const std::uint8_t*>(input);
    return size == 0 ? Bytes() : Bytes(bytes, bytes + size);
}

} // namespace

DWORD SimulatedWlanService::WlanQueryAutoConfigParameter(HANDLE client,
                                                         WLAN_AUTOCONF_OPCODE opcode,
                                                         PVOID reserved,
                                                         DWORD* dataSize,
                                                         PVOID* data,
                                                         WLAN_OPCODE_VALUE_TYPE* valueType)
{
    const Request request(m_machine, "WlanQueryAutoConfigParameter", client, {dataSize, data}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    const auto answer = Answer(m_machine, m_machine.wlanBlocks, opcode);
    if (!answer)
        return ERROR_INVALID_PARAMETER;
    *data = answer->data;
    *dataSize = static_cast<DWORD>(answer->size);
    if (valueType != nullptr)
        *valueType = wlan_opcode_value_type_set_by_user;
    return ERROR_SUCCESS;
}

DWORD SimulatedWlanService::WlanSetAutoConfigParameter(
    HANDLE client, WLAN_AUTOCONF_OPCODE opcode, DWORD dataSize, const void* data, PVOID reserved)
{
    const Request request(m_machine, "WlanSetAutoConfigParameter", client, {data}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    switch (static_cast<unsigned int>(opcode))
    {
    case wlan_autoconf_opcode_show_denied_networks:
        return SetNumber(dataSize, data, m_machine.showDeniedNetworks);
    case wlan_autoconf_opcode_allow_explicit_creds:
        return SetNumber(dataSize, data, m_machine.allowExplicitCredentials);
    case wlan_autoconf_opcode_block_period:
        return SetNumber(dataSize, data, m_machine.blockPeriod);
    default:
        return ERROR_INVALID_PARAMETER;
    }
}

// Chosen: only the driver has a script; a vendor's service, and a request that the script does not know, are not
// supported; an answer that does not fit in the caller's buffer is not given at all. Input and output may be one
// buffer.
DWORD SimulatedWlanService::WlanIhvControl(HANDLE client,
                                           const GUID* interfaceGuid,
                                           WLAN_IHV_CONTROL_TYPE type,
                                           DWORD inputSize,
                                           PVOID input,
                                           DWORD outputSize,
                                           PVOID output,
                                           DWORD* bytesReturned)
{
    const Request request(m_machine, "WlanIhvControl", client, interfaceGuid, {bytesReturned});
    if (request.error != ERROR_SUCCESS)
        return request.error;
    const bool isMissing = (input == nullptr && inputSize != 0) || (output == nullptr && outputSize != 0);
    if (isMissing || type > wlan_ihv_control_type_driver)
        return ERROR_INVALID_PARAMETER;
    const bool isForDriver = type == wlan_ihv_control_type_driver;
    const IhvAnswer* const answer = isForDriver ? request.adapter->AnswerIhv(RequestBytes(input, inputSize)) : nullptr;
    if (answer == nullptr)
        return ERROR_NOT_SUPPORTED;
    if (answer->error != 0)
        return answer->error;
    if (answer->data.size() > outputSize)
        return ERROR_INSUFFICIENT_BUFFER;
    if (!answer->data.empty())
        std::memcpy(output, answer->data.data(), answer->data.size());
    *bytesReturned = static_cast<DWORD>(answer->data.size());
    return ERROR_SUCCESS;
}

// The text is remembered and not judged: nothing in this computer is opened or closed by it.
DWORD SimulatedWlanService::WlanSetSecuritySettings(HANDLE client, WLAN_SECURABLE_OBJECT object, const wchar_t* sddl)
{
    const Request request(m_machine, "WlanSetSecuritySettings", client, {sddl});
    if (request.error != ERROR_SUCCESS)
        return request.error;
    if (object > wlan_secure_hosted_network_elevated_access || sddl[0] == L'\0')
        return ERROR_INVALID_PARAMETER;
    if (!m_machine.present.administrator)
        return ERROR_ACCESS_DENIED;
    m_machine.securitySettings[object] = sddl;
    return ERROR_SUCCESS;
}

// Chosen: everybody is granted all access, as to profiles.
DWORD SimulatedWlanService::WlanGetSecuritySettings(HANDLE client,
                                                    WLAN_SECURABLE_OBJECT object,
                                                    WLAN_OPCODE_VALUE_TYPE* valueType,
                                                    wchar_t** sddl,
                                                    DWORD* grantedAccess)
{
    const Request request(m_machine, "WlanGetSecuritySettings", client, {sddl, grantedAccess});
    if (request.error != ERROR_SUCCESS)
        return request.error;
    if (object > wlan_secure_hosted_network_elevated_access)
        return ERROR_INVALID_PARAMETER;
    const auto set = m_machine.securitySettings.find(object);
    *sddl = NewText(m_machine.wlanBlocks, set != m_machine.securitySettings.end() ? set->second : defaultSecurity,
                    "security settings");
    *grantedAccess = WLAN_WRITE_ACCESS;
    if (valueType != nullptr)
        *valueType = wlan_opcode_value_type_set_by_user;
    return ERROR_SUCCESS;
}

// Needs neither a client nor a running service: the texts come with the client's side of the interface. A text that
// does not fit is cut.
DWORD SimulatedWlanService::WlanReasonCodeToString(DWORD reasonCode, DWORD bufferSize, wchar_t* buffer, PVOID reserved)
{
    if (bufferSize == 0 || buffer == nullptr || reserved != nullptr)
        return ERROR_INVALID_PARAMETER;
    const std::wstring_view text = ReasonText(reasonCode);
    const std::size_t length = std::min<std::size_t>(text.size(), bufferSize - 1);
    buffer[text.copy(buffer, length)] = L'\0';
    return ERROR_SUCCESS;
}

} // namespace calvix::simulation
