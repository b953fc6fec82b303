#include "import/made_profile.h"

#include "output/text_forms.h"
#include "simulation/profile_document.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

using simulation::AccessPoint;
using simulation::ProfileDocument;
using simulation::StoredProfile;

/// Long enough for what it is for.
std::string MadeUpKey(const AccessPoint& accessPoint)
{
    if (accessPoint.encryption == "WEP")
        return "made1";
    const bool usesPassphrase = accessPoint.authentication.ends_with("PSK") || accessPoint.authentication == "WPA3SAE";
    return usesPassphrase ? "made-up-passphrase" : "";
}

std::optional<ProfileDocument> Read(const StoredProfile& profile)
{
    simulation::ProfileRefusal ignored{};
    return simulation::ParseProfile(profile.xml, ignored);
}

} // namespace

std::optional<StoredProfile> MakeProfile(const std::string& name, const AccessPoint& accessPoint, bool automatic)
{
    constexpr std::uint32_t kInfrastructure = 1;
    simulation::ProfileSettings settings;
    settings.name = name;
    settings.ssid = accessPoint.ssid;
    // The service never joins an ad hoc network by itself.
    settings.mode = automatic && accessPoint.bssType == kInfrastructure ? "auto" : "manual";
    settings.authentication = accessPoint.authentication;
    settings.encryption = accessPoint.encryption;
    settings.key = MadeUpKey(accessPoint);
    settings.hidden = accessPoint.hidden;
    settings.bssType = accessPoint.bssType;
    StoredProfile profile{simulation::MakeProfileXml(settings)};
    return Read(profile) ? std::optional(std::move(profile)) : std::nullopt;
}

const StoredProfile* FindProfile(const std::vector<StoredProfile>& profiles, const std::string& name)
{
    const auto found = std::find_if(profiles.begin(), profiles.end(),
                                    [wanted = Widen(name)](const StoredProfile& profile)
                                    {
                                        const std::optional<ProfileDocument> document = Read(profile);
                                        return document && document->name == wanted;
                                    });
    return found == profiles.end() ? nullptr : &*found;
}

bool FitsProfile(const StoredProfile& profile, const AccessPoint& accessPoint)
{
    const std::optional<ProfileDocument> document = Read(profile);
    const simulation::SecuritySuite security =
        simulation::SuiteFromNames(accessPoint.authentication, accessPoint.encryption);
    return document && document->ssid == accessPoint.ssid && document->security == security &&
           static_cast<std::uint32_t>(document->bssType) == accessPoint.bssType &&
           (document->hidden || !accessPoint.hidden);
}

} // namespace calvix::host
