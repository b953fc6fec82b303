#include "autoconnect/candidate_ranking.h"
#include "best.h"
#include "command.h"
#include "connection_wait.h"
#include "core/wlan_records.h"
#include "describe.h"
#include "host.h"
#include "json_output.h"
#include "platform_errors.h"
#include "service_view.h"
#include "table.h"
#include "text_forms.h"
#include "watched_wlan.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

struct BestOptions
{
    std::string excludedProfile;
    std::vector<std::string> excludedSsids;
    unsigned seconds = 15;
};

std::string SsidArgument(const std::string& text)
{
    const auto bytes = BytesOfSsidArgument(text);
    if (!bytes)
        throw BadInput("\"" + text + "\" is no SSID: behind hex: it takes pairs of hexadecimal digits",
                       "write it like hex:436166E9; calvix networks --json shows the bytes as ssidHex");
    return *bytes;
}

int ConnectBest(Host& host, const BestOptions& options)
{
    const GUID* const adapter = host.adapterGuid();
    const std::wstring name = Widen(options.excludedProfile);
    std::vector<WLAN_BSS_ENTRY> excluded;
    for (const std::string& ssid : options.excludedSsids)
    {
        WLAN_BSS_ENTRY entry{};
        entry.dot11Ssid = MakeSsid(SsidArgument(ssid));
        excluded.push_back(entry);
    }
    CWirelessManage& library = host.manager();
    if (name.empty())
        return excluded.empty() ? library.ConnectBestAP(adapter) : library.ConnectBestAP(adapter, &excluded);
    return excluded.empty() ? library.ConnectBestAP(adapter, name.c_str())
                            : library.ConnectBestAP(adapter, &excluded, name.c_str());
}

/// Every candidate in the order in which the library would ask for it. The library itself says so: it goes through all
/// of them when each request is refused.
std::vector<ConnectRequest> Rehearse(Host& host, const BestOptions& options)
{
    return host.Rehearse([&] { ConnectBest(host, options); });
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

std::vector<CandidateFacts> ScoreCandidates(Host& host, const BestOptions& options)
{
    std::vector<CandidateFacts> facts;
    const std::vector<ConnectRequest> requests = Rehearse(host, options);
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

/// What became of the candidates: the requests were made in their order.
void NoteOutcomes(const std::vector<ConnectRequest>& requests, std::vector<CandidateFacts>& candidates)
{
    for (std::size_t i = 0; i < requests.size() && i < candidates.size(); ++i)
    {
        candidates[i].error = requests[i].error;
        candidates[i].outcome = requests[i].error == 0 ? Outcome::accepted : Outcome::refused;
    }
}

Tone ToneOf(Outcome outcome)
{
    switch (outcome)
    {
    case Outcome::joined:
        return Tone::good;
    case Outcome::accepted:
        return Tone::fair;
    case Outcome::refused:
        return Tone::poor;
    case Outcome::notTried:
        break;
    }
    return Tone::faint;
}

void PrintCandidates(Host& host, const std::vector<CandidateFacts>& candidates)
{
    Table table({{"#", Align::right},
                 {"Profile"},
                 {"SSID"},
                 {"Quality", Align::right},
                 {"5 GHz APs", Align::right},
                 {"Bonus", Align::right},
                 {"Score", Align::right},
                 {"Outcome"}});
    for (const CandidateFacts& candidate : candidates)
    {
        std::string outcome = OutcomeText(candidate.outcome);
        if (candidate.error != 0)
            outcome += " (" + DescribePlatformError(candidate.error) + ")";
        table.AddRow({std::to_string(candidate.order), VisibleText(candidate.profile), candidate.ssid.text,
                      std::to_string(candidate.quality), std::to_string(candidate.fiveGhz),
                      "+" + std::to_string(candidate.bonus), std::to_string(candidate.score),
                      Cell(outcome, ToneOf(candidate.outcome))});
    }
    table.Print(host.out(), host.terminal());
}

/// Ends the command; the candidates are shown first where they say why.
[[noreturn]] void Fail(Host& host, const Failure& failure, const std::vector<CandidateFacts>& candidates)
{
    if (!host.json() && !candidates.empty())
        PrintCandidates(host, candidates);
    FailureReport report = failure.report();
    report.candidates = candidates;
    throw Failure(report);
}

void Best(Host& host, const BestOptions& options)
{
    host.adapter();
    std::vector<CandidateFacts> candidates = ScoreCandidates(host, options);
    try
    {
        ConnectAndWait(host, options.seconds,
                       [&]
                       {
                           const int code = ConnectBest(host, options);
                           NoteOutcomes(host.watched().ConnectRequests(), candidates);
                           host.Require("ConnectBestAP", code);
                       });
    }
    catch (const Failure& failure)
    {
        Fail(host, failure, candidates);
    }
    for (CandidateFacts& candidate : candidates)
        if (candidate.outcome == Outcome::accepted)
            candidate.outcome = Outcome::joined;
    const StatusFacts status = ReadStatus(host);
    if (host.json())
        return PrintJson(host.out(), BestFacts{candidates, status});
    PrintCandidates(host, candidates);
    host.out() << '\n';
    PrintStatus(host, status);
}

} // namespace

std::vector<CandidateFacts> BestCandidates(Host& host)
{
    return ScoreCandidates(host, {});
}

const char* OutcomeText(Outcome outcome)
{
    switch (outcome)
    {
    case Outcome::notTried:
        return "not tried";
    case Outcome::refused:
        return "refused";
    case Outcome::accepted:
        return "accepted";
    case Outcome::joined:
        return "joined";
    }
    return "";
}

void AddBestCommand(CommandSet& commands)
{
    const auto options = std::make_shared<BestOptions>();
    commands
        .Add("best", "Join the best network with a stored profile that connects automatically",
             [options](Host& host) { Best(host, *options); })
        .Text("--exclude-profile", options->excludedProfile, "Do not choose this profile")
        .Takes(ValueKind::profile)
        .Texts(
            "--exclude-ssid", options->excludedSsids,
            "Do not choose networks whose SSID is this or its beginning, as it is shown or as hex:4361E9; may be given "
            "several times")
        .Number("--timeout", options->seconds, "Seconds to wait for the connection at most")
        .Examples("Join the best network, but no hot spot:\n"
                  "  calvix best --exclude-ssid Guest --exclude-ssid hex:436166E9");
}

} // namespace calvix::host
