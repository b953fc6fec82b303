#include "autoconnect/ssid_as_profile_name.h"

#include "core/ssid.h"
#include "platform/platform.h"

#include <cstring>

namespace calvix
{

bool SsidAsProfileName(const DOT11_SSID& ssid, unsigned long longestStated, wchar_t (&text)[kSsidTextCapacity])
{
    char bytes[sizeof(ssid.ucSSID) + 1] = {};
    if (ssid.uSSIDLength <= longestStated)
        std::memcpy(bytes, ssid.ucSSID, SsidLength(ssid));
    constexpr DWORD flags = MB_PRECOMPOSED | MB_ERR_INVALID_CHARS;
    return platform::text().MultiByteToWideChar(CP_UTF8, flags, bytes, -1, text, kSsidTextCapacity) != 0;
}

} // namespace calvix
