#include "command.h"
#include "describe.h"
#include "host.h"
#include "json_output.h"

namespace calvix::host
{

namespace
{

void ShowStatus(Host& host)
{
    const StatusFacts status = ReadStatus(host);
    if (host.json())
        return PrintJson(host.out(), status);
    PrintStatus(host, status);
}

} // namespace

void AddConnectionCommands(CommandSet& commands)
{
    commands.Add("status", "Show the adapter's state and connection", ShowStatus);
}

} // namespace calvix::host
