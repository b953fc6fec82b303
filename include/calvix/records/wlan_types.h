// The records and enumerations of the WLAN API for builds without the Windows SDK. Lists end in a one-element
// array that the service really makes as long as the list's count says.
#pragma once

#include <calvix/records/dot11_types.h>
#include <calvix/records/windows_types.h>

inline constexpr DWORD WLAN_MAX_NAME_LENGTH = 256;
inline constexpr DWORD WLAN_MAX_PHY_TYPE_NUMBER = 8;
inline constexpr DWORD WLAN_MAX_PHY_INDEX = 64;

using WLAN_REASON_CODE = DWORD;
using PWLAN_REASON_CODE = WLAN_REASON_CODE*;
using WLAN_SIGNAL_QUALITY = ULONG;
using PWLAN_SIGNAL_QUALITY = WLAN_SIGNAL_QUALITY*;

// Interfaces

enum WLAN_INTERFACE_STATE : unsigned int
{
    wlan_interface_state_not_ready = 0,
    wlan_interface_state_connected = 1,
    wlan_interface_state_ad_hoc_network_formed = 2,
    wlan_interface_state_disconnecting = 3,
    wlan_interface_state_disconnected = 4,
    wlan_interface_state_associating = 5,
    wlan_interface_state_discovering = 6,
    wlan_interface_state_authenticating = 7
};
using PWLAN_INTERFACE_STATE = WLAN_INTERFACE_STATE*;

struct WLAN_INTERFACE_INFO
{
    GUID InterfaceGuid;
    WCHAR strInterfaceDescription[WLAN_MAX_NAME_LENGTH];
    WLAN_INTERFACE_STATE isState;
};
using PWLAN_INTERFACE_INFO = WLAN_INTERFACE_INFO*;

struct WLAN_INTERFACE_INFO_LIST
{
    DWORD dwNumberOfItems;
    DWORD dwIndex;
    WLAN_INTERFACE_INFO InterfaceInfo[1];
};
using PWLAN_INTERFACE_INFO_LIST = WLAN_INTERFACE_INFO_LIST*;

enum WLAN_INTERFACE_TYPE : unsigned int
{
    wlan_interface_type_emulated_802_11 = 0,
    wlan_interface_type_native_802_11 = 1,
    wlan_interface_type_invalid = 2
};
using PWLAN_INTERFACE_TYPE = WLAN_INTERFACE_TYPE*;

struct WLAN_INTERFACE_CAPABILITY
{
    WLAN_INTERFACE_TYPE interfaceType;
    BOOL bDot11DSupported;
    DWORD dwMaxDesiredSsidListSize;
    DWORD dwMaxDesiredBssidListSize;
    DWORD dwNumberOfSupportedPhys;
    DOT11_PHY_TYPE dot11PhyTypes[WLAN_MAX_PHY_INDEX];
};
using PWLAN_INTERFACE_CAPABILITY = WLAN_INTERFACE_CAPABILITY*;

struct WLAN_AUTH_CIPHER_PAIR_LIST
{
    DWORD dwNumberOfItems;
    DOT11_AUTH_CIPHER_PAIR pAuthCipherPairList[1];
};
using PWLAN_AUTH_CIPHER_PAIR_LIST = WLAN_AUTH_CIPHER_PAIR_LIST*;

struct WLAN_COUNTRY_OR_REGION_STRING_LIST
{
    DWORD dwNumberOfItems;
    DOT11_COUNTRY_OR_REGION_STRING pCountryOrRegionStringList[1];
};
using PWLAN_COUNTRY_OR_REGION_STRING_LIST = WLAN_COUNTRY_OR_REGION_STRING_LIST*;

