#include <calvix/wireless_manage.h>

#include "core/bounded_copy.h"
#include "core/ssid.h"
#include "core/strict_copy.h"
#include "platform/platform.h"

using namespace calvix;
using platform::text;

namespace
{

constexpr int kWideCapacity = 128;
constexpr int kNarrowCapacity = 64;

/// The SSID, taken as UTF-8, in wide characters up to its first zero byte; whether it could be converted.
bool WidenSsid(const DOT11_SSID* ssid, wchar_t (&wide)[kWideCapacity])
{
    char bytes[kNarrowCapacity] = {};
    if (ssid == nullptr)
        FatalCallerError("GetSSID", "null SSID");
    if (ssid->uSSIDLength > sizeof(bytes))
        FatalCallerError("GetSSID", "the SSID is longer than 64 bytes");
    // A stated length between 33 and 64 is let through, but there are no more than 32 bytes to read.
    std::memcpy(bytes, ssid->ucSSID, SsidLength(*ssid));
    return text().MultiByteToWideChar(CP_UTF8, 0, bytes, -1, wide, kWideCapacity) != 0;
}

} // namespace

int CWirelessManage::GetSSID(const DOT11_SSID* pSsid, char* destination, int capacity)
{
    wchar_t wide[kWideCapacity] = {};
    if (!WidenSsid(pSsid, wide))
        return 0;
    char narrow[kNarrowCapacity] = {};
    if (text().WideCharToMultiByte(CP_ACP, 0, wide, -1, narrow, kNarrowCapacity, nullptr, nullptr) == 0)
        return 0;
    CopyTruncatingToCaller(destination, capacity, narrow);
    return 1;
}

int CWirelessManage::GetSSID(const DOT11_SSID* pSsid, wchar_t* destination, int capacity)
{
    wchar_t wide[kWideCapacity] = {};
    if (!WidenSsid(pSsid, wide))
        return 0;
    CopyTruncatingToCaller(destination, capacity, wide);
    return 1;
}
