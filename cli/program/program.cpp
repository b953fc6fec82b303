#include "program/program.h"

#include "commands/commands.h"
#include "explain/failure_words.h"
#include "host/host.h"
#include "host/interrupt.h"
#include "output/json_output.h"
#include "shell/command_line.h"

#include <functional>

namespace calvix::host
{

namespace
{

int ReportFailure(Host& host, const FailureReport& failure)
{
    if (host.json())
        PrintJson(host.out(), failure);
    PrintFailure(host.err(), failure, host.terminal());
    return static_cast<int>(failure.exitCode);
}

/// Why an action failed, if it did.
std::optional<FailureReport> FailureOf(const std::function<void()>& action)
{
    try
    {
        action();
        return std::nullopt;
    }
    catch (const Failure& failure)
    {
        return failure.report();
    }
    catch (const std::exception& error)
    {
        return OperationFailure(error.what(), "report this with the command that led to it").report();
    }
}

void CarryOut(Host& host, const RunCommand& run)
{
    run(host);
    host.Save();
    host.RequireSession();
}

int EndRecording(Host& host, const std::vector<std::string>& arguments, int exitCode)
{
    const auto unwritten = FailureOf([&host] { host.EndRecording(); });
    if (unwritten && exitCode == static_cast<int>(ExitCode::success))
        return ReportFailure(host, *unwritten);
    if (unwritten)
        PrintFailure(host.err(), *unwritten, host.terminal());
    else if (const std::string line = host.ReplayLine(arguments); !line.empty())
        host.err() << "To replay it with the invented names: " << line << '\n';
    return exitCode;
}

int CarryOutArguments(const std::vector<std::string>& arguments,
                      std::istream& in,
                      std::ostream& out,
                      std::ostream& err,
                      TerminalTraits terminal)
{
    ExitCode parsed = ExitCode::success;
    const CommandSet commands = AllCommands();
    const Command* const command = ParseArguments(commands, arguments, out, err, parsed);
    if (command == nullptr)
        return static_cast<int>(parsed);

    const InterruptWatch interruptWatch;
    Host host(*commands.optionValues, in, out, err, terminal);
    std::optional<FailureReport> failure = FailureOf([&] { CarryOut(host, command->run); });
    // A command without answers fails, too; the difference is the cause.
    if (const auto difference = host.EndReplay())
        failure = difference;
    if (!failure)
        return EndRecording(host, arguments, static_cast<int>(ExitCode::success));
    const int exitCode = ReportFailure(host, *failure);
    // What a failed command did before it failed is saved too.
    if (failure->exitCode != ExitCode::badInput)
        if (const auto unsaved = FailureOf([&host] { host.Save(); }))
            PrintFailure(err, *unsaved, host.terminal());
    return EndRecording(host, arguments, exitCode);
}

} // namespace

int Run(const std::vector<std::string>& arguments,
        std::istream& in,
        std::ostream& out,
        std::ostream& err,
        TerminalTraits terminal)
{
    const int exitCode = CarryOutArguments(arguments, in, out, err, terminal);
    if (out.flush())
        return exitCode;
    const Failure unwritten =
        OperationFailure("the output could not be written", "check where it goes: a full disk, or "
                                                            "a program that has ended");
    PrintFailure(err, unwritten.report(), terminal);
    return exitCode != static_cast<int>(ExitCode::success) ? exitCode : static_cast<int>(ExitCode::failed);
}

} // namespace calvix::host
