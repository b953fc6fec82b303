#include <calvix/wireless_manage.h>

#include "core/fixed_text.h"
#include "core/service_steps.h"

using namespace calvix;
using platform::wlan;

int CWirelessManage::SetCurrentWiFiToLast()
{
    LocalTrace<128> trace;
    // Released in the reverse of this order.
    InterfaceList interfaces;
    ProfileList profiles;
    ConnectionAttributes connection;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (const ErrorNumber error = EnumerateInterfaces(hClient, interfaces, trace))
        return static_cast<int>(error);
    if (interfaces->dwNumberOfItems == 0)
    {
        trace.Message("No valid WLAN adapter");
        return 0;
    }
    const GUID* const first = &interfaces->InterfaceInfo[0].InterfaceGuid;
    if (const ErrorNumber error = ListProfiles(hClient, first, profiles, trace))
        return static_cast<int>(error);
    if (const ErrorNumber error = QueryCurrentConnection(hClient, first, connection, kUpToProfileName, trace))
        return static_cast<int>(error);
    if (profiles->dwNumberOfItems < 2)
        return 0;
    const DWORD last = profiles->dwNumberOfItems - 1;
    const DWORD error =
        wlan().WlanSetProfilePosition(hClient, first, TerminatedName(connection->strProfileName), last, nullptr);
    trace.Failed(error, "WlanSetProfilePosition failed with error: %u");
    return static_cast<int>(error);
}
