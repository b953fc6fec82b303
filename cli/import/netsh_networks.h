#pragma once

#include "import/capture_words.h"
#include "import/netsh_interfaces.h"
#include "simulation/scenario.h"

#include <string>
#include <string_view>
#include <vector>

namespace calvix::host
{

/// One "SSID n" of a capture: what its access points have in common, and the access points. The latter carry
/// everything, ready for a scenario.
struct CapturedNetwork
{
    std::string ssid; ///< empty: hidden
    std::vector<simulation::AccessPoint> accessPoints;
};

/// What a tool printed that lists the networks in view.
struct NetworksCapture
{
    std::string source;
    std::vector<std::string> adapterNames;       ///< one for each adapter that listened
    std::vector<CapturedNetwork> networks;       ///< in the capture's order
    std::vector<CapturedConnection> connections; ///< for tools that list them with the networks
    std::vector<std::string> warnings;           ///< what was not understood, and what became of it
};

/// Throws CaptureError, with the first warning, where nothing in the capture could be used.
void RefuseUseless(const NetworksCapture& capture);

/// Whether a text looks like this kind of capture.
bool LooksLikeNetworks(std::string_view text);

/// Reads a capture of any language of the system. `text` is UTF-8; `source` is what messages call it; `explained` are words
/// that the user knows better. Throws CaptureError for any other text, and where nothing could be used. What is not
/// understood, or damaged, costs its line, and what cannot be read without it, with a warning.
NetworksCapture ParseNetworks(std::string_view text, const std::string& source, const ExplainedWords& explained = {});

} // namespace calvix::host
