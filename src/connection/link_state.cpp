#include <calvix/wireless_manage.h>

#include "core/interface_list.h"
#include "core/service_steps.h"

using namespace calvix;

namespace
{

/// Whether the interface is in this state; every failure reads as no.
int InterfaceIsInState(HANDLE& client, const GUID* interfaceGuid, WLAN_INTERFACE_STATE state, Trace& trace)
{
    InterfaceList interfaces;
    if (ListInterfaces(client, interfaces, trace, {.notOpened = -1, .enumerationFailed = -1, .none = -1}) != 0)
        return 0;
    const WLAN_INTERFACE_INFO* const found = LastInterface(*interfaces, interfaceGuid);
    return found != nullptr && found->isState == state ? 1 : 0;
}

} // namespace

int CWirelessManage::WiFiIsConnected(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    return InterfaceIsInState(hClient, pInterfaceGuid, wlan_interface_state_connected, trace);
}

int CWirelessManage::WiFiIsDisconnected(const GUID* pInterfaceGuid)
{
    SharedTrace trace;
    return InterfaceIsInState(hClient, pInterfaceGuid, wlan_interface_state_disconnected, trace);
}
