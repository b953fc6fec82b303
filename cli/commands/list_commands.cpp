#include "commands/commands.h"
#include "host/host.h"
#include "output/code_page.h"
#include "output/json_output.h"
#include "output/text_forms.h"
#include "view/describe.h"

#include <sstream>

namespace calvix::host
{

namespace
{

JsonRecord SoftApRecord(const std::vector<std::string>& names, bool connected)
{
    return JsonRecord().Add("softAps", names).Add("connectedToSoftAp", connected);
}

std::vector<std::string> LinesOfText(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// The library's listings go to its trace; here they are the result.
void List(Host& host, const char* method, int (CWirelessManage::*listing)())
{
    // It lists all adapters, but an adapter given with --interface must exist.
    if (host.options().adapter.empty())
        host.adapters();
    else
        host.adapter();
    int result = 0;
    const std::string text = FromActiveCodePage(host.CaptureTrace([&] { result = (host.manager().*listing)(); }));
    if (host.json() && result == 0)
        return PrintJson(host.out(), Under("lines", LinesOfText(text)));
    if (!host.json())
        host.out() << text;
    host.Require(method, result);
}

void ListSoftAps(Host& host)
{
    std::vector<std::string> names;
    host.Require("GetSoftAPList", host.manager().GetSoftAPList(host.adapterGuid(), &names));
    for (std::string& name : names)
        name = FromActiveCodePage(name);
    // Of the first adapter, whichever is chosen.
    const bool connected = host.manager().SpecialSoftAP();
    if (host.json())
        return PrintJson(host.out(), SoftApRecord(names, connected));
    host.out() << Counted(names.size(), "software access point") << " in view\n";
    for (const std::string& name : names)
        host.out() << "  " << VisibleText(name) << '\n';
    host.out() << "The first adapter is " << (connected ? "" : "not ") << "connected to one.\n";
}

} // namespace

void AddListCommands(CommandSet& commands)
{
    commands.AddFamily("list", "The library's own diagnostic listings: networks, bss");
    commands
        .Add("list networks", "List what every adapter sees, networks with their flags",
             [](Host& host) { List(host, "GetAvailableNetwork", &CWirelessManage::GetAvailableNetwork); })
        .Prints("list", [] { return std::vector{Under("lines", std::vector<std::string>{})}; })
        .Examples("Networks as the library lists them:\n"
                  "  calvix list networks");
    commands
        .Add("list bss", "List what every adapter sees, access points with their radio",
             [](Host& host) { List(host, "GetNetworkBss", &CWirelessManage::GetNetworkBss); })
        .Prints("list")
        .Examples("Access points as the library lists them:\n"
                  "  calvix list bss");
    commands.Add("softap", "List the software access points in view: networks whose SSID holds LC#", ListSoftAps)
        .Prints("softap", [] { return std::vector{SoftApRecord({}, false)}; })
        .Examples("Is one near?\n"
                  "  calvix softap");
}

} // namespace calvix::host
