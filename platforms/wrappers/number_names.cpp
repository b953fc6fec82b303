#include "wrappers/number_names.h"

#include <cstdint>
#include <span>

namespace calvix::wrappers
{

namespace
{

struct NumberName
{
    std::uint32_t number;
    std::string_view name;
};

// Numbers, not enumerators: some SDKs lack the newer ones.
constexpr NumberName kInterfaceOpcodes[] = {
    {1, "autoconf_enabled"},
    {2, "background_scan_enabled"},
    {3, "media_streaming_mode"},
    {4, "radio_state"},
    {5, "bss_type"},
    {6, "interface_state"},
    {7, "current_connection"},
    {8, "channel_number"},
    {9, "supported_infrastructure_auth_cipher_pairs"},
    {10, "supported_adhoc_auth_cipher_pairs"},
    {11, "supported_country_or_region_string_list"},
    {12, "current_operation_mode"},
    {13, "supported_safe_mode"},
    {14, "certified_safe_mode"},
    {15, "hosted_network_capable"},
    {16, "management_frame_protection_capable"},
    {0x10000101, "statistics"},
    {0x10000102, "rssi"},
};

constexpr NumberName kAutoConfigOpcodes[] = {
    {1, "show_denied_networks"}, {2, "power_setting"}, {3, "only_use_gp_profiles_for_allowed_networks"},
    {4, "allow_explicit_creds"}, {5, "block_period"},  {6, "allow_virtual_station_extensibility"},
};

constexpr NumberName kConnectionModes[] = {
    {0, "profile"}, {1, "temporary_profile"}, {2, "discovery_secure"}, {3, "discovery_unsecure"},
    {4, "auto"},    {5, "invalid"},
};

constexpr NumberName kBssTypes[] = {{1, "infrastructure"}, {2, "independent"}, {3, "any"}};

constexpr NumberName kPowerLevels[] = {
    {0, "SystemPowerPolicyAc"},      {1, "SystemPowerPolicyDc"}, {4, "SystemPowerCapabilities"},
    {8, "SystemPowerPolicyCurrent"}, {14, "LastWakeTime"},       {15, "LastSleepTime"},
};

template <typename Number>
std::string_view Find(std::span<const NumberName> names, Number number)
{
    for (const NumberName& entry : names)
        if (entry.number == static_cast<std::uint32_t>(number))
            return entry.name;
    return {};
}

} // namespace

std::string_view NameOf(WLAN_INTF_OPCODE opcode)
{
    return Find(kInterfaceOpcodes, opcode);
}

std::string_view NameOf(WLAN_AUTOCONF_OPCODE opcode)
{
    return Find(kAutoConfigOpcodes, opcode);
}

std::string_view NameOf(WLAN_CONNECTION_MODE mode)
{
    return Find(kConnectionModes, mode);
}

std::string_view NameOf(DOT11_BSS_TYPE type)
{
    return Find(kBssTypes, type);
}

std::string_view NameOf(POWER_INFORMATION_LEVEL level)
{
    return Find(kPowerLevels, level);
}

} // namespace calvix::wrappers
