// What the WLAN service tells its clients, for builds without the Windows SDK.
#pragma once

#include <calvix/records/media_notifications.h>
#include <calvix/records/wlan_flags.h>
#include <calvix/records/wlan_types.h>

struct L2_NOTIFICATION_DATA
{
    DWORD NotificationSource;
    DWORD NotificationCode;
    GUID InterfaceGuid;
    DWORD dwDataSize;
    PVOID pData;
};
using PL2_NOTIFICATION_DATA = L2_NOTIFICATION_DATA*;
using WLAN_NOTIFICATION_DATA = L2_NOTIFICATION_DATA;
using PWLAN_NOTIFICATION_DATA = L2_NOTIFICATION_DATA*;

using WLAN_NOTIFICATION_CALLBACK = void(WINAPI*)(PWLAN_NOTIFICATION_DATA, PVOID);

// Auto-configuration module
enum WLAN_NOTIFICATION_ACM : unsigned int
{
    wlan_notification_acm_start = 0,
    wlan_notification_acm_autoconf_enabled = 1,
    wlan_notification_acm_autoconf_disabled = 2,
    wlan_notification_acm_background_scan_enabled = 3,
    wlan_notification_acm_background_scan_disabled = 4,
    wlan_notification_acm_bss_type_change = 5,
    wlan_notification_acm_power_setting_change = 6,
    wlan_notification_acm_scan_complete = 7,
    wlan_notification_acm_scan_fail = 8,
    wlan_notification_acm_connection_start = 9,
    wlan_notification_acm_connection_complete = 10,
    wlan_notification_acm_connection_attempt_fail = 11,
    wlan_notification_acm_filter_list_change = 12,
    wlan_notification_acm_interface_arrival = 13,
    wlan_notification_acm_interface_removal = 14,
    wlan_notification_acm_profile_change = 15,
    wlan_notification_acm_profile_name_change = 16,
    wlan_notification_acm_profiles_exhausted = 17,
    wlan_notification_acm_network_not_available = 18,
    wlan_notification_acm_network_available = 19,
    wlan_notification_acm_disconnecting = 20,
    wlan_notification_acm_disconnected = 21,
    wlan_notification_acm_adhoc_network_state_change = 22,
    wlan_notification_acm_profile_unblocked = 23,
    wlan_notification_acm_screen_power_change = 24,
    wlan_notification_acm_profile_blocked = 25,
    wlan_notification_acm_scan_list_refresh = 26,
    wlan_notification_acm_operational_state_change = 27,
    wlan_notification_acm_end = 28
};
using PWLAN_NOTIFICATION_ACM = WLAN_NOTIFICATION_ACM*;

// strProfileXml runs on past its one element when the service has profile text to show.
struct WLAN_CONNECTION_NOTIFICATION_DATA
{
    WLAN_CONNECTION_MODE wlanConnectionMode;
    WCHAR strProfileName[WLAN_MAX_NAME_LENGTH];
    DOT11_SSID dot11Ssid;
    DOT11_BSS_TYPE dot11BssType;
    BOOL bSecurityEnabled;
    WLAN_REASON_CODE wlanReasonCode;
    DWORD dwFlags;
    WCHAR strProfileXml[1];
};
using PWLAN_CONNECTION_NOTIFICATION_DATA = WLAN_CONNECTION_NOTIFICATION_DATA*;

struct WLAN_MSM_NOTIFICATION_DATA
{
    WLAN_CONNECTION_MODE wlanConnectionMode;
    WCHAR strProfileName[WLAN_MAX_NAME_LENGTH];
    DOT11_SSID dot11Ssid;
    DOT11_BSS_TYPE dot11BssType;
    DOT11_MAC_ADDRESS dot11MacAddr;
    BOOL bSecurityEnabled;
    BOOL bFirstPeer;
    BOOL bLastPeer;
    WLAN_REASON_CODE wlanReasonCode;
};
using PWLAN_MSM_NOTIFICATION_DATA = WLAN_MSM_NOTIFICATION_DATA*;

enum WLAN_ADHOC_NETWORK_STATE : unsigned int
{
    wlan_adhoc_network_state_formed = 0,
    wlan_adhoc_network_state_connected = 1
};
