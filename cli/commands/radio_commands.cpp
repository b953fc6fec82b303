#include "commands/commands.h"
#include "core/wlan_records.h"
#include "explain/failure_words.h"
#include "host/host.h"
#include "host/service_view.h"
#include "host/watched_calls.h"
#include "live/connection_wait.h"
#include "live/notifications.h"
#include "live/progress.h"
#include "output/json_output.h"
#include "output/table.h"
#include "view/describe.h"
#include "view/radio_view.h"

namespace calvix::host
{

namespace
{

struct RadioOptions
{
    unsigned seconds = 15;
};

void ShowRadio(Host& host, const RadioFacts& radio)
{
    if (host.json())
        return PrintJson(host.out(), Under("radio", radio));
    PrintPairs(host.out(),
               {{"Radio", Toned(radio.on ? "on" : "off", radio.on ? Tone::good : Tone::poor, host.terminal())},
                {"Software switch", radio.software},
                {"Hardware switch", radio.hardware}});
}

void ShowRadioNow(Host& host)
{
    ShowRadio(host, ReadRadio(host, host.adapterGuid()));
}

/// The radio, which was to be switched on.
RadioFacts RequireOn(Host& host)
{
    const RadioFacts radio = ReadRadio(host, host.adapterGuid());
    if (radio.on)
        return radio;
    const bool byHardware = radio.hardware == "off";
    throw OperationFailure(byHardware ? "the radio is still off: its hardware switch is off" : "the radio is still off",
                           byHardware ? kUseHardwareSwitch : "wait a moment and look again: calvix radio status");
}

void SwitchOn(Host& host)
{
    unsigned long error = 0;
    host.Require("TurnOnSoftwareRadio", host.manager().TurnOnSoftwareRadio(host.adapterGuid(), error));
    ShowRadio(host, RequireOn(host));
}

void SwitchOff(Host& host)
{
    host.Require("RadioTurnOff", host.manager().RadioTurnOff(host.adapterGuid()));
    ShowRadioNow(host);
}

/// The methods that switch off and on do not report failures; the service's refusals show them.
void RequireSwitched(Host& host, const char* method)
{
    const Refusal& refusal = host.watched().LastOfService();
    if (refusal.operation != "WlanSetInterface")
        return;
    FailureReport report = ServiceFailure("WlanSetInterface", refusal.error).report();
    report.message = "the radio could not be switched: " + report.message;
    report.method = method;
    throw Failure(report);
}

void ResetRadio(Host& host)
{
    const GUID* const adapter = host.adapterGuid();
    {
        const Progress progress(host, "Switching the radio off and on");
        host.Require("ResetWiFiRadio", host.manager().ResetWiFiRadio(adapter));
    }
    RequireSwitched(host, "ResetWiFiRadio");
    ShowRadio(host, RequireOn(host));
}

/// The profile that the service will connect by when the radio is back; empty when it will not.
std::wstring ComingBack(Host& host)
{
    const GUID* const adapter = host.adapterGuid();
    const auto connection = host.service().Connection(adapter);
    const bool automatic = host.service().IsEnabled(adapter, wlan_intf_opcode_autoconf_enabled).value_or(false);
    if (!connection || !automatic || host.manager().IsAutoConnMode2(adapter, connection->strProfileName) != 1)
        return {};
    return std::wstring(FixedText(connection->strProfileName));
}

/// Whether the adapter is connected, by any profile, before the time is over. What was reported while the radio was
/// still being switched counts. An adapter with several PHYs stays connected through the restart: only the first one is
/// switched.
bool WaitForConnection(Host& host, Notifications& notifications, unsigned seconds)
{
    const GUID adapter = *host.adapterGuid();
    bool connected = true;
    const Progress progress(host, "The radio is on, waiting for the connection");
    return WaitUntil(host, seconds,
                     [&]
                     {
                         for (const Notice& notice : notifications.Take())
                         {
                             if (!IsEqualGUID(notice.adapter, adapter))
                                 continue;
                             if (notice.code == wlan_notification_acm_disconnected)
                                 connected = false;
                             else if (notice.code == wlan_notification_acm_connection_complete)
                                 connected = notice.reason == WLAN_REASON_CODE_SUCCESS;
                         }
                         return connected && host.service().Connection(&adapter).has_value();
                     });
}

void Restart(Host& host, const RadioOptions& options)
{
    const GUID* const adapter = host.adapterGuid();
    const std::wstring profile = ComingBack(host);
    Notifications notifications(host);
    {
        const Progress progress(host, "Restarting the radio");
        host.manager().RestartWiFiRadio(adapter);
    }
    RequireSwitched(host, "RestartWiFiRadio");
    const RadioFacts radio = RequireOn(host);
    if (!profile.empty() && !WaitForConnection(host, notifications, options.seconds))
        throw OperationFailure("the radio is on again, but the connection by " + Quoted(profile) +
                                   " did not come back within " + Counted(options.seconds, "second"),
                               "wait longer with --timeout, or connect with: calvix connect");
    ShowRadio(host, radio);
}

} // namespace

void AddRadioCommands(CommandSet& commands)
{
    const auto options = std::make_shared<RadioOptions>();
    commands.AddFamily("radio", "The adapter's radio: status, on, off, reset, restart");
    commands.Add("radio status", "Show the radio and its switches", ShowRadioNow)
        .Prints("radio", [] { return std::vector{Under("radio", RadioFacts{})}; })
        .Examples("Which switch is off?\n"
                  "  calvix radio status");
    commands.Add("radio on", "Switch the software radio on", SwitchOn)
        .Prints("radio")
        .Examples("For the second adapter:\n"
                  "  calvix radio on --interface 2");
    commands.Add("radio off", "Switch the software radio off", SwitchOff)
        .Prints("radio")
        .Examples("For the first adapter:\n"
                  "  calvix radio off");
    commands.Add("radio reset", "Switch the radio off and, half a second later, on", ResetRadio)
        .Prints("radio")
        .Examples("Without waiting for the connection:\n"
                  "  calvix radio reset");
    commands
        .Add("radio restart", "Switch the radio off and on, waiting for both and for the connection to come back",
             options, Restart)
        .Number("--timeout", options->seconds, "Maximum seconds to wait for the connection")
        .Prints("radio")
        .Examples("Wait longer for the connection:\n"
                  "  calvix radio restart --timeout 60");
}

} // namespace calvix::host
