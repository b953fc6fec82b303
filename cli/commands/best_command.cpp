#include "commands/commands.h"
#include "explain/platform_errors.h"
#include "host/host.h"
#include "host/watched_calls.h"
#include "live/connection_wait.h"
#include "output/json_output.h"
#include "output/table.h"
#include "output/text_forms.h"
#include "view/candidates.h"
#include "view/status.h"

namespace calvix::host
{

namespace
{

JsonRecord BestRecord(const std::vector<CandidateFacts>& candidates, const StatusFacts& status)
{
    return JsonRecord().Add("candidates", candidates).Add("status", status);
}

struct BestOptions
{
    Exclusions excluded;
    unsigned seconds = 15;
};

/// What became of the candidates: the requests were made in their order.
void NoteOutcomes(const std::vector<ConnectRequest>& requests, std::vector<CandidateFacts>& candidates)
{
    for (std::size_t i = 0; i < requests.size() && i < candidates.size(); ++i)
    {
        candidates[i].error = requests[i].error;
        candidates[i].outcome = requests[i].error == 0 ? Outcome::accepted : Outcome::refused;
    }
}

/// By Outcome.
constexpr Tone kOutcomeTones[] = {Tone::faint, Tone::poor, Tone::fair, Tone::good};

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
                      Cell(outcome, kOutcomeTones[static_cast<std::size_t>(candidate.outcome)])});
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
    std::vector<CandidateFacts> candidates = BestCandidates(host, options.excluded);
    try
    {
        ConnectAndWait(host, options.seconds,
                       [&]
                       {
                           const int code = ConnectBest(host, options.excluded);
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
        return PrintJson(host.out(), BestRecord(candidates, status));
    PrintCandidates(host, candidates);
    host.out() << '\n';
    PrintStatus(host, status);
}

} // namespace

void AddBestCommand(CommandSet& commands)
{
    const auto options = std::make_shared<BestOptions>();
    commands.Add("best", "Join a network by rank, the lowest score first (usually the weakest network)", options, Best)
        .Text("--exclude-profile", options->excluded.profile, "Do not choose this profile")
        .Takes(ValueKind::profile)
        .Texts(
            "--exclude-ssid", options->excluded.ssids,
            "Do not choose networks whose SSID is this or its beginning, as it is shown or as hex:4361E9; may be given "
            "several times")
        .Number("--timeout", options->seconds, "Maximum seconds to wait for the connection")
        .Prints("best", [] { return std::vector{BestRecord({}, {})}; })
        .Examples("Join a network by rank, but no guest network:\n"
                  "  calvix best --exclude-ssid Guest --exclude-ssid hex:436166E9");
}

} // namespace calvix::host
