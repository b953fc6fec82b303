#pragma once

#include "import/capture_text.h"

#include <string>
#include <vector>

namespace calvix::host
{

/// What the lines of a capture are, by their English names, for captures of any language of the system: `key` of each
/// field is set where its name does not tell. Translations change the labels, but neither the order of the lines nor the
/// shape of what stands in them. "SSID n" and "BSSID n" are never translated.
///
/// A field with an English label keeps it, whatever its value. Both return whether labels of another language were
/// recognised.

/// For `netsh wlan show networks mode=bssid`.
bool RecogniseNetworkLines(std::vector<CaptureField>& fields);

/// For `netsh wlan show interfaces`. An adapter begins with the second line before its GUID; one with a second address is
/// connected.
bool RecogniseInterfaceLines(std::vector<CaptureField>& fields);

/// A warning for each kind of line that nothing recognised.
std::vector<std::string> NotUnderstood(const std::vector<CaptureField>& fields, const std::string& source);

} // namespace calvix::host
