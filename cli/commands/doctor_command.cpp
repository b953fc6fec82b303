#include "commands/commands.h"
#include "explain/failure_words.h"
#include "host/host.h"
#include "output/json_output.h"
#include "output/table.h"
#include "view/describe.h"
#include "view/diagnosis.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

constexpr std::size_t kVerdictColumns = 9;
constexpr std::size_t kCheckColumns = 14;

/// By Verdict.
constexpr Tone kVerdictTones[] = {Tone::good, Tone::fair, Tone::poor};

void PrintCheck(Host& host, const CheckFacts& check)
{
    std::string verdict = VerdictText(check.verdict);
    verdict.resize(kVerdictColumns, ' ');
    // The adapter's line is above the others about it.
    std::string name = check.check;
    if (name == "Adapter" && check.adapter != 0)
        name += " " + std::to_string(check.adapter);
    name.resize(kCheckColumns, ' ');
    const Tone tone = kVerdictTones[static_cast<std::size_t>(check.verdict)];
    host.out() << Toned(verdict, tone, host.terminal()) << name << check.finding << '\n';
    if (!check.advice.empty())
        host.out() << "  What to do: " << check.advice << ".\n";
}

void ShowDiagnosis(Host& host)
{
    const Diagnosis diagnosis = Diagnose(host);
    if (!host.json())
        for (const CheckFacts& check : diagnosis.checks)
            PrintCheck(host, check);
    const auto failed = static_cast<std::size_t>(std::count_if(diagnosis.checks.begin(), diagnosis.checks.end(),
                                                               [](const CheckFacts& check)
                                                               { return check.verdict == Verdict::failed; }));
    if (failed != 0)
    {
        FailureReport report =
            OperationFailure(Counted(failed, "check") + " of " + std::to_string(diagnosis.checks.size()) + " failed",
                             "begin with the first one: it may cause the others")
                .report();
        report.exitCode = diagnosis.exitCode;
        report.checks = diagnosis.checks;
        throw Failure(report);
    }
    if (host.json())
        PrintJson(host.out(), Under("checks", diagnosis.checks));
}

} // namespace

void AddDoctorCommand(CommandSet& commands)
{
    commands.Add("doctor", "Check everything, and show what is wrong and what to do", ShowDiagnosis)
        .Prints("doctor", [] { return std::vector{Under("checks", std::vector<CheckFacts>{})}; })
        .Examples("Only the second adapter:\n"
                  "  calvix doctor --interface 2\n"
                  "It does not check how the service starts (sc qc WlanSvc) or whether the session has a desktop.");
}

} // namespace calvix::host
