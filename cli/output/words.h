#pragma once

#include <calvix/platform_records.h>

#include <string>

namespace calvix::host
{

/// The platform's numbers in the words that people use for them; an unknown number stays one.

/// "WPA2-PSK/CCMP", "open"
std::string SecurityText(DOT11_AUTH_ALGORITHM algorithm, DOT11_CIPHER_ALGORITHM cipher);
/// "802.11ax"
std::string PhyText(DOT11_PHY_TYPE type);
std::string BssTypeText(DOT11_BSS_TYPE type);
std::string ConnectionModeText(WLAN_CONNECTION_MODE mode);
/// What the service says about a reason code.
std::string ReasonText(DWORD reasonCode);

/// "2.4 GHz", "5 GHz", "6 GHz"
std::string BandText(unsigned long frequencyKhz);

} // namespace calvix::host
