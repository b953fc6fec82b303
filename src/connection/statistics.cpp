#include <calvix/wireless_manage.h>

#include "core/service_steps.h"

#include <cstddef>

using namespace calvix;

int CWirelessManage::GetWlanStatistics(const GUID* pInterfaceGuid, _WIFI_TXRX_COUNT* pCount)
{
    if (pCount == nullptr)
        return -13;
    SharedTrace trace;
    WlanMemory<WLAN_STATISTICS> statistics;
    DWORD size = 0;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (QueryInterface(hClient, pInterfaceGuid, wlan_intf_opcode_statistics, statistics,
                       offsetof(WLAN_STATISTICS, MacMcastCounters), size, trace) != 0)
        return -4;
    // Deliberate: the two spare counters keep what the caller put in.
    pCount->ullTransmitted = statistics->MacUcastCounters.ullTransmittedFrameCount;
    pCount->ullReceived = statistics->MacUcastCounters.ullReceivedFrameCount;
    return 0;
}