enum WLAN_INTF_OPCODE : unsigned int
{
    wlan_intf_opcode_autoconf_start = 0,
    wlan_intf_opcode_autoconf_enabled = 1,
    wlan_intf_opcode_background_scan_enabled = 2,
    wlan_intf_opcode_media_streaming_mode = 3,
    wlan_intf_opcode_radio_state = 4,
    wlan_intf_opcode_bss_type = 5,
    wlan_intf_opcode_interface_state = 6,
    wlan_intf_opcode_current_connection = 7,
    wlan_intf_opcode_channel_number = 8,
    wlan_intf_opcode_supported_infrastructure_auth_cipher_pairs = 9,
    wlan_intf_opcode_supported_adhoc_auth_cipher_pairs = 10,
    wlan_intf_opcode_supported_country_or_region_string_list = 11,
    wlan_intf_opcode_current_operation_mode = 12,
    wlan_intf_opcode_supported_safe_mode = 13,
    wlan_intf_opcode_certified_safe_mode = 14,
    wlan_intf_opcode_hosted_network_capable = 15,
    wlan_intf_opcode_management_frame_protection_capable = 16,
    wlan_intf_opcode_autoconf_end = 0x0fffffff,
    wlan_intf_opcode_msm_start = 0x10000100,
    wlan_intf_opcode_statistics = 0x10000101,
    wlan_intf_opcode_rssi = 0x10000102,
    wlan_intf_opcode_msm_end = 0x1fffffff,
    wlan_intf_opcode_security_start = 0x20010000,
    wlan_intf_opcode_security_end = 0x2fffffff,
    wlan_intf_opcode_ihv_start = 0x30000000,
    wlan_intf_opcode_ihv_end = 0x3fffffff
};
using PWLAN_INTF_OPCODE = WLAN_INTF_OPCODE*;

enum WLAN_OPCODE_VALUE_TYPE : unsigned int
{
    wlan_opcode_value_type_query_only = 0,
    wlan_opcode_value_type_set_by_group_policy = 1,
    wlan_opcode_value_type_set_by_user = 2,
    wlan_opcode_value_type_invalid = 3
};
using PWLAN_OPCODE_VALUE_TYPE = WLAN_OPCODE_VALUE_TYPE*;

// Networks that can be seen

struct WLAN_AVAILABLE_NETWORK
{
    WCHAR strProfileName[WLAN_MAX_NAME_LENGTH];
    DOT11_SSID dot11Ssid;
    DOT11_BSS_TYPE dot11BssType;
    ULONG uNumberOfBssids;
    BOOL bNetworkConnectable;
    WLAN_REASON_CODE wlanNotConnectableReason;
    ULONG uNumberOfPhyTypes;
    DOT11_PHY_TYPE dot11PhyTypes[WLAN_MAX_PHY_TYPE_NUMBER];
    BOOL bMorePhyTypes;
    WLAN_SIGNAL_QUALITY wlanSignalQuality;
    BOOL bSecurityEnabled;
    DOT11_AUTH_ALGORITHM dot11DefaultAuthAlgorithm;
    DOT11_CIPHER_ALGORITHM dot11DefaultCipherAlgorithm;
    DWORD dwFlags;
    DWORD dwReserved;
};
using PWLAN_AVAILABLE_NETWORK = WLAN_AVAILABLE_NETWORK*;

struct WLAN_AVAILABLE_NETWORK_LIST
{
    DWORD dwNumberOfItems;
    DWORD dwIndex;
    WLAN_AVAILABLE_NETWORK Network[1];
};
using PWLAN_AVAILABLE_NETWORK_LIST = WLAN_AVAILABLE_NETWORK_LIST*;

struct WLAN_RATE_SET
{
    ULONG uRateSetLength;
    USHORT usRateSet[DOT11_RATE_SET_MAX_LENGTH];
};
using PWLAN_RATE_SET = WLAN_RATE_SET*;

// The information elements of an entry lie ulIeOffset bytes behind the entry's own beginning.
struct WLAN_BSS_ENTRY
{
    DOT11_SSID dot11Ssid;
    ULONG uPhyId;
    DOT11_MAC_ADDRESS dot11Bssid;
    DOT11_BSS_TYPE dot11BssType;
    DOT11_PHY_TYPE dot11BssPhyType;
    LONG lRssi;
    ULONG uLinkQuality;
    BOOLEAN bInRegDomain;
    USHORT usBeaconPeriod;
    ULONGLONG ullTimestamp;
    ULONGLONG ullHostTimestamp;
    USHORT usCapabilityInformation;
    ULONG ulChCenterFrequency;
    WLAN_RATE_SET wlanRateSet;
    ULONG ulIeOffset;
    ULONG ulIeSize;
};
using PWLAN_BSS_ENTRY = WLAN_BSS_ENTRY*;

struct WLAN_BSS_LIST
{
    DWORD dwTotalSize;
    DWORD dwNumberOfItems;
    WLAN_BSS_ENTRY wlanBssEntries[1];
};
using PWLAN_BSS_LIST = WLAN_BSS_LIST*;

struct WLAN_RAW_DATA
{
    DWORD dwDataSize;
    BYTE DataBlob[1];
};
using PWLAN_RAW_DATA = WLAN_RAW_DATA*;

