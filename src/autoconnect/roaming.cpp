#include <calvix/wireless_manage.h>

#include "connection/connect_request.h"
#include "core/service_steps.h"
#include "core/wlan_records.h"

#include <cstring>

using namespace calvix;
using platform::wlan;

namespace
{

constexpr unsigned long kGoodEnough = 79;

/// Whether to move, and where to: 0 with the connection and the target's entry in `entries`, else the code.
int DecideMove(
    HANDLE& client, const GUID* interfaceGuid, ConnectionAttributes& connection, BssList& entries, Trace& trace)
{
    if (OpenClient(client, trace) != 0)
        return -1;
    if (QueryCurrentConnection(client, interfaceGuid, connection, kUpToSecurityFlag, trace) != 0)
        return -4;
    const WLAN_ASSOCIATION_ATTRIBUTES& association = connection->wlanAssociationAttributes;
    if (association.wlanSignalQuality > kGoodEnough)
        return -5;
    // Deliberate: a failing list is not traced here.
    if (wlan().WlanGetNetworkBssList(client, interfaceGuid, &association.dot11Ssid, association.dot11BssType,
                                     connection->wlanSecurityAttributes.bSecurityEnabled, nullptr,
                                     entries.Receive()) != 0 ||
        entries.get() == nullptr)
        return -6;
    if (entries->dwNumberOfItems == 0)
        return -7;
    const WLAN_BSS_ENTRY& target = PickAccessPoint(*entries);
    if (std::memcmp(target.dot11Bssid, association.dot11Bssid, sizeof(target.dot11Bssid)) == 0)
        return -8;
    return 0;
}

} // namespace

int CWirelessManage::PreRoaming(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    // Released in the reverse of this order.
    BssList entries;
    ConnectionAttributes connection;
    return DecideMove(hClient, pInterfaceGuid, connection, entries, trace);
}

int CWirelessManage::Roaming(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    // Released in the reverse of this order.
    BssList entries;
    ConnectionAttributes connection;
    if (const int code = DecideMove(hClient, pInterfaceGuid, connection, entries, trace))
        return code;
    DOT11_BSSID_LIST desired = DesireOnly(PickAccessPoint(*entries));
    if (RequestConnection(hClient, pInterfaceGuid, TerminatedName(connection->strProfileName),
                          connection->wlanAssociationAttributes.dot11BssType, &desired, trace) != 0)
        return -9;
    return 0;
}
