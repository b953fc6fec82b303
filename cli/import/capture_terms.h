#pragma once

#include "import/capture_text.h"
#include "import/capture_words.h"
#include "simulation/scenario.h"

#include <cstdint>
#include <string>

namespace calvix::host
{

/// What the words and numbers of a capture mean. Every function throws LineError, with the field's line, for a value that
/// it does not know.

/// Whether a value has the shape of a percentage, a radio type ("802.11..."), a band ("5 GHz"), a list of numbers, an
/// address or a GUID.
bool IsPercentage(std::string_view text);
bool IsRadioType(std::string_view text);
bool IsBand(std::string_view text);
bool IsNumberList(std::string_view text);
bool IsAddress(std::string_view text);
bool IsGuid(std::string_view text);

/// "70%", or "%70", as dBm, by the service's rule: 0 to 100 % are -100 to -50 dBm.
std::int32_t SignalStrength(const CaptureField& field);

/// "802.11ax" as DOT11_PHY_TYPE.
std::uint32_t PhyType(const CaptureField& field);

/// "Infrastructure" or "Adhoc" as DOT11_BSS_TYPE.
std::uint32_t BssType(const CaptureField& field, const Vocabulary& vocabulary);

/// How a network authenticates and encrypts, as a profile writes it.
struct NetworkSecurity
{
    std::string authentication; ///< "WPA2PSK" for "WPA2-Personal"
    std::string encryption;     ///< "AES" for "CCMP"
};

/// Ciphers have their names in every language, but for "None"; so have the standards that authentications begin with. Where
/// the vocabulary is foreign, an unknown word in a cipher's place therefore means that there is none; and a network
/// without a cipher is open, whatever the word for it.
NetworkSecurity
Security(const CaptureField& authentication, const CaptureField& encryption, const Vocabulary& vocabulary);

/// Six bytes, as "02:00:00:00:00:01" or with hyphens.
simulation::MacAddress Address(const CaptureField& field);

/// A GUID with or without braces, as "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}" in capitals.
std::string GuidText(const CaptureField& field);

/// An SSID, whose 32 bytes at most are those of its UTF-8 text; empty for a network that hides its name.
simulation::Bytes Ssid(const CaptureField& field);

/// Sets what the record says of how an access point is heard: its strength, PHY type and frequency. "Rssi" is exact;
/// newer systems tell it beside the percentage.
void Hear(const CaptureRecord& record, simulation::AccessPoint& accessPoint);

} // namespace calvix::host
