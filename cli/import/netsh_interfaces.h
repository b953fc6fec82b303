#pragma once

#include "import/capture_text.h"
#include "import/capture_words.h"
#include "simulation/scenario.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace calvix::host
{

/// A connection that stood when the capture was made.
struct CapturedConnection
{
    std::string profile;
    std::string ssid;
    bool automatic = false;              ///< the service made it by itself
    simulation::AccessPoint accessPoint; ///< complete, as the adapter heard it
    std::uint32_t receiveKbps = 0;       ///< 0: not known
    std::uint32_t transmitKbps = 0;
};

struct CapturedInterface
{
    std::string name; ///< what the system calls it: "Wi-Fi"
    std::string description;
    std::string guid; ///< as a scenario writes it
    simulation::MacAddress address{};
    simulation::RadioSwitch software = simulation::RadioSwitch::on;
    simulation::RadioSwitch hardware = simulation::RadioSwitch::on;
    std::optional<CapturedConnection> connection;
};

/// An adapter of which only the name is known; `index` distinguishes it from others.
CapturedInterface MadeUpInterface(const std::string& name, std::size_t index);

/// What `netsh wlan show interfaces` printed.
struct InterfacesCapture : CaptureWarnings
{
    std::vector<CapturedInterface> adapters;
};

/// Whether a text looks like this kind of capture.
bool LooksLikeInterfaces(std::string_view text);

/// Reads a capture of any language of the system. `text` is UTF-8; `source` is what messages call it; `explained` are words
/// that the user knows better. Throws CaptureError where nothing could be used. What is not understood, or damaged, costs
/// its line, and the connection that cannot be read without it, with a warning.
InterfacesCapture
ParseInterfaces(std::string_view text, const std::string& source, const ExplainedWords& explained = {});

} // namespace calvix::host
