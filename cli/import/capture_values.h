#pragma once

#include "import/capture_fields.h"
#include "import/capture_words.h"
#include "simulation/scenario.h"

#include <cstdint>
#include <optional>
#include <string>

namespace calvix::host
{

/// Whether a value has the shape of a percentage, a radio type ("802.11..."), a band ("5 GHz"), an address or a
/// GUID. An address or a GUID may be masked.
bool IsPercentage(std::string_view text);
bool IsRadioType(std::string_view text);
bool IsBand(std::string_view text);
bool IsAddress(std::string_view text);
bool IsGuid(std::string_view text);

/// What the words and numbers of the tools mean. Every function throws LineError, with the field's line, for a value that it
/// does not know.

/// "Infrastructure" or "Adhoc" as DOT11_BSS_TYPE.
std::uint32_t BssType(const CaptureField& field, const Vocabulary& vocabulary);

/// How a network authenticates and encrypts, as a profile writes it. Ciphers have their names in every language, but for
/// "None"; so have the standards that authentications begin with. Where the vocabulary is foreign, an unknown word in a
/// cipher's place therefore means that there is none; and a network without a cipher is open, whatever the word for it.
void ReadSecurity(const CaptureField& authentication,
                  const CaptureField& encryption,
                  const Vocabulary& vocabulary,
                  simulation::AccessPoint& accessPoint);

/// Six bytes, as "02:00:00:00:00:01" or with hyphens.
simulation::MacAddress Address(const CaptureField& field);

/// A GUID with or without braces, as "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}" in capitals.
std::string GuidText(const CaptureField& field);

/// An SSID of 32 bytes at most; empty for a network that hides its name.
simulation::Bytes Ssid(std::string_view bytes, std::size_t line);

/// Sets what the record says of how an access point is heard: its strength, PHY type and frequency. "Rssi" is exact; newer
/// systems print it beside the percentage, of which 0 to 100 % are -100 to -50 dBm by the service's rule.
void Hear(const CaptureRecord& record, simulation::AccessPoint& accessPoint);

/// "2401.9" (Mbit/s) in kbit/s, 0 without such a field.
std::uint32_t RateKbps(const CaptureField* field);

/// The centre frequency in kHz of a channel of the band "2.4", "5" or "6". An empty band is 2.4 or 5, as systems that leave
/// it out know nothing of 6 GHz. None for a channel that captures of the band cannot hold.
std::optional<std::uint32_t> CapturedFrequency(std::string_view band, int channel);

/// The frequency in kHz of a megahertz value that a tool printed, 0 for one that no channel has.
std::uint32_t FrequencyFromMegahertz(std::string_view text);

/// The PHY type of an access point of which nothing newer is known: by its band and its highest rate.
std::uint32_t OldPhyType(std::uint32_t frequencyKhz, int highestRate);

} // namespace calvix::host
