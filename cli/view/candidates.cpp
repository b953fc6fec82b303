#include "view/candidates.h"

#include "autoconnect/candidate_ranking.h"
#include "core/wlan_records.h"
#include "host/service_view.h"
#include "host/watched_wlan.h"
#include "output/text_forms.h"
#include "view/describe.h"

namespace calvix::host
{

namespace
{

std::string SsidArgument(const std::string& text)
{
    const auto bytes = BytesOfSsidArgument(text);
    if (!bytes)
        throw BadInput("\"" + text + "\" is no SSID: behind hex: it takes pairs of hexadecimal digits",
                       "write it like hex:436166E9; calvix networks --json shows the bytes as ssidHex");
    return *bytes;
}

} // namespace

int ConnectBest(Host& host, const Exclusions& excluded)
{
    const GUID* const adapter = host.adapterGuid();
    const std::wstring name = Widen(excluded.profile);
    std::vector<WLAN_BSS_ENTRY> networks;
    for (const std::string& ssid : excluded.ssids)
    {
        WLAN_BSS_ENTRY entry{};
        entry.dot11Ssid = MakeSsid(SsidArgument(ssid));
        networks.push_back(entry);
    }
    CWirelessManage& library = host.manager();
    if (name.empty())
        return networks.empty() ? library.ConnectBestAP(adapter) : library.ConnectBestAP(adapter, &networks);
    return networks.empty() ? library.ConnectBestAP(adapter, name.c_str())
                            : library.ConnectBestAP(adapter, &networks, name.c_str());
}

namespace
{

/// Every candidate in the order in which the library would ask for it. The library itself says so: it goes through all
/// of them when each request is refused.
std::vector<ConnectRequest> Rehearse(Host& host, const Exclusions& excluded)
{
    return host.Rehearse([&] { ConnectBest(host, excluded); });
}

/// The networks behind the requests, taken out of the list one by one: a profile may stand on several.
Candidates CandidatesOf(const std::vector<ConnectRequest>& requests, std::vector<WLAN_AVAILABLE_NETWORK>& networks)
{
    Candidates candidates;
    std::vector<bool> taken(networks.size());
    for (const ConnectRequest& request : requests)
    {
        for (std::size_t i = 0; i < networks.size(); ++i)
        {
            if (taken[i] || networks[i].dot11BssType != request.bssType ||
                FixedText(networks[i].strProfileName) != request.profile)
                continue;
            taken[i] = true;
            candidates.push_back(&networks[i]);
            break;
        }
    }
    return candidates;
}

CandidateFacts DescribeCandidate(const WLAN_AVAILABLE_NETWORK& network, std::size_t order)
{
    CandidateFacts facts;
    facts.order = static_cast<unsigned>(order);
    facts.profile = Narrow(FixedText(network.strProfileName));
    facts.ssid = DescribeSsid(network.dot11Ssid);
    facts.quality = network.wlanSignalQuality;
    return facts;
}

} // namespace

std::vector<CandidateFacts> BestCandidates(Host& host, const Exclusions& excluded)
{
    std::vector<CandidateFacts> facts;
    const std::vector<ConnectRequest> requests = Rehearse(host, excluded);
    if (requests.empty())
        return facts;
    std::vector<WLAN_AVAILABLE_NETWORK> networks = host.service().Networks(host.adapterGuid());
    const Candidates candidates = CandidatesOf(requests, networks);
    if (candidates.empty())
        return facts;
    for (const WLAN_AVAILABLE_NETWORK* candidate : candidates)
        facts.push_back(DescribeCandidate(*candidate, facts.size() + 1));
    // The library takes the bonus from this one network, whichever the candidates are.
    BssList entries;
    host.service().AccessPointsOf(host.adapterGuid(), networks.back(), entries);
    AddBandBonus(candidates, *entries);
    for (std::size_t i = 0; i < candidates.size(); ++i)
    {
        facts[i].fiveGhz = CountBonusEntries(*candidates[i], *entries);
        facts[i].score = candidates[i]->wlanSignalQuality;
        facts[i].bonus = facts[i].score - facts[i].quality;
    }
    return facts;
}

} // namespace calvix::host
