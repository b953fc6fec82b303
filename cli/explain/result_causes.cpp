#include "explain/result_codes.h"

#include <iterator>

namespace calvix::host
{

namespace
{

using enum Cause;

constexpr auto kUnavailable = ExitCode::unavailable;

constexpr const char* kListAdvice =
    "allow location access for desktop apps, switch the radio on, and check that the WLAN service runs";

constexpr CauseText kCauses[] = {
    {clientNotOpened, "client handle not opened", "no client handle of the WLAN service could be opened",
     "start the service \"WLAN AutoConfig\" (sc start WlanSvc); on a server install the wireless feature",
     "WlanOpenHandle", kUnavailable},
    {enumerationFailed, "enumeration failed", "the wireless adapters could not be listed",
     "check that the service \"WLAN AutoConfig\" runs and try again; if it was restarted, restart the program too",
     "WlanEnumInterfaces", kUnavailable},
    {noAdapter, "no adapter", "the computer has no wireless adapter",
     "plug one in, or enable it and its driver in the device manager", nullptr, kUnavailable},
    {noSuchInterface, "no such adapter", "there is no adapter with this GUID",
     "list the adapters; a GUID changes when an adapter is installed again"},
    {noSuchDescription, "no such description", "no adapter has this description",
     "list the adapters; the whole description must match, upper and lower case included"},
    {scanRefused, "scan refused", "the scan was refused",
     "switch the radio on, allow location access for desktop apps, and wait while a connection is being made",
     "WlanScan"},
    {networkListFailed, "network list failed", "the list of visible networks could not be fetched", kListAdvice,
     "WlanGetAvailableNetworkList"},
    {networkListEmpty, "no network", "no network is in view",
     "scan, wait until the scan is done, and try again; go closer"},
    {ssidNotVisible, "SSID not found", "no visible network has this SSID",
     "scan first; check upper and lower case; the list does not show hidden networks by their SSID"},
    {networkNotListed, "no such network", "no visible network has this SSID and BSS type",
     "scan first; check the SSID and whether the network is an ad hoc one"},
    {bssListFailed, "BSS list failed", "the list of access points could not be fetched", kListAdvice,
     "WlanGetNetworkBssList"},
    {bssListEmpty, "BSS list empty", "the service lists no access point of this network",
     "scan, wait until the scan is done, and try again"},
    {noBssInView, "no BSS in view", "the connected network has no access point in view",
     "the connection is about to end or the list is old: scan, and look again"},
    {accessPointNotListed, "access point not listed",
     "the connected access point is not in the list, though others of its network are",
     "scan, wait until the scan is done, and try again; GetRssi needs no list"},
    {profileListFailed, "profile list failed", "the stored profiles could not be listed",
     "check that the adapter is still there and that the WLAN service runs", "WlanGetProfileList"},
    {noProfile, "no profile", "no profile is stored",
     "store one: connect to a network once, or add an exported profile document"},
    {profileNotFound, "no such profile", "no profile of this name is stored",
     "list the profiles; upper and lower case matter"},
    {profileNotDeleted, "not deleted", "the profile was not deleted",
     "check the name, case included; profiles of all users and of a group policy need an administrator",
     "WlanDeleteProfile"},
    {profileNotReadable, "profile not read", "the profile could not be read",
     "check the name, case included; a profile of another user cannot be read", "WlanGetProfile"},
    {profileNotStored, "not stored", "the profile was not stored",
     "check that the document is a whole WLAN profile and fits the adapter; profiles of all users may need an "
     "administrator",
     "WlanSetProfile"},
    {noConnectionMode, "no connection mode", "the profile's document names no connection mode",
     "add <connectionMode>auto</connectionMode> or manual to the document and store it again"},
    {malformedConnectionMode, "malformed before the connection mode",
     "the profile's document is malformed before its connection mode",
     "store a well-formed document under the same name"},
    {notConnected, "connection query refused", "no current connection could be read",
     "connect first; when the adapter is connected, allow location access for desktop apps", "WlanQueryInterface"},
    {rssiRefused, "RSSI query refused", "the signal strength of the link could not be read",
     "connect first; some drivers do not report it at all", "WlanQueryInterface"},
    {statisticsRefused, "statistics query refused", "the frame counters could not be read",
     "check that the adapter is still there and its radio is on", "WlanQueryInterface"},
    {noCandidate, "no candidate", "no visible network can be chosen",
     "none of them has a stored profile that connects automatically and is not excluded: set a profile's connection "
     "mode to auto, or exclude less"},
    {everyRequestRefused, "every request refused", "the service refused to connect to each of the candidates",
     "look at the error of each request; profiles may not fit the adapter, or its radio is off", "WlanConnect"},
    {diagnosticRun, "diagnostic run", "the diagnostic ran; it always returns this code", "read its trace lines"},
    {laterBssListFailed, "later BSS list failed", "a repeated list of access points could not be fetched", kListAdvice,
     "WlanGetNetworkBssList"},
    {laterBssListEmpty, "later BSS list empty", "a repeated list of access points was empty",
     "the network went out of view meanwhile: go closer"},
    {firstBssListFailed, "first BSS list failed", "the first list of access points of a network could not be fetched",
     kListAdvice, "WlanGetNetworkBssList"},
    {firstBssListEmpty, "first BSS list empty", "a network had no access point in view",
     "scan, wait until the scan is done, and try again"},
    {nullOutput, "null output", "the pointer for the result is null", "pass a container or a record to be filled"},
    {nullInput, "null input", "a pointer that the method reads from is null", "pass a valid pointer"},
    {radioStateUnknown, "radio query refused", "the state of the radio could not be read",
     "check that the adapter is still there", "WlanQueryInterface"},
    {noPhy, "no PHY", "the adapter reports no radio", "update the adapter's driver"},
    {safeModeUnknown, "safe-mode query refused", "whether the adapter supports safe mode could not be read",
     "check that the adapter is still there; older drivers do not report it", "WlanQueryInterface"},
    {radioNotSwitched, "switch refused", "the radio could not be switched",
     "look at the switch on the case and at flight mode; some drivers need an administrator", "WlanSetInterface"},
    {otherServiceVersion, "other service version", "this version of the WLAN service is not supported",
     "use a system whose WLAN service has version 2"},
    {someAdapterRefused, "some list failed", "an adapter could not be listed and is missing", kListAdvice},
    {profileNotInView, "no network with the profile", "no visible network has the profile",
     "scan first; check the profile's name, upper and lower case included"},
    {nothingMatches, "nothing matches", "no visible network has a stored profile that may be used",
     "scan first, or store a profile for a network in view"},
    {nothingBetter, "nothing better", "no network with a stored profile has a better signal than the current one",
     "stay, or scan and try again"},
    {requestRefused, "request refused", "the service refused to connect",
     "look at the service's error; the radio may be off", "WlanConnect"},
    {accessPointNotJoined, "no BSS in view or request refused",
     "the network has no access point in view, or the service refused to connect",
     "scan first, go closer, and check that the profile is still stored", "WlanConnect"},
    {savedNotAutomatic, "profile not automatic", "the remembered connection's profile does not connect automatically",
     "connect by the profile's name instead"},
    {savedNotInView, "no BSS of the saved network", "the remembered connection's network has no access point in view",
     "scan first; go closer"},
    {profileNotMoved, "profile not moved", "the current profile could not be moved to the last place",
     "profiles of all users and of a group policy need an administrator", "WlanSetProfilePosition"},
    {signalGoodEnough, "signal quality 80 or more", "the signal is good enough to stay",
     "do nothing: there is no need to roam"},
    {alreadyThere, "already connected to it",
     "the adapter is already connected to the best access point of its network",
     "do nothing: there is no need to roam"},
    {suspendNotAllowed, "suspend not allowed", "the computer cannot be suspended",
     "powercfg /a shows what keeps it from sleeping: a driver, the firmware or a policy", "IsPwrSuspendAllowed"},
    {noActiveScheme, "no active scheme", "the active power scheme could not be read",
     "powercfg /list shows the schemes; activate one with powercfg /setactive"},
    {schemeNotReadable, "scheme not read", "the policy of the active power scheme could not be read",
     "powercfg /restoredefaultschemes brings the system's own schemes back", "ReadPwrScheme"},
    {schemeNotWritten, "scheme not written", "the policy of the power scheme could not be written",
     "run as administrator; a group policy may have fixed the power settings", "WritePwrScheme"},
    {schemeNotActivated, "scheme not activated", "the power scheme could not be activated",
     "run as administrator; a group policy may have fixed the active scheme"},
    {schemeNotCopied, "scheme not copied", "the active power scheme could not be copied", "run as administrator",
     "PowerDuplicateScheme"},
    {schemeNotNamed, "copy not named", "the copy of the power scheme could not be named",
     "run as administrator; the copy is still in powercfg /list, and powercfg /delete removes it",
     "PowerWriteFriendlyName"},
    {sleepTimeNotWritten, "time-out not written", "a sleep time-out of the new power scheme could not be written",
     "run as administrator; the scheme is still in powercfg /list, and powercfg /delete removes it",
     "PowerWriteACValueIndex"},
    {internetNotReached, "not reached", "the internet could not be reached",
     "check that the adapter is connected and has an address; sign in if the network requires it",
     "InternetCheckConnectionA"},
};

/// The table is in the order of the enumeration, which Describe relies on.
constexpr bool IsInOrder()
{
    for (std::size_t i = 0; i < std::size(kCauses); ++i)
        if (kCauses[i].cause != static_cast<Cause>(i))
            return false;
    return true;
}
static_assert(IsInOrder());
static_assert(std::size(kCauses) == static_cast<std::size_t>(Cause::internetNotReached) + 1);

} // namespace

const CauseText& Describe(Cause cause)
{
    return kCauses[static_cast<std::size_t>(cause)];
}

} // namespace calvix::host
