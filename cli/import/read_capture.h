#pragma once

#include "import/capture_text.h"
#include "import/capture_words.h"
#include "import/profile_folder.h"
#include "simulation/scenario.h"

#include <cstdint>
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

/// What a tool printed that lists the networks in view.
struct NetworksCapture : CaptureWarnings
{
    std::vector<std::string> adapterNames;             ///< one for each adapter that listened
    std::vector<simulation::AccessPoint> accessPoints; ///< ready for a scenario, in the capture's order
    std::vector<CapturedConnection> connections;       ///< for tools that list them with the networks

    void AddAdapterName(std::string_view name);
    /// A connection that a list of networks shows.
    void AddConnection(const simulation::AccessPoint& accessPoint);
};

/// The readers of one tool's output each. They return false, and change nothing, for a text (UTF-8) that does not look like
/// it. What is not understood, or damaged, costs its line, and what cannot be read without it, with a warning; they throw
/// CaptureError or LineError where nothing could be used.

/// `netsh wlan show networks mode=bssid` and `netsh wlan show interfaces`, in any language of the system; `explained` are
/// words that the user knows better.
bool ReadNetshNetworks(std::string_view text, const ExplainedWords& explained, NetworksCapture& capture);
bool ReadNetshInterfaces(std::string_view text, const ExplainedWords& explained, InterfacesCapture& capture);

/// `iw dev wlan0 scan`, which is in English only. Signal strengths are in dBm, so that they are exact, as are beacon periods;
/// of the information elements, which it prints in words, security and the PHY type are carried over.
bool ReadIwScan(std::string_view text, NetworksCapture& capture);

/// `nmcli dev wifi list`: a table, or values with colons between them (-t). A table's columns are those of its labels or,
/// where these are translated, nmcli's own; values with colons are nmcli's own columns or those of the command below, with
/// or without the flags. Signal strengths are percentages of nmcli's own, and PHY types are guessed from bands and rates,
/// with a warning.
bool ReadNmcliList(std::string_view text, NetworksCapture& capture);

/// What to capture with nmcli, for messages and help.
inline constexpr const char* kNmcliCommand =
    "nmcli -t -f IN-USE,BSSID,SSID,MODE,CHAN,FREQ,RATE,SIGNAL,SECURITY,WPA-FLAGS,RSN-FLAGS dev wifi list";

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
