// What the media-specific module tells. Some SDKs lack these names, and no compiler tells which does: on Windows macros
// stand for ours, over those that an SDK may have with the same values.
#pragma once

namespace calvix
{
enum WLAN_NOTIFICATION_MSM : unsigned int
{
    wlan_notification_msm_start = 0,
    wlan_notification_msm_associating = 1,
    wlan_notification_msm_associated = 2,
    wlan_notification_msm_authenticating = 3,
    wlan_notification_msm_connected = 4,
    wlan_notification_msm_roaming_start = 5,
    wlan_notification_msm_roaming_end = 6,
    wlan_notification_msm_radio_state_change = 7,
    wlan_notification_msm_signal_quality_change = 8,
    wlan_notification_msm_disassociating = 9,
    wlan_notification_msm_disconnected = 10,
    wlan_notification_msm_peer_join = 11,
    wlan_notification_msm_peer_leave = 12,
    wlan_notification_msm_adapter_removal = 13,
    wlan_notification_msm_adapter_operation_mode_change = 14,
    wlan_notification_msm_link_degraded = 15,
    wlan_notification_msm_link_improved = 16,
    wlan_notification_msm_end = 17
};
using PWLAN_NOTIFICATION_MSM = WLAN_NOTIFICATION_MSM*;
} // namespace calvix

#ifdef _WIN32
#define WLAN_NOTIFICATION_MSM ::calvix::WLAN_NOTIFICATION_MSM
#define PWLAN_NOTIFICATION_MSM ::calvix::PWLAN_NOTIFICATION_MSM
#define wlan_notification_msm_start ::calvix::wlan_notification_msm_start
#define wlan_notification_msm_associating ::calvix::wlan_notification_msm_associating
#define wlan_notification_msm_associated ::calvix::wlan_notification_msm_associated
#define wlan_notification_msm_authenticating ::calvix::wlan_notification_msm_authenticating
#define wlan_notification_msm_connected ::calvix::wlan_notification_msm_connected
#define wlan_notification_msm_roaming_start ::calvix::wlan_notification_msm_roaming_start
#define wlan_notification_msm_roaming_end ::calvix::wlan_notification_msm_roaming_end
#define wlan_notification_msm_radio_state_change ::calvix::wlan_notification_msm_radio_state_change
#define wlan_notification_msm_signal_quality_change ::calvix::wlan_notification_msm_signal_quality_change
#define wlan_notification_msm_disassociating ::calvix::wlan_notification_msm_disassociating
#define wlan_notification_msm_disconnected ::calvix::wlan_notification_msm_disconnected
#define wlan_notification_msm_peer_join ::calvix::wlan_notification_msm_peer_join
#define wlan_notification_msm_peer_leave ::calvix::wlan_notification_msm_peer_leave
#define wlan_notification_msm_adapter_removal ::calvix::wlan_notification_msm_adapter_removal
#define wlan_notification_msm_adapter_operation_mode_change                                                            \
    ::calvix::wlan_notification_msm_adapter_operation_mode_change
#define wlan_notification_msm_link_degraded ::calvix::wlan_notification_msm_link_degraded
#define wlan_notification_msm_link_improved ::calvix::wlan_notification_msm_link_improved
#define wlan_notification_msm_end ::calvix::wlan_notification_msm_end
#else
using calvix::WLAN_NOTIFICATION_MSM;
using enum calvix::WLAN_NOTIFICATION_MSM;
using calvix::PWLAN_NOTIFICATION_MSM;
#endif