// Profiles

struct WLAN_PROFILE_INFO
{
    WCHAR strProfileName[WLAN_MAX_NAME_LENGTH];
    DWORD dwFlags;
};
using PWLAN_PROFILE_INFO = WLAN_PROFILE_INFO*;

struct WLAN_PROFILE_INFO_LIST
{
    DWORD dwNumberOfItems;
    DWORD dwIndex;
    WLAN_PROFILE_INFO ProfileInfo[1];
};
using PWLAN_PROFILE_INFO_LIST = WLAN_PROFILE_INFO_LIST*;

// Connections

enum WLAN_CONNECTION_MODE : unsigned int
{
    wlan_connection_mode_profile = 0,
    wlan_connection_mode_temporary_profile = 1,
    wlan_connection_mode_discovery_secure = 2,
    wlan_connection_mode_discovery_unsecure = 3,
    wlan_connection_mode_auto = 4,
    wlan_connection_mode_invalid = 5
};
using PWLAN_CONNECTION_MODE = WLAN_CONNECTION_MODE*;

struct WLAN_CONNECTION_PARAMETERS
{
    WLAN_CONNECTION_MODE wlanConnectionMode;
    LPCWSTR strProfile;
    PDOT11_SSID pDot11Ssid;
    PDOT11_BSSID_LIST pDesiredBssidList;
    DOT11_BSS_TYPE dot11BssType;
    DWORD dwFlags;
};
using PWLAN_CONNECTION_PARAMETERS = WLAN_CONNECTION_PARAMETERS*;

struct WLAN_ASSOCIATION_ATTRIBUTES
{
    DOT11_SSID dot11Ssid;
    DOT11_BSS_TYPE dot11BssType;
    DOT11_MAC_ADDRESS dot11Bssid;
    DOT11_PHY_TYPE dot11PhyType;
    ULONG uDot11PhyIndex;
    WLAN_SIGNAL_QUALITY wlanSignalQuality;
    ULONG ulRxRate;
    ULONG ulTxRate;
};
using PWLAN_ASSOCIATION_ATTRIBUTES = WLAN_ASSOCIATION_ATTRIBUTES*;

struct WLAN_SECURITY_ATTRIBUTES
{
    BOOL bSecurityEnabled;
    BOOL bOneXEnabled;
    DOT11_AUTH_ALGORITHM dot11AuthAlgorithm;
    DOT11_CIPHER_ALGORITHM dot11CipherAlgorithm;
};
using PWLAN_SECURITY_ATTRIBUTES = WLAN_SECURITY_ATTRIBUTES*;

struct WLAN_CONNECTION_ATTRIBUTES
{
    WLAN_INTERFACE_STATE isState;
    WLAN_CONNECTION_MODE wlanConnectionMode;
    WCHAR strProfileName[WLAN_MAX_NAME_LENGTH];
    WLAN_ASSOCIATION_ATTRIBUTES wlanAssociationAttributes;
    WLAN_SECURITY_ATTRIBUTES wlanSecurityAttributes;
};
using PWLAN_CONNECTION_ATTRIBUTES = WLAN_CONNECTION_ATTRIBUTES*;

// Radios

struct WLAN_PHY_RADIO_STATE
{
    DWORD dwPhyIndex;
    DOT11_RADIO_STATE dot11SoftwareRadioState;
    DOT11_RADIO_STATE dot11HardwareRadioState;
};
using PWLAN_PHY_RADIO_STATE = WLAN_PHY_RADIO_STATE*;

struct WLAN_RADIO_STATE
{
    DWORD dwNumberOfPhys;
    WLAN_PHY_RADIO_STATE PhyRadioState[WLAN_MAX_PHY_INDEX];
};
using PWLAN_RADIO_STATE = WLAN_RADIO_STATE*;

// Statistics

struct WLAN_MAC_FRAME_STATISTICS
{
    ULONGLONG ullTransmittedFrameCount;
    ULONGLONG ullReceivedFrameCount;
    ULONGLONG ullWEPExcludedCount;
    ULONGLONG ullTKIPLocalMICFailures;
    ULONGLONG ullTKIPReplays;
    ULONGLONG ullTKIPICVErrorCount;
    ULONGLONG ullCCMPReplays;
    ULONGLONG ullCCMPDecryptErrors;
    ULONGLONG ullWEPUndecryptableCount;
    ULONGLONG ullWEPICVErrorCount;
    ULONGLONG ullDecryptSuccessCount;
    ULONGLONG ullDecryptFailureCount;
};
using PWLAN_MAC_FRAME_STATISTICS = WLAN_MAC_FRAME_STATISTICS*;

