#pragma once

#include "import/netsh_interfaces.h"
#include "import/netsh_networks.h"
#include "import/profile_folder.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace calvix::host
{

/// What the user knows about captures that they do not show themselves.
struct CaptureHints
{
    std::optional<std::uint32_t> codePage;
    ExplainedWords words;
};

/// Everything that was captured on one machine, as far as it was.
struct Captures
{
    std::optional<NetworksCapture> networks;
    std::optional<InterfacesCapture> interfaces;
    std::vector<ExportedProfile> profiles;
    std::vector<std::string> warnings; ///< what was guessed, not understood or left out
};

/// Reads one captured file, whatever it is: what netsh printed in any language, an exported profile, or what iw or nmcli
/// printed. A function of its arguments alone. `source` is what messages call the file. Throws CaptureError for a text that
/// is none of these, of which nothing can be used, or that is the second of its kind.
void ReadCapture(std::string_view bytes, const std::string& source, const CaptureHints& hints, Captures& captures);

} // namespace calvix::host
