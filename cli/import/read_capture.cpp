#include "import/read_capture.h"

#include "import/capture_encoding.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

constexpr std::string_view kWiredProfile = "<LANProfile";

/// What people capture by mistake, and what to do.
void RefuseWithRemedy(std::string_view text, const std::string& source)
{
    const std::pair<std::string_view, std::string> kMistakes[] = {
        {"ms-settings:privacy-location",
         "Windows refused the list: switch location services on, on the page Location of Privacy & security in the "
         "settings, and capture again in a console with administrator rights"},
        {"wlansvc", "the WLAN service was not running: start it with \"net start wlansvc\" and capture again"},
        {kWiredProfile,
         "this is a profile of a wired network: export wireless ones with \"netsh wlan export profile\""},
        {"SIGNAL  BARS  SECURITY", "this list has no addresses: capture with \"" + std::string(kNmcliCommand) + "\""},
    };
    for (const auto& [part, message] : kMistakes)
        if (const std::size_t at = text.find(part); at != std::string_view::npos)
        {
            const auto line = 1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n');
            throw CaptureError(source + ":" + std::to_string(line) + ": " + message);
        }
}

void Add(std::vector<std::string>& warnings, const std::vector<std::string>& more)
{
    warnings.insert(warnings.end(), more.begin(), more.end());
}

template <typename Capture>
void Set(std::optional<Capture>& known, Capture read, const std::string& what, std::vector<std::string>& warnings)
{
    if (known)
        throw CaptureError(read.source + ": this is a second list of " + what + ", after " + known->source +
                           ": import one at a time");
    Add(warnings, read.warnings);
    known = std::move(read);
}

} // namespace

void ReadCapture(std::string_view bytes, const std::string& source, const CaptureHints& hints, Captures& captures)
{
    CaptureWarnings encoding{source, {}};
    const std::string text = DecodeCapture(bytes, hints.codePage, encoding);
    Add(captures.warnings, encoding.warnings);
    if (LooksLikeProfile(text) && text.find(kWiredProfile) == std::string::npos)
        return void(captures.profiles.push_back(ParseExportedProfile(text, source)));
    NetworksCapture networks;
    InterfacesCapture interfaces;
    networks.source = interfaces.source = source;
    const auto is = [&](auto read) { return ReadingFrom(source, read); };
    if (is([&] { return ReadIwScan(text, networks) || ReadNetshNetworks(text, hints.words, networks); }))
        return Set(captures.networks, std::move(networks), "networks", captures.warnings);
    if (is([&] { return ReadNetshInterfaces(text, hints.words, interfaces); }))
        return Set(captures.interfaces, std::move(interfaces), "interfaces", captures.warnings);
    if (is([&] { return ReadNmcliList(text, networks); }))
        return Set(captures.networks, std::move(networks), "networks", captures.warnings);
    RefuseWithRemedy(text, source);
    throw CaptureError(
        source + ":1: this is not output of \"netsh wlan show networks mode=bssid\" or \"netsh wlan show interfaces\", "
                 "not a profile, and not output of \"iw dev wlan0 scan\" or \"nmcli dev wifi list\"");
}

} // namespace calvix::host
