#include "view/candidates.h"

#include "autoconnect/candidate_ranking.h"
#include "core/wlan_records.h"
#include "host/service_view.h"
#include "host/watched_calls.h"
#include "output/text_forms.h"
#include "view/describe.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace calvix::host
{

int ConnectBest(Host& host, const Exclusions& excluded)
{
    const GUID* const adapter = host.adapterGuid();
    const std::wstring name = Widen(excluded.profile);
    std::vector<WLAN_BSS_ENTRY> networks;
    for (const std::string& ssid : excluded.ssids)
    {
        const auto bytes = BytesOfSsidArgument(ssid);
        if (!bytes)
            throw BadInput("\"" + ssid + "\" is not a valid SSID: hex: needs pairs of hexadecimal digits",
                           "write it like hex:436166E9; calvix networks --json shows the bytes as ssidHex");
        networks.emplace_back().dot11Ssid = MakeSsid(*bytes);
    }
    CWirelessManage& library = host.manager();
    if (name.empty())
        return networks.empty() ? library.ConnectBestAP(adapter) : library.ConnectBestAP(adapter, &networks);
    return networks.empty() ? library.ConnectBestAP(adapter, name.c_str())
                            : library.ConnectBestAP(adapter, &networks, name.c_str());
}

namespace
{

bool IsAskedFor(const WLAN_AVAILABLE_NETWORK& network, const ConnectRequest& request)
{
    return network.dot11BssType == request.bssType && FixedText(network.strProfileName) == request.profile;
}

/// The networks that the requests are for. The networks of one profile take turns: its name may be stored twice, and then
/// each of them is asked for twice.
Candidates CandidatesOf(const std::vector<ConnectRequest>& requests, std::vector<WLAN_AVAILABLE_NETWORK>& networks)
{
    Candidates candidates;
    std::vector<std::size_t> turns(networks.size());
    for (const ConnectRequest& request : requests)
    {
        std::optional<std::size_t> next;
        for (std::size_t i = 0; i < networks.size(); ++i)
            if (IsAskedFor(networks[i], request) && (!next || turns[i] < turns[*next]))
                next = i;
        if (!next)
            continue;
        ++turns[*next];
        candidates.push_back(&networks[*next]);
    }
    return candidates;
}

/// The same in the order of the requests, in which the networks of one profile follow their scores.
Candidates InOrderOf(const std::vector<ConnectRequest>& requests, Candidates candidates)
{
    SortByScore(candidates);
    Candidates ordered;
    for (const ConnectRequest& request : requests)
    {
        const auto next = std::find_if(candidates.begin(), candidates.end(),
                                       [&request](const WLAN_AVAILABLE_NETWORK* candidate)
                                       { return candidate != nullptr && IsAskedFor(*candidate, request); });
        if (next != candidates.end())
            ordered.push_back(std::exchange(*next, nullptr));
    }
    return ordered;
}

CandidateFacts DescribeCandidate(const WLAN_AVAILABLE_NETWORK& network, unsigned long quality, const BssList& entries)
{
    CandidateFacts facts;
    facts.profile = Narrow(FixedText(network.strProfileName));
    facts.ssid = DescribeSsid(network.dot11Ssid);
    facts.quality = quality;
    facts.fiveGhz = CountBonusEntries(network, *entries);
    facts.score = network.wlanSignalQuality;
    facts.bonus = facts.score - facts.quality;
    return facts;
}

} // namespace

std::vector<CandidateFacts> BestCandidates(Host& host, const Exclusions& excluded)
{
    std::vector<CandidateFacts> facts;
    // The library itself says the order: it goes through all of them when each request is refused.
    const std::vector<ConnectRequest> requests = host.Rehearse([&] { ConnectBest(host, excluded); });
    if (requests.empty())
        return facts;
    const std::vector<WLAN_AVAILABLE_NETWORK> networks = host.service().Networks(host.adapterGuid());
    std::vector<WLAN_AVAILABLE_NETWORK> scored = networks;
    const Candidates candidates = CandidatesOf(requests, scored);
    if (candidates.empty())
        return facts;
    // The library takes the bonus from this one network, whichever the candidates are.
    BssList entries;
    host.service().AccessPointsOf(host.adapterGuid(), networks.back(), entries);
    AddBandBonus(candidates, *entries);
    for (const WLAN_AVAILABLE_NETWORK* candidate : InOrderOf(requests, candidates))
    {
        const auto place = static_cast<std::size_t>(candidate - scored.data());
        facts.push_back(DescribeCandidate(*candidate, networks[place].wlanSignalQuality, entries));
        facts.back().order = static_cast<unsigned>(facts.size());
    }
    return facts;
}

} // namespace calvix::host
