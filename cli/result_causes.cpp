#include "result_codes.h"

#include <iterator>

namespace calvix::host
{

namespace
{

constexpr auto kFailed = ExitCode::failed;
constexpr auto kUnavailable = ExitCode::unavailable;

constexpr const char* kListAdvice =
    "allow location access for desktop apps, switch the radio on, and see that the WLAN service runs";

constexpr CauseText kCauses[] = {
    {Cause::clientNotOpened, "no client handle of the WLAN service could be opened",
     "start the service \"WLAN AutoConfig\" (sc start WlanSvc); on a server install the wireless feature",
     "WlanOpenHandle", kUnavailable},
    {Cause::enumerationFailed, "the wireless adapters could not be listed",
     "see that the service \"WLAN AutoConfig\" runs and try again; if it was restarted, restart the program too",
     "WlanEnumInterfaces", kUnavailable},
    {Cause::noAdapter, "the computer has no wireless adapter",
     "plug one in, or enable it and its driver in the device manager", nullptr, kUnavailable},
    {Cause::noSuchInterface, "there is no adapter with this GUID",
     "list the adapters; a GUID changes when an adapter is installed again", nullptr, kFailed},
    {Cause::noSuchDescription, "no adapter has this description",
     "list the adapters; the description must be equal to the last letter, upper and lower case included", nullptr,
     kFailed},
    {Cause::scanRefused, "the scan was refused",
     "switch the radio on, allow location access for desktop apps, and wait while a connection is being made",
     "WlanScan", kFailed},
    {Cause::networkListFailed, "the list of visible networks could not be fetched", kListAdvice,
     "WlanGetAvailableNetworkList", kFailed},
    {Cause::networkListEmpty, "no network is in view", "scan, wait until the scan is done, and try again; go closer",
     nullptr, kFailed},
    {Cause::ssidNotVisible, "no visible network has this SSID",
     "scan first; check upper and lower case; the list does not show hidden networks by their SSID", nullptr, kFailed},
    {Cause::networkNotListed, "no visible network has this SSID and BSS type",
     "scan first; check the SSID and whether the network is an ad hoc one", nullptr, kFailed},
    {Cause::bssListFailed, "the list of access points could not be fetched", kListAdvice, "WlanGetNetworkBssList",
     kFailed},
    {Cause::bssListEmpty, "the service lists no access point of the network asked about",
     "scan, wait until the scan is done, and try again", nullptr, kFailed},
    {Cause::noBssInView, "the connected network has no access point in view",
     "the connection is about to end or the list is old: scan, and look again", nullptr, kFailed},
    {Cause::accessPointNotListed, "the connected access point is not in the list, though others of its network are",
     "scan, wait until the scan is done, and try again; ask for the link's own value meanwhile", nullptr, kFailed},
    {Cause::profileListFailed, "the stored profiles could not be listed",
     "see that the adapter is still there and that the WLAN service runs", "WlanGetProfileList", kFailed},
    {Cause::noProfile, "no profile is stored",
     "store one: connect to a network once, or add an exported profile document", nullptr, kFailed},
    {Cause::profileNotFound, "no profile of this name is stored", "list the profiles; upper and lower case matter",
     nullptr, kFailed},
    {Cause::profileNotDeleted, "the profile was not deleted",
     "check the name, case included; profiles of all users and of a group policy need an administrator",
     "WlanDeleteProfile", kFailed},
    {Cause::profileNotReadable, "the profile could not be read",
     "check the name, case included; a profile of another user cannot be read", "WlanGetProfile", kFailed},
    {Cause::profileNotStored, "the profile was not stored",
     "check that the document is a whole WLAN profile and fits the adapter; profiles of all users may need an "
     "administrator",
     "WlanSetProfile", kFailed},
    {Cause::noConnectionMode, "the profile's document names no connection mode",
     "add <connectionMode>auto</connectionMode> or manual to the document and store it again", nullptr, kFailed},
    {Cause::malformedConnectionMode, "the profile's document is malformed before its connection mode",
     "store a well-formed document under the same name", nullptr, kFailed},
    {Cause::notConnected, "there is no current connection that could be read",
     "connect first; when the adapter is connected, allow location access for desktop apps", "WlanQueryInterface",
     kFailed},
    {Cause::rssiRefused, "the signal strength of the link could not be read",
     "connect first; some drivers do not tell it at all", "WlanQueryInterface", kFailed},
    {Cause::statisticsRefused, "the frame counters could not be read",
     "see that the adapter is still there and its radio is on", "WlanQueryInterface", kFailed},
    {Cause::noCandidate, "no visible network can be chosen",
     "none of them has a stored profile that connects automatically and is not ruled out: set a profile's connection "
     "mode to auto, or rule out less",
     nullptr, kFailed},
    {Cause::everyRequestRefused, "the service refused to connect to each of the candidates",
     "look at the error of each request; profiles may not fit the adapter, or its radio is off", "WlanConnect",
     kFailed},
    {Cause::diagnosticRun, "the diagnostic ran; it always ends so", "read its trace lines", nullptr, kFailed},
    {Cause::laterBssListFailed, "a repeated list of access points could not be fetched", kListAdvice,
     "WlanGetNetworkBssList", kFailed},
    {Cause::laterBssListEmpty, "a repeated list of access points was empty",
     "the network left the air while it was watched: go closer", nullptr, kFailed},
    {Cause::firstBssListFailed, "the first list of access points of a network could not be fetched", kListAdvice,
     "WlanGetNetworkBssList", kFailed},
    {Cause::firstBssListEmpty, "a network had no access point in view",
     "scan, wait until the scan is done, and try again", nullptr, kFailed},
    {Cause::nullOutput, "the pointer for the result is null", "pass a container or a record to be filled", nullptr,
     kFailed},
    {Cause::nullInput, "a pointer that the method reads from is null", "pass what the method asks for", nullptr,
     kFailed},
    {Cause::radioStateUnknown, "the state of the radio could not be read", "see that the adapter is still there",
     "WlanQueryInterface", kFailed},
    {Cause::noPhy, "the adapter reports no radio", "update the adapter's driver", nullptr, kFailed},
    {Cause::safeModeUnknown, "whether the adapter supports safe mode could not be read",
     "see that the adapter is still there; older drivers do not tell it", "WlanQueryInterface", kFailed},
    {Cause::radioNotSwitched, "the radio could not be switched",
     "look at the switch on the case and at flight mode; some drivers need an administrator", "WlanSetInterface",
     kFailed},
    {Cause::otherServiceVersion, "the WLAN service has a version that this is not meant for",
     "use a system whose WLAN service is of version 2", nullptr, kFailed},
    {Cause::someAdapterRefused, "an adapter refused to be listed, and is missing in the listing", kListAdvice, nullptr,
     kFailed},
    {Cause::profileNotInView, "no visible network carries the profile",
     "scan first; check the profile's name, upper and lower case included", nullptr, kFailed},
    {Cause::nothingMatches, "no visible network has a stored profile that may be used",
     "scan first, or store a profile for a network in view", nullptr, kFailed},
    {Cause::nothingBetter, "no network with a stored profile has a better signal than the current one",
     "stay, or scan and try again", nullptr, kFailed},
    {Cause::requestRefused, "the service refused to connect", "look at the service's error; the radio may be off",
     "WlanConnect", kFailed},
    {Cause::accessPointNotJoined, "the network has no access point in view, or the service refused to connect",
     "scan first, go closer, and see that the profile is still stored", "WlanConnect", kFailed},
    {Cause::savedNotAutomatic, "the remembered connection's profile does not connect automatically",
     "connect by the profile's name instead", nullptr, kFailed},
    {Cause::savedNotInView, "the remembered connection's network has no access point in view", "scan first; go closer",
     nullptr, kFailed},
    {Cause::profileNotMoved, "the current profile could not be moved to the last place",
     "profiles of all users and of a group policy need an administrator", "WlanSetProfilePosition", kFailed},
    {Cause::signalGoodEnough, "the signal is good enough to stay", "nothing: there is no need to roam", nullptr,
     kFailed},
    {Cause::alreadyThere, "the adapter is connected to the best access point of its network already",
     "nothing: there is no need to roam", nullptr, kFailed},
    {Cause::suspendNotAllowed, "the computer cannot be suspended",
     "powercfg /a tells what keeps it from sleeping: a driver, the firmware or a policy", "IsPwrSuspendAllowed",
     kFailed},
    {Cause::noActiveScheme, "which power scheme is active could not be told",
     "powercfg /list shows the schemes; activate one with powercfg /setactive", nullptr, kFailed},
    {Cause::schemeNotReadable, "the policy of the active power scheme could not be read",
     "powercfg /restoredefaultschemes brings the system's own schemes back", "ReadPwrScheme", kFailed},
    {Cause::schemeNotWritten, "the policy of the power scheme could not be written",
     "run as administrator; a group policy may have fixed the power settings", "WritePwrScheme", kFailed},
    {Cause::schemeNotActivated, "the power scheme could not be activated",
     "run as administrator; a group policy may have fixed the active scheme", nullptr, kFailed},
    {Cause::schemeNotCopied, "the active power scheme could not be copied", "run as administrator",
     "PowerDuplicateScheme", kFailed},
    {Cause::schemeNotNamed, "the copy of the power scheme could not be named",
     "run as administrator; the copy is still in powercfg /list, and powercfg /delete removes it",
     "PowerWriteFriendlyName", kFailed},
    {Cause::sleepTimeNotWritten, "a sleep time-out of the new power scheme could not be written",
     "run as administrator; the scheme is still in powercfg /list, and powercfg /delete removes it",
     "PowerWriteACValueIndex", kFailed},
    {Cause::internetNotReached, "the internet could not be reached",
     "see that the adapter is connected and has an address; sign in where the network asks for it",
     "InternetCheckConnectionA", kFailed},
};

/// The table is in the order of the enumeration, which Describe relies on.
constexpr bool IsInOrder()
{
    for (std::size_t i = 0; i < std::size(kCauses); ++i)
    {
        if (kCauses[i].cause != static_cast<Cause>(i))
            return false;
    }
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
