#include "view/profiles.h"

#include "core/wlan_records.h"
#include "host/service_view.h"
#include "output/text_forms.h"

namespace calvix::host
{

namespace
{

const char* ModeText(int automatic)
{
    if (automatic < 0)
        return "unknown";
    return automatic == 1 ? "auto" : "manual";
}

} // namespace

std::vector<ProfileFacts> ReadProfiles(Host& host)
{
    const GUID* const adapter = host.adapterGuid();
    host.Check("GetProfileCount", host.manager().GetProfileCount(adapter));
    std::vector<ProfileFacts> profiles;
    for (const WLAN_PROFILE_INFO& info : host.service().Profiles(adapter))
    {
        ProfileFacts facts;
        facts.position = static_cast<unsigned>(profiles.size() + 1);
        facts.name = Narrow(FixedText(info.strProfileName));
        facts.mode = ModeText(host.manager().IsAutoConnMode2(adapter, info.strProfileName));
        facts.groupPolicy = (info.dwFlags & WLAN_PROFILE_GROUP_POLICY) != 0;
        facts.perUser = (info.dwFlags & WLAN_PROFILE_USER) != 0;
        profiles.push_back(facts);
    }
    return profiles;
}

} // namespace calvix::host
