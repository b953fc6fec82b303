#include <calvix/wireless_manage.h>

#include "core/service_steps.h"

#include <cstdint>

using namespace calvix;
using platform::wlan;

namespace
{

constexpr unsigned long kWrongVersion = 0xFFFFFFFF;

/// Users, network operators and administrators may read and write; the entry that denies everyone comes last, on
/// purpose, so that it meets only those whom none of the others has served.
constexpr wchar_t kIhvAccess[] = L"O:SYG:SYD:(A;;CCRC;;;BU)(A;;CCDCWPSDRCWD;;;BU)(A;;CCRC;;;NO)(A;;CCDCWPSDRCWD;;;NO)"
                                 L"(A;;CCRC;;;BA)(A;;CCDCWPSDRCWD;;;BA)(D;;FA;;;WD)";

} // namespace

unsigned long CWirelessManage::SetIhvSecuritySettings()
{
    LocalTrace<128> trace;
    if (hClient == nullptr)
    {
        DWORD version = 0;
        const DWORD error = wlan().WlanOpenHandle(kClientVersion, nullptr, &version, &hClient);
        if (trace.Failed(error, "SetSecuritySettings -> WlanOpenHandle failed with error: %u"))
            return error;
        // Deliberate: the one method that looks at the version, and only when it has opened the handle itself.
        if (version != kClientVersion)
            return kWrongVersion;
    }
    return wlan().WlanSetSecuritySettings(hClient, wlan_secure_ihv_control, kIhvAccess);
}

unsigned long
CWirelessManage::IhvControl(const GUID* pInterfaceGuid, void* buffer, unsigned long size, unsigned long& bytesReturned)
{
    LocalTrace<128> trace;
    if (const ErrorNumber error = OpenClient(hClient, trace, "IhvControl -> WlanOpenHandle failed with error: %u"))
        return error;
    const DWORD error = wlan().WlanIhvControl(hClient, pInterfaceGuid, wlan_ihv_control_type_driver, size, buffer, size,
                                              buffer, &bytesReturned);
    if (error != 0)
        trace.Line("WlanIhvControl ErrorCode:%d\n", static_cast<std::int32_t>(error));
    return error;
}
