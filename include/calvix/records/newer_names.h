// Enumerators that an SDK may not have yet. No compiler tells which it has, so these are macros: over an enumerator of
// the SDK, they stand for the same value of the same type. Used on Windows, behind the SDK's headers.
#pragma once

#define dot11_phy_type_vht static_cast<DOT11_PHY_TYPE>(8)
#define dot11_phy_type_dmg static_cast<DOT11_PHY_TYPE>(9)
#define dot11_phy_type_he static_cast<DOT11_PHY_TYPE>(10)
#define dot11_phy_type_eht static_cast<DOT11_PHY_TYPE>(11)

#define DOT11_AUTH_ALGO_WPA3 static_cast<DOT11_AUTH_ALGORITHM>(8)
#define DOT11_AUTH_ALGO_WPA3_ENT_192 static_cast<DOT11_AUTH_ALGORITHM>(8)
#define DOT11_AUTH_ALGO_WPA3_SAE static_cast<DOT11_AUTH_ALGORITHM>(9)
#define DOT11_AUTH_ALGO_OWE static_cast<DOT11_AUTH_ALGORITHM>(10)
#define DOT11_AUTH_ALGO_WPA3_ENT static_cast<DOT11_AUTH_ALGORITHM>(11)

#define DOT11_CIPHER_ALGO_BIP static_cast<DOT11_CIPHER_ALGORITHM>(0x06)
#define DOT11_CIPHER_ALGO_GCMP static_cast<DOT11_CIPHER_ALGORITHM>(0x08)
#define DOT11_CIPHER_ALGO_GCMP_256 static_cast<DOT11_CIPHER_ALGORITHM>(0x09)
#define DOT11_CIPHER_ALGO_CCMP_256 static_cast<DOT11_CIPHER_ALGORITHM>(0x0a)
#define DOT11_CIPHER_ALGO_BIP_GMAC_128 static_cast<DOT11_CIPHER_ALGORITHM>(0x0b)
#define DOT11_CIPHER_ALGO_BIP_GMAC_256 static_cast<DOT11_CIPHER_ALGORITHM>(0x0c)
#define DOT11_CIPHER_ALGO_BIP_CMAC_256 static_cast<DOT11_CIPHER_ALGORITHM>(0x0d)

#define wlan_intf_opcode_management_frame_protection_capable static_cast<WLAN_INTF_OPCODE>(16)

#define wlan_notification_acm_profile_unblocked static_cast<WLAN_NOTIFICATION_ACM>(23)
#define wlan_notification_acm_screen_power_change static_cast<WLAN_NOTIFICATION_ACM>(24)
#define wlan_notification_acm_profile_blocked static_cast<WLAN_NOTIFICATION_ACM>(25)
#define wlan_notification_acm_scan_list_refresh static_cast<WLAN_NOTIFICATION_ACM>(26)
#define wlan_notification_acm_operational_state_change static_cast<WLAN_NOTIFICATION_ACM>(27)

// A macro of the SDK: not every one lists the numbers that come from the network driver interface.
#ifndef ERROR_NDIS_DOT11_POWER_STATE_INVALID
inline constexpr DWORD ERROR_NDIS_DOT11_POWER_STATE_INVALID = 0x80342002;
#endif
