#include "import/profile_folder.h"

#include "files/file_path.h"
#include "import/capture_text.h"
#include "output/text_forms.h"
#include "simulation/profile_document.h"

#include "platform/records/wlan_constants.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

namespace files = std::filesystem;

std::string RefusalText(const simulation::ProfileRefusal& refusal)
{
    switch (refusal.reason)
    {
    case WLAN_REASON_CODE_INVALID_PROFILE_NAME:
        return "it has no name, or one of more than 255 characters";
    case WLAN_REASON_CODE_PROFILE_SSID_INVALID:
        return "its SSID is empty, longer than 32 bytes, or not hexadecimal where it should be";
    case WLAN_REASON_CODE_INVALID_BSS_TYPE:
        return "its <connectionType> is neither ESS nor IBSS";
    case WLAN_REASON_CODE_INVALID_ADHOC_CONNECTION_MODE:
        return "an ad hoc network cannot be joined automatically";
    case WLAN_REASON_CODE_NON_BROADCAST_SET_FOR_ADHOC:
        return "an ad hoc network cannot be hidden";
    case WLAN_REASON_CODE_MSM_SECURITY_MISSING:
        return "its <security> is missing";
    case WLAN_REASON_CODE_MSMSEC_PROFILE_NO_AUTH_CIPHER_SPECIFIED:
        return "its <authEncryption> is missing";
    case WLAN_REASON_CODE_MSMSEC_PROFILE_INVALID_AUTH_CIPHER:
        return "its authentication and encryption do not go together";
    case WLAN_REASON_CODE_MSMSEC_PROFILE_PSK_LENGTH:
        return "its passphrase does not have 8 to 63 characters";
    default:
        return "it is not well-formed, or an element is missing or has a value that profiles do not have";
    }
}

bool IsXmlFile(const files::directory_entry& entry)
{
    return entry.is_regular_file() && SameWord(PathText(entry.path().extension()), ".xml");
}

std::vector<files::path> XmlFiles(const std::string& folder)
{
    std::vector<files::path> found;
    std::error_code error;
    for (files::directory_iterator entry(PathOf(folder), error), end; !error && entry != end; entry.increment(error))
        if (IsXmlFile(*entry))
            found.push_back(entry->path());
    if (error)
        throw CaptureError(folder + ": this folder cannot be read");
    std::sort(found.begin(), found.end(),
              [](const files::path& one, const files::path& other) { return PathText(one) < PathText(other); });
    return found;
}

} // namespace

bool LooksLikeProfile(std::string_view text)
{
    return text.find("<WLANProfile") != std::string_view::npos || text.starts_with("<?xml");
}

ExportedProfile ParseExportedProfile(std::string_view bytes, const std::string& source)
{
    ExportedProfile profile;
    profile.fileName = PathText(PathOf(source).filename());
    profile.xml = ReadingFrom(source, [&] { return ToUtf8(bytes); });
    simulation::ProfileRefusal refusal{};
    const auto document = simulation::ParseProfile(profile.xml, refusal);
    if (!document)
        throw CaptureError(source + ": this is not a usable profile: " + RefusalText(refusal));
    profile.name = Narrow(document->name);
    return profile;
}

std::vector<ExportedProfile> ReadProfileFolder(const std::string& path)
{
    std::vector<ExportedProfile> profiles;
    for (const files::path& file : XmlFiles(path))
        profiles.push_back(ParseExportedProfile(ReadWholeFile(PathText(file)), PathText(file)));
    if (profiles.empty())
        throw CaptureError(path + ": this folder holds no profile (*.xml)");
    return profiles;
}

} // namespace calvix::host
