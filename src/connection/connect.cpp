#include <calvix/wireless_manage.h>

#include "connection/connect_request.h"
#include "core/copies.h"
#include "core/service_steps.h"
#include "core/wlan_records.h"
#include "text/conversion.h"

#include <algorithm>

using namespace calvix;
using platform::wlan;

namespace
{

/// The network of a remembered connection.
struct RememberedNetwork
{
    const DOT11_SSID& ssid;
    DOT11_BSS_TYPE bssType;
    BOOL securityEnabled;
    const wchar_t* profileName;
};

int ReconnectTo(HANDLE& client, const GUID* interfaceGuid, const RememberedNetwork& network)
{
    LocalTrace<128> trace;
    BssList entries;
    if (OpenClient(client, trace) != 0)
        return -1;
    if (ListBss(client, interfaceGuid, &network.ssid, network.bssType, network.securityEnabled, entries, trace) != 0)
        return -4;
    if (entries->dwNumberOfItems == 0)
        return -6;
    DOT11_BSSID_LIST desired = DesireOnly(PickAccessPoint(*entries));
    if (RequestConnection(client, interfaceGuid, network.profileName, network.bssType, &desired, trace) != 0)
        return -6;
    return 0;
}

} // namespace

int CWirelessManage::LinkProfile(const GUID* pInterfaceGuid, char* name)
{
    LocalTrace<128> trace;
    NetworkList networks;
    wchar_t wide[kProfileNameCapacity];
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (const ErrorNumber error = ListAvailableNetworks(hClient, pInterfaceGuid, networks, trace))
        return static_cast<int>(error);
    if (const ErrorNumber error = WidenProfileName(name, wide, trace))
        return static_cast<int>(error);
    const auto items = Items(*networks);
    const auto carriesProfile = [&wide](const WLAN_AVAILABLE_NETWORK& network)
    { return FixedText(network.strProfileName) == wide; };
    const auto network = std::find_if(items.begin(), items.end(), carriesProfile);
    if (network == items.end())
        return -2;
    return static_cast<int>(RequestConnection(hClient, pInterfaceGuid, TerminatedName(network->strProfileName),
                                              network->dot11BssType, nullptr, trace));
}

int CWirelessManage::Disconnect(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    // Deliberate: both failures give the platform's own error number.
    if (const ErrorNumber error = OpenClient(hClient, trace))
        return static_cast<int>(error);
    const DWORD error = wlan().WlanDisconnect(hClient, pInterfaceGuid, nullptr);
    trace.Failed(error, "WlanDisconnect failed with error: %u");
    return static_cast<int>(error);
}

int CWirelessManage::Reconnect(const GUID* pInterfaceGuid, WLAN_CONNECTION_ATTRIBUTES* pAttributes, unsigned long)
{
    if (pAttributes == nullptr)
        return -14;
    const WLAN_ASSOCIATION_ATTRIBUTES& association = pAttributes->wlanAssociationAttributes;
    return ReconnectTo(hClient, pInterfaceGuid,
                       {association.dot11Ssid, association.dot11BssType,
                        pAttributes->wlanSecurityAttributes.bSecurityEnabled,
                        TerminatedName(pAttributes->strProfileName)});
}

int CWirelessManage::Reconnect(const GUID* pInterfaceGuid, WLAN_CONNECTION_NOTIFICATION_DATA* pData, unsigned long)
{
    if (pData == nullptr)
        return -14;
    return ReconnectTo(
        hClient, pInterfaceGuid,
        {pData->dot11Ssid, pData->dot11BssType, pData->bSecurityEnabled, TerminatedName(pData->strProfileName)});
}

int CWirelessManage::RecoverConnection(const GUID* pInterfaceGuid, WLAN_CONNECTION_ATTRIBUTES* pAttributes)
{
    if (pAttributes == nullptr)
        return -14;
    SharedTrace trace;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (RequestConnection(hClient, pInterfaceGuid, TerminatedName(pAttributes->strProfileName),
                          pAttributes->wlanAssociationAttributes.dot11BssType, nullptr, trace) != 0)
        return -4;
    return 0;
}

int CWirelessManage::ResetConnection(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    ConnectionAttributes connection;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (QueryCurrentConnection(hClient, pInterfaceGuid, connection, kUpToAssociation, trace) != 0)
        return -4;
    if (RequestConnection(hClient, pInterfaceGuid, TerminatedName(connection->strProfileName),
                          connection->wlanAssociationAttributes.dot11BssType, nullptr, trace) != 0)
        return -5;
    return 0;
}

int CWirelessManage::SaveCurrentConnectionAttributes(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    // Released in the reverse of this order.
    ProfileText profile;
    ConnectionAttributes connection;
    DWORD size = 0;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (QueryCurrentConnection(hClient, pInterfaceGuid, connection, kUpToProfileName, size, trace) != 0)
        return -4;
    StrictCopy(&m_SavedConnAttr, sizeof(m_SavedConnAttr), connection.get(), size, "SaveCurrentConnectionAttributes");
    // Deliberate: from here on the record is the new one, while the mode keeps its former value when the profile cannot
    // be read.
    if (ReadProfile(hClient, pInterfaceGuid, TerminatedName(connection->strProfileName), profile, trace) != 0)
        return -5;
    m_nSavedAutoConnMode = IsAutoConnMode(profile.get());
    return 0;
}

long CWirelessManage::RecoverConnetionAttributes(const GUID* pInterfaceGuid)
{
    if (m_nSavedAutoConnMode == 0)
        return -99;
    LocalTrace<128> trace;
    BssList entries;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (ListConnectionBss(hClient, pInterfaceGuid, m_SavedConnAttr, entries, trace) != 0)
        return -4;
    if (entries->dwNumberOfItems == 0)
        return -5;
    if (RequestConnection(hClient, pInterfaceGuid, TerminatedName(m_SavedConnAttr.strProfileName),
                          m_SavedConnAttr.wlanAssociationAttributes.dot11BssType, nullptr, trace) != 0)
        return -6;
    return 0;
}

void CWirelessManage::SaveConnNotificationData(WLAN_CONNECTION_NOTIFICATION_DATA* pData)
{
    // A null record first empties the memory, and is then a fatal caller error.
    if (pData == nullptr)
        m_SavedConnNotify = {};
    StrictCopy(&m_SavedConnNotify, sizeof(m_SavedConnNotify), pData, sizeof(m_SavedConnNotify),
               "SaveConnNotificationData");
}

long CWirelessManage::RecoverConnNotificationData(const GUID* pInterfaceGuid)
{
    return Reconnect(pInterfaceGuid, &m_SavedConnNotify, 20);
}
