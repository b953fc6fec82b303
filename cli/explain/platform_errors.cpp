#include "explain/platform_errors.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <string_view>

namespace calvix::host
{

namespace
{

struct PlatformError
{
    std::uint32_t number;
    const char* words;
    const char* advice;
};

constexpr const char* kAllowLocation =
    "allow location access for desktop apps (Settings, Privacy & security, Location): switch on \"Location services\", "
    "\"Let apps access your location\" and \"Let desktop apps access your location\". Windows 11 24H2 and later ask "
    "for it; start ms-settings:privacy-location opens the page";

constexpr const char* kOfAnotherUser = "the profile may belong to another user: run in that user's session, or store "
                                       "it for all users (netsh wlan export profile there, calvix profiles add here)";

constexpr PlatformError kErrors[] = {
    {2, "file not found", "check the name"},
    {5, "access denied",
     "allow location access for desktop apps (Settings, Privacy & security, Location), or run as administrator"},
    {6, "invalid handle", "the WLAN service was restarted or the library was deleted: start the program again"},
    {8, "not enough memory", "close other programs"},
    {13, "invalid data", "check the document or the name that was passed"},
    {21, "not ready", "wait until the adapter has started and try again"},
    {31, "a device does not function", "disable and enable the adapter, or update its driver"},
    {50, "not supported", "the adapter or its driver cannot do this"},
    {87, "invalid parameter", "check the adapter's GUID: the adapter may have been removed; check the profile's name"},
    {122, "buffer too small", "pass a larger buffer, or a shorter name"},
    {126, "module not found",
     "wlanapi.dll is missing. On Windows Server install the feature \"Wireless LAN Service\" (as administrator: "
     "Install-WindowsFeature Wireless-Networking) and restart"},
    {127, "procedure not found", "this version of the system lacks the operation"},
    {170, "busy", "wait a moment and try again"},
    {183, "already exists", "delete the old one first, or replace it"},
    {259, "no more items", ""},
    {1004, "invalid flags", "choose another method: this one converts SSIDs in a way that the system refuses"},
    {1053, "the service did not answer in time", "restart the service \"WLAN AutoConfig\""},
    {1058, "the service is disabled", "enable the service \"WLAN AutoConfig\" and start it"},
    {1060, "no such service",
     "on Windows Server install the feature \"Wireless LAN Service\" (as administrator: Install-WindowsFeature "
     "Wireless-Networking) and restart"},
    {1062, "the WLAN service is not running",
     "start the service \"WLAN AutoConfig\" (as administrator: sc start WlanSvc)"},
    {1113, "a character has no counterpart in the code page",
     "the name has characters outside the active code page: use the operation that takes wide text"},
    {1168, "not found", "check the name, upper and lower case included, and that the adapter is still there"},
    {1169, "no match", "the profile asks for what the adapter cannot do: check its authentication and encryption"},
    {1206, "bad profile", "the document is not a valid WLAN profile: compare it with an exported one"},
    {1220, "too many open handles",
     "a program opens client handles of the WLAN service and never closes them: end it, or restart the service"},
    {1223, "cancelled", "try again"},
    {1460, "timed out", "try again; check that the adapter answers"},
    {1630, "unsupported type", ""},
    {5023, "not in the right state for this", "connect first"},
    {0x80342000, "automatic configuration controls the adapter", "let the service handle it"},
    {0x80342001, "the medium is in use", "wait a moment and try again"},
    {0x80342002, "the radio is off", "switch the radio on: flight mode, the switch on the case, the device manager"},
};

/// What the rest of the system answers with; where a number is in both tables, this one counts for it.
constexpr PlatformError kSystemErrors[] = {
    {2, "file not found",
     "check the name; a program is looked for beside calvix, in the system's folders and on the path"},
    {3, "path not found", "check the folder"},
    {5, "access denied", "run as administrator"},
    {50, "not supported", "this computer cannot do it: powercfg /a shows what it can do"},
    {87, "invalid parameter", ""},
    {193, "not a program", "give the name of a program for this system"},
    {740, "elevation required", "run as administrator"},
    {1131, "the wait would never end", "find out what the program waits for, or end it with: calvix run --kill PID"},
    {1313, "no such privilege", "check the name: SeShutdownPrivilege, SeDebugPrivilege and so on"},
    {1314, "a required privilege is not held", "run as administrator"},
    {12007, "the name could not be resolved",
     "check that the network has a name server, and sign in if it requires that"},
    {12029, "no connection could be made",
     "check that the network leads to the internet, and sign in if it requires that"},
};

template <std::size_t Count>
const PlatformError* FindIn(const PlatformError (&errors)[Count], std::uint32_t number)
{
    const auto found = std::find_if(std::begin(errors), std::end(errors),
                                    [number](const PlatformError& error) { return error.number == number; });
    return found != std::end(errors) ? found : nullptr;
}

const PlatformError* Find(std::uint32_t number)
{
    const PlatformError* const known = FindIn(kErrors, number);
    return known != nullptr ? known : FindIn(kSystemErrors, number);
}

std::string NumberText(std::uint32_t number)
{
    if (number < 0x10000)
        return std::to_string(number);
    char text[16];
    std::snprintf(text, sizeof(text), "0x%08X", static_cast<unsigned>(number));
    return text;
}

constexpr const char* kOfThisSession =
    "run as administrator, or in the session of a signed-in user: this account may not ask the WLAN service";
constexpr const char* kAsAdministrator = "run as administrator";
constexpr const char* kChangeProfile = "run as administrator, or get the right to change this profile";

struct DeniedOperation
{
    std::string_view name;
    const char* advice;
};

/// Operations that are denied for other reasons than the account.
constexpr DeniedOperation kDenied[] = {
    {"WlanScan", kAllowLocation},
    {"WlanGetAvailableNetworkList", kAllowLocation},
    {"WlanGetNetworkBssList", kAllowLocation},
    {"WlanQueryInterface", kAllowLocation},
    {"WlanSetProfile", kChangeProfile},
    {"WlanDeleteProfile", kChangeProfile},
    {"WlanSetProfilePosition", kChangeProfile},
    {"WlanGetProfile", kOfAnotherUser},
    {"WlanConnect", kOfAnotherUser},
    {"WlanIhvControl", "run as administrator, or let ordinary users send requests to drivers: calvix ihv --grant"},
    {"WlanSetInterface", kAsAdministrator},
    {"WlanSetSecuritySettings", kAsAdministrator},
};

} // namespace

std::string DescribePlatformError(std::uint32_t error)
{
    const PlatformError* const known = Find(error);
    return known != nullptr ? known->words + (", " + NumberText(error)) : "error " + NumberText(error);
}

std::string AdviseOnPlatformError(std::uint32_t error, const std::string& operation)
{
    constexpr std::uint32_t accessDenied = 5;
    if (error == accessDenied && !operation.empty())
    {
        const auto* const denied =
            std::find_if(std::begin(kDenied), std::end(kDenied),
                         [&operation](const DeniedOperation& each) { return each.name == operation; });
        return denied != std::end(kDenied) ? denied->advice : kOfThisSession;
    }
    const PlatformError* const known = Find(error);
    return known != nullptr ? known->advice : "";
}

std::string AdviseOnSystemError(std::uint32_t error, const std::string& operation)
{
    constexpr std::uint32_t invalidParameter = 87;
    if (error == invalidParameter && operation == "OpenProcess")
        return "no process has this number: the task manager shows the running ones";
    const PlatformError* const known = FindIn(kSystemErrors, error);
    return known != nullptr ? known->advice : "";
}

} // namespace calvix::host
