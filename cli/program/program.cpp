#include "program/program.h"

#include "commands/commands.h"
#include "explain/failure_words.h"
#include "host/host.h"
#include "host/interrupt.h"
#include "output/json_output.h"
#include "shell/command_line.h"

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

/// Carries the command out; why it failed, if it did.
std::optional<FailureReport> CarryOut(Host& host, const RunCommand& run)
{
    try
    {
        run(host);
        host.Save();
        host.RequireSession();
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

int EndRecording(Host& host, const std::vector<std::string>& arguments, int exitCode)
{
    try
    {
        host.EndRecording();
        if (const std::string line = host.ReplayLine(arguments); !line.empty())
            host.err() << "To replay it with the invented names: " << line << '\n';
        return exitCode;
    }
    catch (const Failure& failure)
    {
        if (exitCode == static_cast<int>(ExitCode::success))
            return ReportFailure(host, failure.report());
        PrintFailure(host.err(), failure.report(), host.terminal());
        return exitCode;
    }
}

/// What a failed command did before it failed is saved too.
void SaveAfterFailure(Host& host)
{
    try
    {
        host.Save();
    }
    catch (const Failure& failure)
    {
        PrintFailure(host.err(), failure.report(), host.terminal());
    }
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
    std::optional<FailureReport> failure = CarryOut(host, command->run);
    // A command without answers fails, too; the difference is the cause.
    if (const auto difference = host.EndReplay())
        failure = difference;
    if (!failure)
        return EndRecording(host, arguments, static_cast<int>(ExitCode::success));
    const int exitCode = ReportFailure(host, *failure);
    if (failure->exitCode != ExitCode::badInput)
        SaveAfterFailure(host);
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
