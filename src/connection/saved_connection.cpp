#include <calvix/wireless_manage.h>

#include "core/connect_request.h"
#include "core/fixed_text.h"
#include "core/service_steps.h"
#include "core/strict_copy.h"
#include "profiles/profile_read.h"

using namespace calvix;

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
