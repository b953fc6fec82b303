#include "import/made_profile.h"

#include "simulation/profile_document.h"

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
