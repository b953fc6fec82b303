#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace calvix::host
{

/// A profile as `netsh wlan export profile` wrote it.
struct ExportedProfile
{
    std::string fileName; ///< without its folder
    std::string xml;      ///< UTF-8
    std::string name;
};

/// Whether a text looks like a profile document.
bool LooksLikeProfile(std::string_view text);

/// Reads one profile document, `bytes` in UTF-8 or UTF-16 as the file has it. `source` is what messages call it. Throws
/// CaptureError for a profile that the WLAN service would not store.
ExportedProfile ParseExportedProfile(std::string_view bytes, const std::string& source);

/// All "*.xml" of a folder in the order of their names. Throws CaptureError, also for a folder without any.
std::vector<ExportedProfile> ReadProfileFolder(const std::string& path);

} // namespace calvix::host