struct WLAN_PHY_FRAME_STATISTICS
{
    ULONGLONG ullTransmittedFrameCount;
    ULONGLONG ullMulticastTransmittedFrameCount;
    ULONGLONG ullFailedCount;
    ULONGLONG ullRetryCount;
    ULONGLONG ullMultipleRetryCount;
    ULONGLONG ullMaxTXLifetimeExceededCount;
    ULONGLONG ullTransmittedFragmentCount;
    ULONGLONG ullRTSSuccessCount;
    ULONGLONG ullRTSFailureCount;
    ULONGLONG ullACKFailureCount;
    ULONGLONG ullReceivedFrameCount;
    ULONGLONG ullMulticastReceivedFrameCount;
    ULONGLONG ullPromiscuousReceivedFrameCount;
    ULONGLONG ullMaxRXLifetimeExceededCount;
    ULONGLONG ullFrameDuplicateCount;
    ULONGLONG ullReceivedFragmentCount;
    ULONGLONG ullPromiscuousReceivedFragmentCount;
    ULONGLONG ullFCSErrorCount;
};
using PWLAN_PHY_FRAME_STATISTICS = WLAN_PHY_FRAME_STATISTICS*;

struct WLAN_STATISTICS
{
    ULONGLONG ullFourWayHandshakeFailures;
    ULONGLONG ullTKIPCounterMeasuresInvoked;
    ULONGLONG ullReserved;
    WLAN_MAC_FRAME_STATISTICS MacUcastCounters;
    WLAN_MAC_FRAME_STATISTICS MacMcastCounters;
    DWORD dwNumberOfPhys;
    WLAN_PHY_FRAME_STATISTICS PhyCounters[1];
};
using PWLAN_STATISTICS = WLAN_STATISTICS*;

// Auto-configuration, security and vendor control

enum WLAN_AUTOCONF_OPCODE : unsigned int
{
    wlan_autoconf_opcode_start = 0,
    wlan_autoconf_opcode_show_denied_networks = 1,
    wlan_autoconf_opcode_power_setting = 2,
    wlan_autoconf_opcode_only_use_gp_profiles_for_allowed_networks = 3,
    wlan_autoconf_opcode_allow_explicit_creds = 4,
    wlan_autoconf_opcode_block_period = 5,
    wlan_autoconf_opcode_allow_virtual_station_extensibility = 6,
    wlan_autoconf_opcode_end = 7
};
using PWLAN_AUTOCONF_OPCODE = WLAN_AUTOCONF_OPCODE*;

enum WLAN_POWER_SETTING : unsigned int
{
    wlan_power_setting_no_saving = 0,
    wlan_power_setting_low_saving = 1,
    wlan_power_setting_medium_saving = 2,
    wlan_power_setting_maximum_saving = 3,
    wlan_power_setting_invalid = 4
};
using PWLAN_POWER_SETTING = WLAN_POWER_SETTING*;

enum WLAN_SECURABLE_OBJECT : unsigned int
{
    wlan_secure_permit_list = 0,
    wlan_secure_deny_list = 1,
    wlan_secure_ac_enabled = 2,
    wlan_secure_bc_scan_enabled = 3,
    wlan_secure_bss_type = 4,
    wlan_secure_show_denied = 5,
    wlan_secure_interface_properties = 6,
    wlan_secure_ihv_control = 7,
    wlan_secure_all_user_profiles_order = 8,
    wlan_secure_add_new_all_user_profiles = 9,
    wlan_secure_add_new_per_user_profiles = 10,
    wlan_secure_media_streaming_mode_enabled = 11,
    wlan_secure_current_operation_mode = 12,
    wlan_secure_get_plaintext_key = 13,
    wlan_secure_hosted_network_elevated_access = 14
};
using PWLAN_SECURABLE_OBJECT = WLAN_SECURABLE_OBJECT*;

enum WLAN_IHV_CONTROL_TYPE : unsigned int
{
    wlan_ihv_control_type_service = 0,
    wlan_ihv_control_type_driver = 1
};
using PWLAN_IHV_CONTROL_TYPE = WLAN_IHV_CONTROL_TYPE*;
