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

struct SoftApFacts
{
    std::vector<std::string> names;
    bool connected = false; ///< whether the first adapter is connected to one
};

JsonRecord Describe(const SoftApFacts& softAps)
{
    return JsonRecord().Add("softAps", softAps.names).Add("connectedToSoftAp", softAps.connected);
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

SoftApFacts ReadSoftAps(Host& host)
{
    std::vector<std::string> names;
    host.Require("GetSoftAPList", host.manager().GetSoftAPList(host.adapterGuid(), &names));
    SoftApFacts facts;
    for (const std::string& name : names)
        facts.names.push_back(FromActiveCodePage(name));
    facts.connected = host.manager().SpecialSoftAP();
    return facts;
}

void ListSoftAps(Host& host)
{
    const SoftApFacts facts = ReadSoftAps(host);
    if (host.json())
        return PrintJson(host.out(), facts);
    host.out() << Counted(facts.names.size(), "software access point") << " in view\n";
    for (const std::string& name : facts.names)
        host.out() << "  " << VisibleText(name) << '\n';
    host.out() << "The first adapter is " << (facts.connected ? "" : "not ") << "connected to one.\n";
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
        .Prints("softap", [] { return std::vector{Describe(SoftApFacts{})}; })
        .Examples("Is one near?\n"
                  "  calvix softap");
}

} // namespace calvix::host
