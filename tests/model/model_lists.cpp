#include "model/model.h"

namespace calvix::test
{

/// The mode is the text between the first closing tag and the last ">" before it.
static bool SaysAutomatic(const std::wstring& xml)
{
    const std::size_t end = xml.find(L"</connectionMode>");
    if (end == std::wstring::npos)
        return false;
    const std::wstring before = xml.substr(0, end);
    const std::size_t start = before.rfind(L'>');
    return start != std::wstring::npos && before.substr(start + 1) == L"auto";
}

bool Model::IsAutomatic(int adapter, const std::wstring& profile)
{
    std::wstring xml;
    return m_service.ProfileText(adapter, profile, xml) == 0 && SaysAutomatic(xml);
}

Outcome Model::Collect(int adapter, Filter filter, bool wantsNames)
{
    if (m_service.Open() != 0)
        return Failed(Cause::clientNotOpened);
    if (adapter < 0)
    {
        std::vector<int> adapters;
        if (m_service.Adapters(adapters) != 0)
            return Failed(Cause::enumerationFailed);
        if (adapters.empty())
            return Failed(Cause::noAdapter);
        adapter = adapters[0];
    }
    std::vector<std::wstring> profiles;
    if (m_service.Profiles(adapter, profiles) != 0)
        return Failed(Cause::profileListFailed);
    if (profiles.empty())
        return Failed(Cause::noProfile);
    std::vector<Network> networks;
    if (m_service.Networks(adapter, networks) != 0)
        return Failed(Cause::networkListFailed);
    if (networks.empty())
        return Failed(Cause::networkListEmpty);

    long long count = 0;
    std::vector<Heard> entries;
    std::vector<std::wstring> names;
    for (const std::wstring& profile : profiles)
        for (const Network& network : networks)
        {
            if (network.profile != profile)
                continue;
            const bool isFree =
                filter == Filter::none || (filter == Filter::automaticOrNamed && profile == m_world.name);
            if (!isFree && !IsAutomatic(adapter, profile))
                continue;
            std::vector<Heard> list;
            if (m_service.Entries(adapter, network.ssid, network.bssType, network.secured, list) != 0)
                continue;
            if (wantsNames && !list.empty())
            {
                names.push_back(profile);
                count += 1;
            }
            if (!wantsNames)
                for (const Heard& entry : list)
                {
                    entries.push_back(entry);
                    count += 1;
                }
        }
    Outcome outcome = Ended(count);
    outcome.entries = entries;
    outcome.names = names;
    return outcome;
}

Outcome Model::GetMatchAPList()
{
    return Collect(m_world.asked, Filter::none, false);
}

Outcome Model::GetConnectableAPList()
{
    return Collect(m_world.asked, Filter::automaticOrNamed, false);
}

Outcome Model::GetConnectableAPListOfFirst()
{
    return Collect(-1, Filter::automaticOrNamed, false);
}

Outcome Model::GetMatchAPCount()
{
    return Collect(m_world.asked, m_world.mode == 1 ? Filter::automatic : Filter::none, true);
}

Outcome Model::GetMatchAPCountWithName()
{
    return Collect(m_world.asked, m_world.mode == 1 ? Filter::automaticOrNamed : Filter::none, true);
}

} // namespace calvix::test
