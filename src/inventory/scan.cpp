#include <calvix/wireless_manage.h>

#include "core/service_steps.h"
#include "core/wlan_lists.h"

using namespace calvix;
using platform::wlan;

int CWirelessManage::Rescan(const GUID* pInterfaceGuid, unsigned long& dwError)
{
    SharedTrace trace;
    if (const ErrorNumber error = OpenClient(hClient, trace))
    {
        dwError = error;
        return -1;
    }
    const DWORD error = wlan().WlanScan(hClient, pInterfaceGuid, nullptr, nullptr, nullptr);
    if (trace.Failed(error, "WlanScan failed with error: %u"))
    {
        dwError = error;
        return -4;
    }
    return 0;
}

int CWirelessManage::Rescan()
{
    SharedTrace trace;
    InterfaceList interfaces;
    if (const int code =
            ListInterfaces(hClient, interfaces, trace, {.notOpened = -1, .enumerationFailed = -2, .none = -3}))
        return code;
    const GUID* const first = &interfaces->InterfaceInfo[0].InterfaceGuid;
    if (trace.Failed(wlan().WlanScan(hClient, first, nullptr, nullptr, nullptr), "WlanScan failed with error: %u"))
        return -4;
    return 0;
}
