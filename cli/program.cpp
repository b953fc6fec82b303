#include "program.h"

#include "command_line.h"
#include "failure_words.h"
#include "interrupt.h"
#include "json_output.h"

namespace calvix::host
{

namespace
{

int Report(Host& host, const FailureReport& failure)
{
    if (host.json())
        PrintJson(host.out(), failure);
    PrintFailure(host.err(), failure);
    return static_cast<int>(failure.exitCode);
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
        PrintFailure(host.err(), failure.report());
    }
}

} // namespace

int Run(const std::vector<std::string>& arguments,
        std::istream& in,
        std::ostream& out,
        std::ostream& err,
        TerminalTraits terminal)
{
    ExitCode parsed = ExitCode::success;
    const std::optional<Request> request = ParseArguments(arguments, out, err, parsed);
    if (!request)
        return static_cast<int>(parsed);

    const InterruptWatch interruptWatch;
    Host host(request->options, in, out, err, terminal);
    try
    {
        request->run(host);
        host.Save();
        return static_cast<int>(ExitCode::success);
    }
    catch (const Failure& failure)
    {
        const int exitCode = Report(host, failure.report());
        if (failure.report().exitCode != ExitCode::badInput)
            SaveAfterFailure(host);
        return exitCode;
    }
    catch (const std::exception& error)
    {
        return Report(host, OperationFailure(error.what(), "report this with the command that led to it").report());
    }
}

} // namespace calvix::host
