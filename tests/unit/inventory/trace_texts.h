#pragma once

namespace calvix::test
{

/// The trace lines of the methods about networks and connections; "%u" is the platform's error.
inline constexpr const char* kNetworksFailed = "WlanGetAvailableNetworkList failed with error: %u";
inline constexpr const char* kBssFailed = "WlanGetNetworkBssList failed with error: %u";
inline constexpr const char* kNoAdapterText = "No valid WLAN adapter";

/// What the service says of an interface that is not connected.
inline constexpr const char* kNotConnected = "WlanQueryInterface failed with error: 5023";
/// Deliberate: no BSS in view is traced as a failure without an error.
inline constexpr const char* kNoBss = "WlanGetNetworkBssList failed with error: 0";

inline constexpr const char* kInterfacesReleased = "WlanFreeMemory(pIfList)";
inline constexpr const char* kNetworksReleased = "WlanFreeMemory(pAvailableList)";
inline constexpr const char* kBssReleased = "WlanFreeMemory(pBssList)";
inline constexpr const char* kConnectionReleased = "WlanFreeMemory(pConnectInfo)";
inline constexpr const char* kRssiReleased = "WlanFreeMemory(pRssi)";

} // namespace calvix::test
