#include "import/profile_folder.h"

#include "files/file_path.h"
#include "import/capture_encoding.h"
#include "output/text_forms.h"
#include "simulation/profile_document.h"
#include "simulation/reason_texts.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

namespace files = std::filesystem;

bool IsXmlFile(const files::directory_entry& entry)
{
    return entry.is_regular_file() && SameButForCase(PathText(entry.path().extension()), ".xml");
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
        throw CaptureError(source + ": this profile cannot be used: " + Narrow(simulation::ReasonText(refusal.reason)));
    profile.name = Narrow(document->name);
    return profile;
}

std::vector<ExportedProfile> ReadProfileFolder(const std::string& path)
{
    std::vector<ExportedProfile> profiles;
    for (const files::path& file : XmlFiles(path))
        profiles.push_back(ParseExportedProfile(ReadWholeFile(PathText(file)), PathText(file)));
    if (profiles.empty())
        throw CaptureError(path + ": this folder has no profile (*.xml)");
    return profiles;
}

} // namespace calvix::host
