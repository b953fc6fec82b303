#include "commands/commands.h"
#include "explain/failure_words.h"
#include "host/host.h"
#include "host/interrupt.h"
#include "host/watched_calls.h"
#include "live/progress.h"
#include "output/json_output.h"
#include "output/table.h"
#include "output/text_forms.h"
#include "shell/confirmation.h"
#include "view/describe.h"
#include "view/power_view.h"

#include <cstdio>

namespace calvix::host
{

namespace
{

struct PowerFacts
{
    bool sleep = false; ///< whether the computer can
    bool hibernate = false;
    bool shutDown = false;
    bool modernStandby = false;
    std::uint64_t lastSleepTime = 0; ///< in units of 100 ns since the start; 0: not since then, or unknown
    std::uint64_t lastWakeTime = 0;
    bool wokeByItself = false;
    std::optional<IdlePolicyFacts> onMains; ///< none: unknown
    std::optional<IdlePolicyFacts> onBattery;
    std::string scheme; ///< empty: unknown
};

JsonRecord Describe(const PowerFacts& power)
{
    const Shape moment{"In units of 100 ns since the start; 0: not since then, or unknown"};
    return JsonRecord()
        .Add("sleep", power.sleep)
        .Add("hibernate", power.hibernate)
        .Add("shutDown", power.shutDown)
        .Add("modernStandby", power.modernStandby)
        .Add("lastSleepTime", power.lastSleepTime, moment)
        .Add("lastWakeTime", power.lastWakeTime, moment)
        .Add("wokeByItself", power.wokeByItself)
        .Add("onMains", power.onMains)
        .Add("onBattery", power.onBattery)
        .Add("scheme", power.scheme, kTextOrNull);
}

JsonRecord PrivilegeRecord(const std::string& name)
{
    return Under("privilege", JsonRecord().Add("name", name).Add("enabled", true));
}

struct PowerOptions
{
    bool yes = false;
    bool leave = false;
    bool mayNotReturn = false;
    unsigned seconds = 0; ///< to stay awake; 0: until Ctrl-C, a minute on a simulated computer
    std::string privilege;
};

constexpr unsigned kSimulatedSecondsAwake = 60;

PowerFacts ReadPower(Host& host)
{
    CWirelessManage& manager = host.manager();
    PowerFacts facts;
    facts.sleep = CanSleep();
    facts.hibernate = CanHibernate();
    facts.shutDown = CanShutDown();
    facts.modernStandby = manager.IsSurpportAoAc() != 0;
    facts.lastSleepTime = manager.GetLastSleepTime();
    facts.lastWakeTime = manager.GetLastWakeTime();
    facts.wokeByItself = manager.IsPowerHibernateAllowed() != 0;
    // The library reads the policies and does not return them; its result shows only whether they can be read.
    if (manager.GetSystemPowerPolicy() == 0)
    {
        facts.onMains = ReadIdlePolicy(false);
        facts.onBattery = ReadIdlePolicy(true);
    }
    facts.scheme = ActiveSchemeName();
    return facts;
}

/// "8:30:00 after the start", of a number of 100 ns.
std::string WakeMomentText(std::uint64_t time)
{
    if (time == 0)
        return "not since the start";
    const std::uint64_t seconds = time / 10'000'000;
    char text[64];
    std::snprintf(text, sizeof(text), "%llu:%02u:%02u after the start", static_cast<unsigned long long>(seconds / 3600),
                  static_cast<unsigned>(seconds / 60 % 60), static_cast<unsigned>(seconds % 60));
    return text;
}

std::string DurationText(std::uint32_t seconds)
{
    return seconds % 60 == 0 ? Counted(seconds / 60, "minute") : Counted(seconds, "second");
}

std::string PolicyText(const std::optional<IdlePolicyFacts>& policy)
{
    if (!policy)
        return "unknown";
    return (policy->sleepAfter == 0 ? "never sleeps" : "sleeps after " + DurationText(policy->sleepAfter)) +
           (policy->displayOffAfter == 0 ? ", display stays on"
                                         : ", display off after " + DurationText(policy->displayOffAfter));
}

void ShowPower(Host& host)
{
    const PowerFacts facts = ReadPower(host);
    if (host.json())
        return PrintJson(host.out(), Under("power", facts));
    const auto allowed = [](bool value) { return value ? "possible" : "not possible"; };
    const auto yesNo = [](bool value) { return value ? "yes" : "no"; };
    PrintPairs(host.out(), {{"Sleep", allowed(facts.sleep)},
                            {"Hibernation", allowed(facts.hibernate)},
                            {"Shutting down", allowed(facts.shutDown)},
                            {"Modern Standby", yesNo(facts.modernStandby)},
                            {"Last sleep", WakeMomentText(facts.lastSleepTime)},
                            {"Last wake", WakeMomentText(facts.lastWakeTime)},
                            {"Woke by itself", yesNo(facts.wokeByItself)},
                            {"On mains", PolicyText(facts.onMains)},
                            {"On battery", PolicyText(facts.onBattery)},
                            {"Power scheme", facts.scheme.empty() ? "unknown" : VisibleText(facts.scheme)}});
}

void StayAwake(Host& host, unsigned seconds)
{
    if (seconds == 0 && host.isSimulated())
        seconds = kSimulatedSecondsAwake;
    const Progress progress(host, "Keeping the computer awake");
    for (unsigned passed = 0; (seconds == 0 || passed < seconds) && !Interrupted(); ++passed)
        host.Wait(1000);
}

void KeepAwake(Host& host, const PowerOptions& options)
{
    host.manager();
    Confirm(host,
            options.leave ? "The active power scheme will no longer put the idle computer to sleep."
                          : "The active power scheme will not put the idle computer to sleep until this command ends.",
            options.yes);
    host.Require("SetPowerScheme", host.manager().SetPowerScheme());
    if (options.leave)
        return ShowPower(host);
    StayAwake(host, options.seconds);
    host.Require("ResetPowerScheme", host.manager().ResetPowerScheme());
    ShowPower(host);
}

void Restore(Host& host, const PowerOptions& options)
{
    host.manager();
    // The library remembers a policy as long as the program runs that changed it, and no longer.
    Confirm(host,
            "This command has no remembered power policy, because it changed none. It will replace the policy of "
            "the active power scheme with zeros.",
            options.yes);
    host.Require("ResetPowerScheme", host.manager().ResetPowerScheme());
    ShowPower(host);
}

/// The library lists the first power scheme again and again, until that fails.
void RefuseEndless(Host& host, const PowerOptions& options)
{
    if (SchemeListingError() != 0)
        return;
    if (!options.mayNotReturn)
    {
        FailureReport report = OperationFailure("this computer lists its power schemes, so GetPowerScheme would never "
                                                "return: nothing was done",
                                                "copy a scheme with powercfg /duplicatescheme, or try it anyway with "
                                                "--may-not-return")
                                   .report();
        report.exitCode = ExitCode::badInput;
        report.method = "GetPowerScheme";
        throw Failure(report);
    }
    host.err() << "calvix: this computer lists its power schemes, so GetPowerScheme does not "
                  "return. Press Ctrl-C twice to end the program.\n"
               << std::flush;
}

void SavePower(Host& host, const PowerOptions& options)
{
    host.manager();
    RefuseEndless(host, options);
    Confirm(host,
            "A copy of the active power scheme will be made that sleeps after a second on mains power, and become the "
            "active one. Only powercfg can undo this.",
            options.yes);
    host.Require("GetPowerScheme", host.manager().GetPowerScheme());
    ShowPower(host);
}

void RequireAnswer(Host& host, const char* method, const char* operation, bool answer, const std::string& message)
{
    if (!answer)
        throw SystemFailure(method, 0, message, host.watched().OfSystem(operation));
}

void PutToSleep(Host& host, const PowerOptions& options)
{
    host.manager();
    Confirm(host, "The computer will go to sleep at once.", options.yes);
    RequireAnswer(host, "GetPrivileges", "OpenProcessToken", host.manager().GetPrivileges() != 0,
                  "the shutdown privilege could not be requested");
    RequireAnswer(host, "ForceComputerSleep", "SetSuspendState", host.manager().ForceComputerSleep() != 0,
                  "the computer was not put to sleep");
    ShowPower(host);
}

/// The method fails only if a privilege exists and was not enabled; the refusals show the rest.
void EnablePrivilege(Host& host, const PowerOptions& options)
{
    const std::string& name = options.privilege;
    const bool enabled = host.manager().EnablePriviledge(name.c_str());
    host.RequireNotRefused({"OpenProcessToken", "LookupPrivilegeValueA", "AdjustTokenPrivileges"}, "EnablePriviledge",
                           enabled ? 1 : 0, "\"" + name + "\" was not enabled");
    if (!enabled)
    {
        FailureReport report =
            SystemFailure("EnablePriviledge", 0, "the account does not hold \"" + name + "\"", {}).report();
        report.advice = "run as administrator, or have the right assigned to the account";
        throw Failure(report);
    }
    if (host.json())
        return PrintJson(host.out(), PrivilegeRecord(name));
    host.out() << name << " can be enabled; this command enabled it while it ran.\n";
}

} // namespace

void AddPowerCommands(CommandSet& commands)
{
    constexpr const char* yesHelp = "Do not ask";
    const auto options = std::make_shared<PowerOptions>();
    commands.AddFamily("power", "Power and sleep: status, keep-awake, restore, saver, sleep, privilege");
    commands.Add("power status", "Show what the computer can do, when it slept, and its power policies", ShowPower)
        .Prints("power", [] { return std::vector{Under("power", PowerFacts{})}; })
        .Examples("What it can do, for a program:\n"
                  "  calvix power status --json");
    commands
        .Add("power keep-awake", "Keep the idle computer awake until Ctrl-C, then restore the policy", options,
             KeepAwake)
        .Number("--for", options->seconds, "Seconds to stay awake; 0: until Ctrl-C, a minute on a simulated computer")
        .Flag("--leave", options->leave, "Return at once, and do not restore the policy")
        .Flag("--yes", options->yes, yesHelp)
        .Prints("power")
        .Examples("For ten minutes, without a question:\n"
                  "  calvix power keep-awake --for 600 --yes");
    commands
        .Add("power restore", "Write the remembered policy, here one of zeros, to the active power scheme", options,
             Restore)
        .Flag("--yes", options->yes, yesHelp)
        .Prints("power")
        .Examples("After keep-awake --leave:\n"
                  "  calvix power restore");
    commands
        .Add("power saver", "Make and activate a copy of the power scheme that sleeps after a second", options,
             SavePower)
        .Flag("--may-not-return", options->mayNotReturn,
              "Even if the power schemes can be listed, in which case the library's method does not return")
        .Flag("--yes", options->yes, yesHelp)
        .Prints("power")
        .Examples("On battery:\n"
                  "  calvix power saver");
    commands.Add("power sleep", "Put the computer to sleep", options, PutToSleep)
        .Flag("--yes", options->yes, yesHelp)
        .Prints("power")
        .Examples("Without a question:\n"
                  "  calvix power sleep --yes");
    commands.Add("power privilege", "Show whether this account can enable a privilege", options, EnablePrivilege)
        .Text("NAME", options->privilege, "The privilege, such as SeShutdownPrivilege")
        .Prints("power-privilege", [] { return std::vector{PrivilegeRecord("")}; })
        .Examples("May this account put the computer to sleep?\n"
                  "  calvix power privilege SeShutdownPrivilege");
}

} // namespace calvix::host
