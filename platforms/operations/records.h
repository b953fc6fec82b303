#pragma once

#include "operations/row.h"
#include "platform/platform.h"

#include <cstdint>
#include <string_view>
#include <type_traits>

namespace calvix::operations
{

/// A LONG as wide as it is on Windows.
struct Long
{
    std::int32_t value;
};

/// A number of the platform's that says which record comes with it: `Answer` answers the question, `Setting` is what can
/// be set; void where none is known. The name is the platform's own without its common beginning.
template <typename AnswerRecord = void, typename SettingRecord = void>
struct RecordNumber
{
    using Answer = AnswerRecord;
    using Setting = SettingRecord;
    std::uint32_t number;
    std::string_view name;
};

// Numbers, not enumerators: some SDKs lack the newer ones.

inline constexpr Row kInterfaceOpcodes{
    RecordNumber<BOOL, BOOL>{1, "autoconf_enabled"},
    RecordNumber<BOOL, BOOL>{2, "background_scan_enabled"},
    RecordNumber<BOOL, BOOL>{3, "media_streaming_mode"},
    RecordNumber<WLAN_RADIO_STATE, WLAN_PHY_RADIO_STATE>{4, "radio_state"},
    RecordNumber<DOT11_BSS_TYPE, DOT11_BSS_TYPE>{5, "bss_type"},
    RecordNumber<WLAN_INTERFACE_STATE>{6, "interface_state"},
    RecordNumber<WLAN_CONNECTION_ATTRIBUTES>{7, "current_connection"},
    RecordNumber<ULONG>{8, "channel_number"},
    RecordNumber<>{9, "supported_infrastructure_auth_cipher_pairs"},
    RecordNumber<>{10, "supported_adhoc_auth_cipher_pairs"},
    RecordNumber<>{11, "supported_country_or_region_string_list"},
    RecordNumber<ULONG, ULONG>{12, "current_operation_mode"},
    RecordNumber<BOOL>{13, "supported_safe_mode"},
    RecordNumber<BOOL>{14, "certified_safe_mode"},
    RecordNumber<>{15, "hosted_network_capable"},
    RecordNumber<>{16, "management_frame_protection_capable"},
    RecordNumber<WLAN_STATISTICS>{0x10000101, "statistics"},
    RecordNumber<Long>{0x10000102, "rssi"},
};

inline constexpr Row kAutoConfigOpcodes{
    RecordNumber<>{1, "show_denied_networks"},
    RecordNumber<WLAN_POWER_SETTING>{2, "power_setting"},
    RecordNumber<>{3, "only_use_gp_profiles_for_allowed_networks"},
    RecordNumber<>{4, "allow_explicit_creds"},
    RecordNumber<>{5, "block_period"},
    RecordNumber<>{6, "allow_virtual_station_extensibility"},
};

inline constexpr Row kPowerLevels{
    RecordNumber<SYSTEM_POWER_POLICY>{0, "SystemPowerPolicyAc"},
    RecordNumber<SYSTEM_POWER_POLICY>{1, "SystemPowerPolicyDc"},
    RecordNumber<SYSTEM_POWER_CAPABILITIES>{4, "SystemPowerCapabilities"},
    RecordNumber<SYSTEM_POWER_POLICY>{8, "SystemPowerPolicyCurrent"},
    RecordNumber<ULONGLONG>{14, "LastWakeTime"},
    RecordNumber<ULONGLONG>{15, "LastSleepTime"},
};

inline constexpr Row kConnectionModes{
    RecordNumber<>{0, "profile"},
    RecordNumber<>{1, "temporary_profile"},
    RecordNumber<>{2, "discovery_secure"},
    RecordNumber<>{3, "discovery_unsecure"},
    RecordNumber<>{4, "auto"},
    RecordNumber<>{5, "invalid"},
};

inline constexpr Row kBssTypes{
    RecordNumber<>{1, "infrastructure"},
    RecordNumber<>{2, "independent"},
    RecordNumber<>{3, "any"},
};

/// The numbers that are listed here, by their enumeration.
struct Numbers
{
    static constexpr const auto& Of(WLAN_INTF_OPCODE) { return kInterfaceOpcodes; }
    static constexpr const auto& Of(WLAN_AUTOCONF_OPCODE) { return kAutoConfigOpcodes; }
    static constexpr const auto& Of(POWER_INFORMATION_LEVEL) { return kPowerLevels; }
    static constexpr const auto& Of(WLAN_CONNECTION_MODE) { return kConnectionModes; }
    static constexpr const auto& Of(DOT11_BSS_TYPE) { return kBssTypes; }
};

template <typename Enumeration>
concept ListedNumber = requires(Enumeration value)
{
    Numbers::Of(value);
};

/// Calls `visit(row)` with the row of a number, an empty one if it is not listed.
template <ListedNumber Enumeration, typename Visit>
void VisitRow(Enumeration value, Visit visit)
{
    bool known = false;
    const auto look = [&](const auto& row)
    {
        if (row.number != static_cast<std::uint32_t>(value))
            return;
        known = true;
        visit(row);
    };
    Apply([&](const auto&... rows) { (look(rows), ...); }, Numbers::Of(value));
    if (!known)
        visit(RecordNumber<>{});
}

/// The platform's name of a number; empty for one that has none.
template <ListedNumber Enumeration>
std::string_view NameOf(Enumeration value)
{
    std::string_view name;
    VisitRow(value, [&name](const auto& row) { name = row.name; });
    return name;
}

/// The type of a record; void if none is known.
template <typename Record>
using RecordType = std::type_identity<Record>;

/// Calls `visit(RecordType<...>())` with the record that a question is answered with.
template <ListedNumber Enumeration, typename Visit>
void VisitAnswer(Enumeration value, Visit visit)
{
    VisitRow(value, [&]<typename Answer, typename Setting>(const RecordNumber<Answer, Setting>&)
             { visit(RecordType<Answer>()); });
}

/// The same with the record that can be set.
template <ListedNumber Enumeration, typename Visit>
void VisitSetting(Enumeration value, Visit visit)
{
    VisitRow(value, [&]<typename Answer, typename Setting>(const RecordNumber<Answer, Setting>&)
             { visit(RecordType<Setting>()); });
}

} // namespace calvix::operations
