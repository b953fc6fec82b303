#include "core/access_point_pick.h"

#include <cstring>

namespace calvix
{

DOT11_BSSID_LIST DesireOnly(const WLAN_BSS_ENTRY& accessPoint)
{
    DOT11_BSSID_LIST list{};
    list.Header.Type = NDIS_OBJECT_TYPE_DEFAULT;
    list.Header.Revision = DOT11_BSSID_LIST_REVISION_1;
    list.Header.Size = sizeof(DOT11_BSSID_LIST);
    list.uNumOfEntries = 1;
    list.uTotalNumOfEntries = 1;
    std::memcpy(list.BSSIDs[0], accessPoint.dot11Bssid, sizeof(accessPoint.dot11Bssid));
    return list;
}

} // namespace calvix
