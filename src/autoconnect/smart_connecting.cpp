#include <calvix/wireless_manage.h>

#include "autoconnect/connection_walk.h"
#include "core/fixed_text.h"
#include "core/narrow_text.h"
#include "core/service_steps.h"

using namespace calvix;

int CWirelessManage::SmartConnecting(const GUID*, char* profileName)
{
    LocalTrace<128> trace;
    InterfaceList interfaces;
    ProfilesAndNetworks lists;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (const ErrorNumber error = EnumerateInterfaces(hClient, interfaces, trace))
        return static_cast<int>(error);
    if (interfaces->dwNumberOfItems == 0)
    {
        // Deliberate: the enumeration's own result; no adapter reads as success.
        trace.Message("No valid WLAN adapter");
        return 0;
    }
    const GUID* const first = &interfaces->InterfaceInfo[0].InterfaceGuid;
    if (const ErrorNumber error = ListProfiles(hClient, first, lists.profiles, trace))
        return static_cast<int>(error);
    if (const ErrorNumber error = ListAvailableNetworks(hClient, first, lists.networks, trace))
        return static_cast<int>(error);
    NetworksByProfile networksByProfile;
    if (const ErrorNumber error = networksByProfile.Take(*lists.networks))
        return static_cast<int>(error);
    for (const WLAN_PROFILE_INFO& profile : Items(*lists.profiles))
    {
        for (const WLAN_AVAILABLE_NETWORK* network : networksByProfile.Of(profile))
        {
            const ErrorNumber error = RequestNetwork(hClient, first, *network, trace);
            if (error == 0 && profileName != nullptr)
                NarrowInLocale(FixedText(network->strProfileName), profileName, 128);
            return static_cast<int>(error);
        }
    }
    return -2;
}
