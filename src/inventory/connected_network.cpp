#include <calvix/wireless_manage.h>

#include "core/service_steps.h"

using namespace calvix;

namespace
{

constexpr const char* kNoBssText = "WlanGetNetworkBssList failed with error: %u";

} // namespace

int CWirelessManage::IsWiFiDisappear(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    // Released in the reverse of this order.
    BssList entries("WlanFreeMemory(pBssList)");
    ConnectionAttributes connection("WlanFreeMemory(pConnectInfo)");
    // Deliberate: a failure answers like a network that is still in view.
    if (OpenClient(hClient, trace) != 0)
        return 0;
    if (QueryCurrentConnection(hClient, pInterfaceGuid, connection, kUpToSecurityFlag, trace) != 0)
        return 0;
    if (ListConnectionBss(hClient, pInterfaceGuid, *connection, entries, trace) != 0)
        return 0;
    if (entries->dwNumberOfItems != 0)
        return 0;
    trace.Line(kNoBssText, 0U);
    return 1;
}

long CWirelessManage::GetCurrentBSS()
{
    LocalTrace<128> trace;
    // Released in the reverse of this order.
    InterfaceList interfaces("WlanFreeMemory(pIfList)");
    BssList entries("WlanFreeMemory(pBssList)");
    ConnectionAttributes connection("WlanFreeMemory(pConnectInfo)");
    if (const int code = ListInterfaces(hClient, interfaces, trace,
                                        {.notOpened = -1, .enumerationFailed = -2, .none = -3, .noneText = nullptr}))
        return code;
    const GUID* const first = &interfaces->InterfaceInfo[0].InterfaceGuid;
    if (QueryCurrentConnection(hClient, first, connection, kUpToSecurityFlag, trace) != 0)
        return -4;
    if (ListConnectionBss(hClient, first, *connection, entries, trace) != 0)
        return -5;
    if (entries->dwNumberOfItems != 0)
        return 0;
    trace.Line(kNoBssText, 0U);
    return -6;
}
