// A host whose SDK has some of the names that others lack: nothing is declared twice, and the values are the same.

// clang-format off
#include <windows.h>
#include <wlanapi.h>
// clang-format on

enum NewerEnumerators
{
    dot11_phy_type_he = 10,
    DOT11_AUTH_ALGO_WPA3_SAE = 9
};
typedef enum _WLAN_NOTIFICATION_MSM
{
    wlan_notification_msm_start = 0,
    wlan_notification_msm_connected = 4
} WLAN_NOTIFICATION_MSM,
    *PWLAN_NOTIFICATION_MSM;
#define WLAN_REASON_CODE_SUCCESS 0
#define WLAN_AVAILABLE_NETWORK_CONNECTED 0x00000001

#include <calvix/platform_records.h>

static_assert(DOT11_PHY_TYPE{dot11_phy_type_he} == 10 && DOT11_AUTH_ALGORITHM{DOT11_AUTH_ALGO_WPA3_SAE} == 9);
static_assert(WLAN_NOTIFICATION_MSM{wlan_notification_msm_connected} == 4 && PWLAN_NOTIFICATION_MSM{} == nullptr);
static_assert(WLAN_REASON_CODE_SUCCESS == 0 && WLAN_REASON_CODE_UNKNOWN == 0x00010001);
static_assert(WLAN_AVAILABLE_NETWORK_CONNECTED == 1 && WLAN_AVAILABLE_NETWORK_HAS_PROFILE == 2);
