#include "commands/commands.h"
#include "core/wlan_records.h"
#include "host/host.h"
#include "host/service_view.h"
#include "live/connection_wait.h"
#include "live/notifications.h"
#include "live/progress.h"
#include "output/code_page.h"
#include "output/json_output.h"
#include "output/text_forms.h"
#include "shell/nearest_word.h"
#include "view/describe.h"
#include "view/status.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

constexpr int kProfileNotInView = -2; // of LinkProfile
constexpr const char* kTimeoutHelp = "Maximum seconds to wait for the result";

struct ConnectOptions
{
    std::string profile;
    std::string method;
    unsigned seconds = 15;
};

void ShowNow(Host& host)
{
    const StatusFacts status = ReadStatus(host);
    if (host.json())
        return PrintJson(host.out(), status);
    PrintStatus(host, status);
}

/// Makes a connection and shows it.
void ConnectAndShow(Host& host, const ConnectOptions& options, const std::function<void()>& ask)
{
    const ConnectRequest request = ConnectAndWait(host, options.seconds, ask);
    if (!host.json())
        host.out() << "Connected by " << Quoted(request.profile) << ".\n\n";
    ShowNow(host);
}

/// The library knows only that no visible network has the profile; a profile that is not stored is another mistake.
Failure ProfileNotInView(Host& host, const std::string& profile)
{
    std::vector<std::string> stored;
    for (const WLAN_PROFILE_INFO& info : host.service().Profiles(host.adapterGuid()))
        stored.push_back(Narrow(FixedText(info.strProfileName)));
    const bool known = std::find(stored.begin(), stored.end(), profile) != stored.end();
    FailureReport report = host.MethodFailure("LinkProfile", kProfileNotInView).report();
    report.message = known ? "the network of the profile \"" + VisibleText(profile) + "\" is not in view"
                           : "there is no profile \"" + VisibleText(profile) + "\"";
    if (!known)
        report.advice = DidYouMean(profile, stored) + "list the profiles: calvix profiles list";
    return Failure(report);
}

void Connect(Host& host, const ConnectOptions& options)
{
    const GUID* const adapter = host.adapterGuid();
    std::string name =
        InActiveCodePage(Widen(options.profile), "connect by the profile's automatic mode instead: calvix auto");
    ConnectAndShow(host, options,
                   [&]
                   {
                       const int code = host.manager().LinkProfile(adapter, name.data());
                       if (code == kProfileNotInView)
                           throw ProfileNotInView(host, options.profile);
                       host.Require("LinkProfile", code);
                   });
}

/// Waits until the service reports that the adapter's connection is down.
void DisconnectAndWait(Host& host, unsigned seconds)
{
    const GUID* const adapter = host.adapterGuid();
    const bool connected = host.service().Connection(adapter).has_value();
    Notifications notifications(host);
    host.Require("Disconnect", host.manager().Disconnect(adapter));
    if (!connected)
        return;
    const Progress progress(host, "Disconnecting");
    const auto isDown = [&](const Notice& notice)
    { return notice.code == wlan_notification_acm_disconnected && IsEqualGUID(notice.adapter, *adapter); };
    WaitUntil(host, seconds,
              [&]
              {
                  const std::vector<Notice> notices = notifications.Take();
                  return std::any_of(notices.begin(), notices.end(), isDown);
              });
}

void Disconnect(Host& host, const ConnectOptions& options)
{
    DisconnectAndWait(host, options.seconds);
    ShowNow(host);
}

/// Goes back to a remembered connection: to the access point that the library picks, to the one that the service picks, or
/// by the profile alone.
void GoBack(Host& host, const std::string& method, WLAN_CONNECTION_ATTRIBUTES& remembered)
{
    const GUID* const adapter = host.adapterGuid();
    CWirelessManage& library = host.manager();
    if (method == "network")
        host.Require("RecoverConnetionAttributes", library.RecoverConnetionAttributes(adapter));
    else if (method == "profile")
        host.Require("RecoverConnection", library.RecoverConnection(adapter, &remembered));
    else
        host.Require("Reconnect", library.Reconnect(adapter, &remembered, 0));
}

void Reconnect(Host& host, const ConnectOptions& options)
{
    const GUID* const adapter = host.adapterGuid();
    WLAN_CONNECTION_ATTRIBUTES remembered{};
    host.Check("GetCurrentConnection", host.manager().GetCurrentConnection(adapter, &remembered));
    host.Check("SaveCurrentConnectionAttributes", host.manager().SaveCurrentConnectionAttributes(adapter));
    DisconnectAndWait(host, options.seconds);
    ConnectAndShow(host, options, [&] { GoBack(host, options.method, remembered); });
}

