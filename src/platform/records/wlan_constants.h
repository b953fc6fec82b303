// WLAN numbers that some Windows SDKs do not have yet. Flags, access rights and reason codes keep the
// platform's names (they are macros there, so a missing one can be told). Enumerators cannot be told, so
// the newer ones stand here once more under names of their own, for code that has to compile with every
// SDK.
#pragma once

#include <calvix/platform_records.h>

#ifdef _WIN32

#ifndef WLAN_REASON_CODE_SUCCESS
#include <calvix/records/wlan_reason_codes.h>
#endif

#ifndef L2_NOTIFICATION_SOURCE_ALL
#define L2_NOTIFICATION_SOURCE_ALL 0x0000ffff
#endif

#ifndef WLAN_AVAILABLE_NETWORK_CONNECTED
#define WLAN_AVAILABLE_NETWORK_CONNECTED 0x00000001
#endif
#ifndef WLAN_AVAILABLE_NETWORK_HAS_PROFILE
#define WLAN_AVAILABLE_NETWORK_HAS_PROFILE 0x00000002
#endif
#ifndef WLAN_AVAILABLE_NETWORK_CONSOLE_USER_PROFILE
#define WLAN_AVAILABLE_NETWORK_CONSOLE_USER_PROFILE 0x00000004
#endif
#ifndef WLAN_AVAILABLE_NETWORK_AUTO_CONNECT_FAILED
#define WLAN_AVAILABLE_NETWORK_AUTO_CONNECT_FAILED 0x00000100
#endif
#ifndef WLAN_AVAILABLE_NETWORK_INCLUDE_ALL_ADHOC_PROFILES
#define WLAN_AVAILABLE_NETWORK_INCLUDE_ALL_ADHOC_PROFILES 0x00000001
#endif
#ifndef WLAN_AVAILABLE_NETWORK_INCLUDE_ALL_MANUAL_HIDDEN_PROFILES
#define WLAN_AVAILABLE_NETWORK_INCLUDE_ALL_MANUAL_HIDDEN_PROFILES 0x00000002
#endif

#ifndef WLAN_PROFILE_GROUP_POLICY
#define WLAN_PROFILE_GROUP_POLICY 0x00000001
#endif
#ifndef WLAN_PROFILE_USER
#define WLAN_PROFILE_USER 0x00000002
#endif
#ifndef WLAN_PROFILE_GET_PLAINTEXT_KEY
#define WLAN_PROFILE_GET_PLAINTEXT_KEY 0x00000004
#endif

#ifndef WLAN_READ_ACCESS
#define WLAN_READ_ACCESS 0x00020001
#endif
#ifndef WLAN_EXECUTE_ACCESS
#define WLAN_EXECUTE_ACCESS 0x00020021
#endif
#ifndef WLAN_WRITE_ACCESS
#define WLAN_WRITE_ACCESS 0x00070023
#endif

#endif

namespace calvix::phy_type
{
inline constexpr auto vht = static_cast<DOT11_PHY_TYPE>(8);
inline constexpr auto dmg = static_cast<DOT11_PHY_TYPE>(9);
inline constexpr auto he = static_cast<DOT11_PHY_TYPE>(10);
inline constexpr auto eht = static_cast<DOT11_PHY_TYPE>(11);
} // namespace calvix::phy_type

namespace calvix::auth
{
inline constexpr auto wpa3_enterprise_192 = static_cast<DOT11_AUTH_ALGORITHM>(8);
inline constexpr auto wpa3_sae = static_cast<DOT11_AUTH_ALGORITHM>(9);
inline constexpr auto owe = static_cast<DOT11_AUTH_ALGORITHM>(10);
inline constexpr auto wpa3_enterprise = static_cast<DOT11_AUTH_ALGORITHM>(11);
} // namespace calvix::auth

namespace calvix::cipher
{
inline constexpr auto gcmp_256 = static_cast<DOT11_CIPHER_ALGORITHM>(9);
} // namespace calvix::cipher

// Notification codes: of the auto-configuration module those that are not in every SDK, and all of the media-specific
// module.
namespace calvix::acm
{
inline constexpr DWORD scan_list_refresh = 26;
} // namespace calvix::acm

namespace calvix::msm
{
inline constexpr DWORD associating = 1;
inline constexpr DWORD associated = 2;
inline constexpr DWORD authenticating = 3;
inline constexpr DWORD connected = 4;
inline constexpr DWORD roaming_start = 5;
inline constexpr DWORD roaming_end = 6;
inline constexpr DWORD radio_state_change = 7;
inline constexpr DWORD signal_quality_change = 8;
inline constexpr DWORD disassociating = 9;
inline constexpr DWORD disconnected = 10;
inline constexpr DWORD peer_leave = 12;
} // namespace calvix::msm
