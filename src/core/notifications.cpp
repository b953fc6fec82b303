#include <calvix/wireless_manage.h>

#include "core/service_steps.h"

using namespace calvix;

namespace
{

/// Both directions: the trace line is written on success as well.
int Register(HANDLE& client,
             DWORD source,
             BOOL ignoreDuplicates,
             WLAN_NOTIFICATION_CALLBACK callback,
             void* context,
             const char* format)
{
    SharedTrace trace;
    if (const ErrorNumber error = OpenClient(client, trace))
        return static_cast<int>(error);
    DWORD previousSource = 0;
    const auto error = static_cast<int>(platform::wlan().WlanRegisterNotification(
        client, source, ignoreDuplicates, callback, context, nullptr, &previousSource));
    trace.Line(format, static_cast<long>(error));
    return error;
}

} // namespace

int CWirelessManage::RegisterNotification(WLAN_NOTIFICATION_CALLBACK callback, void* context)
{
    return Register(hClient, WLAN_NOTIFICATION_SOURCE_ACM, TRUE, callback, context, "WlanRegisterNotification: %ld");
}

int CWirelessManage::UnRegisterNotification(WLAN_NOTIFICATION_CALLBACK, void* context)
{
    return Register(hClient, WLAN_NOTIFICATION_SOURCE_NONE, FALSE, nullptr, context, "WlanUnRegisterNotification: %ld");
}
