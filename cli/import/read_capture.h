#pragma once

#include "import/capture_words.h"
#include "import/netsh_interfaces.h"
#include "import/netsh_networks.h"
#include "import/profile_folder.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace calvix::host
{

/// What the user knows about captures that they do not tell themselves.
struct CaptureHints
{
    std::optional<std::uint32_t> codePage;
    ExplainedWords words;
    std::vector<std::string> columns; ///< of a list that nmcli printed without their names
};

struct ReadResult
{
    std::variant<NetworksCapture, InterfacesCapture, ExportedProfile> content;
    std::vector<std::string> warnings; ///< what was guessed, not understood or left out, but for those within `content`
};

/// Reads one captured file, whatever it is: what netsh printed in any language, an exported profile, or what iw or nmcli
/// printed. A function of its arguments alone. `source` is what messages call the file. Throws CaptureError for a text that
/// is none of these, or damaged.
ReadResult ReadCapture(std::string_view bytes, const std::string& source, const CaptureHints& hints = {});

/// The same for a file that is known to be a list of networks, or of interfaces.
NetworksCapture ReadNetworksText(std::string_view text, const std::string& source, const CaptureHints& hints);

} // namespace calvix::host
