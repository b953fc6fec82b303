#include "import/read_capture.h"

#include "import/capture_encoding.h"
#include "import/capture_text.h"
#include "import/iw_scan.h"
#include "import/nmcli_list.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

/// What people capture by mistake, and what to do.
struct KnownMistake
{
    std::string_view part; ///< of the text
    const char* message;
};

constexpr std::string_view kWiredProfile = "<LANProfile";

constexpr KnownMistake kMistakes[] = {
    {"ms-settings:privacy-location",
     "Windows has refused the list: switch location services on, on the page Location of Privacy & security in the "
     "settings, and capture again, in a console with an administrator's rights"},
    {"wlansvc", "the WLAN service was not running: start it with \"net start wlansvc\" and capture again"},
    {kWiredProfile, "this is a profile of a wired network, and only those of \"netsh wlan export profile\" are of use"},
    {"SIGNAL  BARS  SECURITY",
     "this list has no addresses: capture with \"nmcli -t -f IN-USE,BSSID,SSID,MODE,CHAN,FREQ,RATE,SIGNAL,SECURITY dev "
     "wifi list\""},
};

void RefuseWithRemedy(std::string_view text, const std::string& source)
{
    for (const KnownMistake& known : kMistakes)
        if (const std::size_t at = text.find(known.part); at != std::string_view::npos)
            throw CaptureError(
                source + ":" +
                std::to_string(std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n') + 1) +
                ": " + known.message);
}

} // namespace

NetworksCapture ReadNetworksText(std::string_view text, const std::string& source, const CaptureHints& hints)
{
    if (LooksLikeIwScan(text))
        return ParseIwScan(text, source);
    if (!LooksLikeNetworks(text) && LooksLikeNmcliList(text))
        return ParseNmcliList(text, source, hints.columns);
    return ParseNetworks(text, source, hints.words);
}

ReadResult ReadCapture(std::string_view bytes, const std::string& source, const CaptureHints& hints)
{
    DecodedCapture decoded = DecodeCapture(bytes, source, hints.codePage);
    const std::string_view text = decoded.text;
    std::vector<std::string> warnings = std::move(decoded.warnings);
    if (LooksLikeProfile(text) && text.find(kWiredProfile) == std::string_view::npos)
        return {ParseExportedProfile(text, source), std::move(warnings)};
    if (LooksLikeIwScan(text) || LooksLikeNetworks(text))
        return {ReadNetworksText(text, source, hints), std::move(warnings)};
    if (LooksLikeInterfaces(text))
        return {ParseInterfaces(text, source, hints.words), std::move(warnings)};
    if (LooksLikeNmcliList(text))
        return {ReadNetworksText(text, source, hints), std::move(warnings)};
    RefuseWithRemedy(text, source);
    throw CaptureError(source +
                       ":1: this is no output of \"netsh wlan show networks mode=bssid\" or \"netsh wlan show "
                       "interfaces\", no profile, and no output of \"iw dev wlan0 scan\" or \"nmcli dev wifi list\"");
}

} // namespace calvix::host
