#include "import/read_capture.h"

#include "import/capture_encoding.h"
#include "import/capture_text.h"
#include "import/iw_scan.h"
#include "import/nmcli_list.h"

namespace calvix::host
{

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
    if (LooksLikeProfile(text))
        return {ParseExportedProfile(text, source), std::move(warnings)};
    if (LooksLikeIwScan(text) || LooksLikeNetworks(text))
        return {ReadNetworksText(text, source, hints), std::move(warnings)};
    if (LooksLikeInterfaces(text))
        return {ParseInterfaces(text, source, hints.words), std::move(warnings)};
    if (LooksLikeNmcliList(text))
        return {ReadNetworksText(text, source, hints), std::move(warnings)};
    throw CaptureError(source +
                       ":1: this is no output of \"netsh wlan show networks mode=bssid\" or \"netsh wlan show "
                       "interfaces\", no profile, and no output of \"iw dev wlan0 scan\" or \"nmcli dev wifi list\"");
}

} // namespace calvix::host
