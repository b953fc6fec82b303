#include "explain/result_codes.h"
#include "host/service_view.h"
#include "host/watched_calls.h"
#include "output/text_forms.h"
#include "report/take_picture.h"
#include "view/describe.h"

namespace calvix::host
{

namespace
{

/// An automatic method as it is called here.
struct AutomaticMethod
{
    const char* name;
    const char* command;
    const char* rule;
    long (*call)(Host&);
};

/// No code of any method.
constexpr long kNothingToGoBackTo = -1000;

long CallReconnect(Host& host)
{
    WLAN_CONNECTION_ATTRIBUTES attributes{};
    if (host.manager().GetCurrentConnection(host.adapterGuid(), &attributes) != 0)
        return kNothingToGoBackTo;
    return host.manager().Reconnect(host.adapterGuid(), &attributes, 0);
}

constexpr AutomaticMethod kAutomaticMethods[] = {
    {"ConnectBestAP", "best",
     "Ranks the networks in view whose profiles connect automatically by signal quality, with a bonus for 5 GHz, and "
     "asks the lowest score first.",
     [](Host& host) { return static_cast<long>(host.manager().ConnectBestAP(host.adapterGuid())); }},
    {"AutoConnect", "auto",
     "Requests every network in view that has a profile, manual ones too, in the order of the profiles, until a "
     "request is accepted.",
     [](Host& host) { return static_cast<long>(host.manager().AutoConnect(host.adapterGuid())); }},
    {"AutoConnectEx", "auto --method ranked", "Ranks as ConnectBestAP does, manual profiles included.",
     [](Host& host) { return static_cast<long>(host.manager().AutoConnectEx(host.adapterGuid())); }},
    {"SmartConnecting", "auto --method smart",
     "Requests once, on the first adapter, the first profile in order whose network is in view.",
     [](Host& host)
     {
         char name[128] = {};
         return static_cast<long>(host.manager().SmartConnecting(host.adapterGuid(), name));
     }},
    {"ConnectAutoMode", "auto --method mode",
     "Goes through the profiles that connect automatically in order, and reads each network's SSID as text first.",
     [](Host& host) { return static_cast<long>(host.manager().ConnectAutoMode(host.adapterGuid())); }},
    {"AutoSwitch", "switch", "Puts the current profile last, then does as AutoConnect, in the previous order.",
     [](Host& host) { return static_cast<long>(host.manager().AutoSwitch(host.adapterGuid())); }},
    {"SmartSwitch", "switch --method smart",
     "Requests once the first profile in order whose network is better than the link, after reading the current SSID "
     "as text.",
     [](Host& host) { return static_cast<long>(host.manager().SmartSwitch(host.adapterGuid())); }},
    {"Roaming", "roam",
     "With a signal quality below 80 goes to the last listed access point of the current network that is better than "
     "the first listed one.",
     [](Host& host) { return static_cast<long>(host.manager().Roaming(host.adapterGuid())); }},
    {"Reconnect", "reconnect",
     "Goes back to the current network's access point, picked as Roaming does, however good the link is.",
     CallReconnect},
};

std::string Quoted(const std::string& name)
{
    return "\xe2\x80\x9c" + VisibleText(name) + "\xe2\x80\x9d";
}

/// A request by what makes it different from others: the access point where one is named, else the profile.
std::string NameOf(const ConnectRequest& request)
{
    return request.accessPoint.empty() ? Quoted(Narrow(request.profile)) : request.accessPoint;
}

std::string WhyNothing(const char* method, long code)
{
    return code == kNothingToGoBackTo ? Describe(Cause::notConnected).meaning
                                      : Explain(*FindMethod(method), code).meaning;
}

std::string NowText(const std::vector<std::string>& asked, const char* method, long code)
{
    if (asked.empty())
        return "Requests nothing: " + WhyNothing(method, code) + ".";
    std::string text = "Requests " + asked.front();
    for (std::size_t i = 1; i < asked.size(); ++i)
        text += (i == 1 ? "; if refused, for " : ", then for ") + asked[i];
    return text + ".";
}

ChoiceFacts RehearseMethod(Host& host, const AutomaticMethod& method)
{
    long code = 0;
    ChoiceFacts choice;
    choice.method = method.name;
    choice.command = std::string("calvix ") + method.command;
    choice.rule = method.rule;
    for (const ConnectRequest& request : host.Rehearse([&] { code = method.call(host); }))
        choice.asked.push_back(NameOf(request));
    choice.now = NowText(choice.asked, method.name, code);
    return choice;
}

} // namespace

std::vector<ChoiceFacts> RehearseChoices(Host& host)
{
    std::vector<ChoiceFacts> choices;
    for (const AutomaticMethod& method : kAutomaticMethods)
        choices.push_back(RehearseMethod(host, method));
    return choices;
}

} // namespace calvix::host
