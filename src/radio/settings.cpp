#include <calvix/wireless_manage.h>

#include "core/service_steps.h"

#include <cstdint>

using namespace calvix;
using platform::wlan;

namespace
{

/// Switches one of the interface's automatic behaviours on. The platform's error number.
int Enable(HANDLE& client, const GUID* interfaceGuid, WLAN_INTF_OPCODE behaviour, const char* failure)
{
    LocalTrace<128> trace;
    if (const ErrorNumber error = OpenClient(client, trace))
        return static_cast<int>(error);
    const BOOL enabled = TRUE;
    const DWORD error = wlan().WlanSetInterface(client, interfaceGuid, behaviour, sizeof(enabled), &enabled, nullptr);
    trace.Failed(error, failure);
    return static_cast<int>(error);
}

constexpr unsigned long kWrongVersion = 0xFFFFFFFF;

/// Users, network operators and administrators may read and write; the entry that denies everyone comes last, on
/// purpose, so that it meets only those whom none of the others has served.
constexpr wchar_t kIhvAccess[] = L"O:SYG:SYD:(A;;CCRC;;;BU)(A;;CCDCWPSDRCWD;;;BU)(A;;CCRC;;;NO)(A;;CCDCWPSDRCWD;;;NO)"
                                 L"(A;;CCRC;;;BA)(A;;CCDCWPSDRCWD;;;BA)(D;;FA;;;WD)";

} // namespace

int CWirelessManage::EnableAutoCfg(const GUID* pInterfaceGuid)
{
    return Enable(hClient, pInterfaceGuid, wlan_intf_opcode_autoconf_enabled, "Enable auto config failed! err is %u");
}

int CWirelessManage::EnableBackgroundScan(const GUID* pInterfaceGuid)
{
    return Enable(hClient, pInterfaceGuid, wlan_intf_opcode_background_scan_enabled,
                  "Enable background scan failed! err is %u");
}

int CWirelessManage::GetPowerSetting(unsigned long& level)
{
    LocalTrace<128> trace;
    WlanMemory<WLAN_POWER_SETTING> setting;
    if (const ErrorNumber error = OpenClient(hClient, trace))
        return static_cast<int>(error);
    DWORD size = sizeof(*setting);
    PVOID data = nullptr;
    DWORD error = wlan().WlanQueryAutoConfigParameter(hClient, wlan_autoconf_opcode_power_setting, nullptr, &size,
                                                      &data, nullptr);
    setting.Take(data);
    error = ErrorOf(error, data, size, sizeof(*setting));
    // Deliberate: a failed query shows only in the trace and in the level left alone.
    if (!trace.Failed(error, "WlanQueryAutoConfigParameter failed! err is %u"))
        level = *setting;
    return 0;
}

int CWirelessManage::SetPowerSetting(unsigned long)
{
    // Deliberate: part of the interface, without effect.
    return 0;
}

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