void Reset(Host& host, const ConnectOptions& options)
{
    const GUID* const adapter = host.adapterGuid();
    ConnectAndShow(host, options, [&] { host.Require("ResetConnection", host.manager().ResetConnection(adapter)); });
}

/// One method ignores its argument and works on the first adapter.
void RequireFirstAdapter(Host& host)
{
    if (!IsEqualGUID(host.adapters().front().InterfaceGuid, *host.adapterGuid()))
        throw BadInput("--method smart works on the first adapter only", "choose another method, or omit --interface");
}

void AskAutomatically(Host& host, const std::string& method)
{
    const GUID* const adapter = host.adapterGuid();
    CWirelessManage& library = host.manager();
    if (method == "ranked")
        host.Require("AutoConnectEx", library.AutoConnectEx(adapter));
    else if (method == "smart")
        host.Require("SmartConnecting", library.SmartConnecting(adapter, nullptr));
    else if (method == "mode")
        host.Require("ConnectAutoMode", library.ConnectAutoMode(adapter));
    else
        host.Require("AutoConnect", library.AutoConnect(adapter));
}

void ConnectAutomatically(Host& host, const ConnectOptions& options)
{
    if (options.method == "smart")
        RequireFirstAdapter(host);
    ConnectAndShow(host, options, [&] { AskAutomatically(host, options.method); });
}

void Switch(Host& host, const ConnectOptions& options)
{
    const GUID* const adapter = host.adapterGuid();
    ConnectAndShow(host, options,
                   [&]
                   {
                       if (options.method == "smart")
                           host.Require("SmartSwitch", host.manager().SmartSwitch(adapter));
                       else
                           host.Require("AutoSwitch", host.manager().AutoSwitch(adapter));
                   });
}

} // namespace

void AddConnectionCommands(CommandSet& commands)
{
    const auto options = std::make_shared<ConnectOptions>();
    commands.Add("status", "Show the adapter's state and connection", ShowNow)
        .Prints("status", [] { return std::vector{Describe(StatusFacts{})}; })
        .Examples("For the second adapter:\n"
                  "  calvix status --interface 2");
    commands.Add("connect", "Connect by a stored profile whose network is in view", options, Connect)
        .Number("--timeout", options->seconds, kTimeoutHelp)
        .Text("PROFILE", options->profile, "The profile")
        .Takes(ValueKind::profile)
        .Prints("status")
        .Examples("Connect, and wait no longer than a minute:\n"
                  "  calvix connect Office --timeout 60");
    commands.Add("disconnect", "Disconnect the adapter", options, Disconnect)
        .Number("--timeout", options->seconds, kTimeoutHelp)
        .Prints("status")
        .Examples("Until the service or a person connects again:\n"
                  "  calvix disconnect");
    commands.Add("reset", "Request the current connection again", options, Reset)
        .Number("--timeout", options->seconds, kTimeoutHelp)
        .Prints("status")
        .Examples("The connection is up and does not work:\n"
                  "  calvix reset");
    commands.Add("reconnect", "Disconnect, then connect again", options, Reconnect)
        .Number("--timeout", options->seconds, kTimeoutHelp)
        .OneOf("--method", options->method, {"access-point", "network", "profile"},
               "Back to the best access point (default), to the network, or by the profile")
        .Prints("status")
        .Examples("Back by the same profile:\n"
                  "  calvix reconnect --method profile");
    commands.Add("auto", "Connect to a network in view that has a stored profile", options, ConnectAutomatically)
        .Number("--timeout", options->seconds, kTimeoutHelp)
        .OneOf("--method", options->method, {"connect", "ranked", "smart", "mode"},
               "By the profiles' order (connect, default), by rank, the first profile's only (smart), or only profiles "
               "that connect automatically (mode)")
        .Prints("status")
        .Examples("The best-ranked profile in view:\n"
                  "  calvix auto --method ranked");
    commands.Add("switch", "Change to another network that has a stored profile", options, Switch)
        .Number("--timeout", options->seconds, kTimeoutHelp)
        .OneOf("--method", options->method, {"auto", "smart"},
               "Put the current profile last and use the first in order (auto, default), or the first with a better "
               "signal (smart)")
        .Prints("status")
        .Examples("To a network with a better signal:\n"
                  "  calvix switch --method smart");
}

} // namespace calvix::host
