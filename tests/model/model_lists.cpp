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
    const Answer<std::wstring>& xml = m_service.ProfileText(adapter, profile);
    return xml.error == 0 && SaysAutomatic(xml.data);
}

DWORD Model::ListProfiles(int adapter)
{
    const auto& profiles = m_service.Profiles(adapter);
    m_profiles = profiles.data;
    return profiles.error;
}

DWORD Model::ListNetworks(int adapter)
{
    const auto& networks = m_service.Networks(adapter);
    m_networks = networks.data;
    return networks.error;
}

std::optional<Outcome> Model::FailureToList(int adapter)
{
    if (ListProfiles(adapter) != 0)
        return Failed(Cause::profileListFailed);
    if (m_profiles.empty())
        return Failed(Cause::noProfile);
    if (ListNetworks(adapter) != 0)
        return Failed(Cause::networkListFailed);
    if (m_networks.empty())
        return Failed(Cause::networkListEmpty);
    return std::nullopt;
}

std::vector<Network> Model::Matches() const
{
    std::vector<Network> matches;
    for (const std::wstring& profile : m_profiles)
        for (const Network& network : m_networks)
            if (network.profile == profile)
                matches.push_back(network);
    return matches;
}

Outcome Model::Collect(Adapter which, Filter filter, const Take& take)
{
    if (m_service.Open() != 0)
        return Failed(Cause::clientNotOpened);
    int adapter = m_situation.asked;
    if (which == Adapter::first)
    {
        const Answer<std::vector<int>> adapters = m_service.Adapters();
        if (adapters.error != 0)
            return Failed(Cause::enumerationFailed);
        if (adapters.data.empty())
            return Failed(Cause::noAdapter);
        adapter = adapters.data[0];
    }
    if (const auto failure = FailureToList(adapter))
        return *failure;
    std::size_t count = 0;
    for (const Network& network : Matches())
    {
        const bool isFree =
            filter == Filter::none || (filter == Filter::automaticOrNamed && network.profile == m_situation.name);
        if (!isFree && !IsAutomatic(adapter, network.profile))
            continue;
        const auto& list = m_service.Entries(adapter, network.ssid, network.bssType, network.secured);
        if (list.error == 0)
            count += take(network, list.data);
    }
    return Ended(static_cast<long long>(count));
}

Outcome Model::CollectEntries(Adapter which, Filter filter)
{
    std::vector<Heard> entries;
    Outcome outcome = Collect(which, filter,
                              [&entries](const Network&, const std::vector<Heard>& list)
                              {
                                  entries.insert(entries.end(), list.begin(), list.end());
                                  return list.size();
                              });
    outcome.entries = entries;
    return outcome;
}

Outcome Model::CollectNames(Filter inModeOne)
{
    std::vector<std::wstring> names;
    Outcome outcome = Collect(Adapter::asked, m_situation.mode == 1 ? inModeOne : Filter::none,
                              [&names](const Network& network, const std::vector<Heard>& list)
                              {
                                  if (list.empty())
                                      return std::size_t{0};
                                  names.push_back(network.profile);
                                  return std::size_t{1};
                              });
    outcome.names = names;
    return outcome;
}

} // namespace calvix::test
