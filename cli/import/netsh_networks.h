#pragma once

#include "import/capture_words.h"
#include "import/netsh_interfaces.h"
#include "simulation/scenario.h"

#include <string>
#include <string_view>
#include <vector>

namespace calvix::host
{

/// What a tool printed that lists the networks in view.
struct NetworksCapture : CaptureWarnings
{
    std::vector<std::string> adapterNames;             ///< one for each adapter that listened
    std::vector<simulation::AccessPoint> accessPoints; ///< ready for a scenario, in the capture's order
    std::vector<CapturedConnection> connections;       ///< for tools that list them with the networks

    void AddAdapterName(std::string_view name);
    /// A connection that a list of networks shows.
    void AddConnection(const simulation::AccessPoint& accessPoint);
    /// Throws CaptureError, with the first warning, where nothing could be used.
    void RefuseUseless() const;
};

/// Whether a text looks like what `netsh wlan show networks mode=bssid` printed.
bool LooksLikeNetworks(std::string_view text);

/// Reads a capture of any language of the system. `text` is UTF-8; `source` is what messages call it; `explained` are words
/// that the user knows better. Throws CaptureError for any other text, and where nothing could be used. What is not
/// understood, or damaged, costs its line, and what cannot be read without it, with a warning.
NetworksCapture ParseNetworks(std::string_view text, const std::string& source, const ExplainedWords& explained = {});

} // namespace calvix::host
