#pragma once

#include "import/capture_text.h"
#include "simulation/scenario.h"

#include <cstdint>
#include <string>

namespace calvix::host
{

/// What the words and numbers of a capture mean. Every function throws LineError, with the field's line, for a value that
/// it does not know.

/// "70%" as dBm, by the service's rule: 0 to 100 % are -100 to -50 dBm.
std::int32_t SignalStrength(const CaptureField& field);

/// "802.11ax" as DOT11_PHY_TYPE.
std::uint32_t PhyType(const CaptureField& field);

/// "Infrastructure" or "Adhoc" as DOT11_BSS_TYPE.
std::uint32_t BssType(const CaptureField& field);

/// "WPA2-Personal" as a profile writes it: "WPA2PSK".
std::string Authentication(const CaptureField& field);

/// "CCMP" as a profile writes it: "AES".
std::string Encryption(const CaptureField& field);

/// Six bytes, as "02:00:00:00:00:01" or with hyphens.
simulation::MacAddress Address(const CaptureField& field);

/// A GUID with or without braces, as "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}" in capitals.
std::string GuidText(const CaptureField& field);

/// An SSID, whose 32 bytes at most are those of its UTF-8 text; empty for a network that hides its name.
simulation::Bytes Ssid(const CaptureField& field);

/// Sets what the record says of how an access point is heard: its strength, PHY type and frequency.
void Hear(const CaptureRecord& record, simulation::AccessPoint& accessPoint);

} // namespace calvix::host
