#include "text/conversion.h"

#include <calvix/wireless_manage.h>

#include "core/copies.h"
#include "core/memory.h"
#include "core/wlan_records.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <cwchar>
#include <string>

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

std::size_t calvix::NarrowInLocale(std::wstring_view wide, char* narrow, std::size_t capacity)
{
    std::size_t whole = 0;
    std::mbstate_t state{};
    for (const wchar_t character : wide)
    {
        char bytes[MB_LEN_MAX];
        std::size_t length = std::wcrtomb(bytes, character, &state);
        if (length == static_cast<std::size_t>(-1))
        {
            bytes[0] = '?';
            length = 1;
            state = {};
        }
        for (std::size_t index = 0; index < length; ++index, ++whole)
            if (whole + 1 < capacity)
                narrow[whole] = bytes[index];
    }
    if (capacity != 0)
        narrow[(std::min)(whole, capacity - 1)] = '\0';
    return whole;
}

ErrorNumber calvix::WidenProfileName(const char* name, wchar_t (&wide)[kProfileNameCapacity], Trace& trace)
{
    constexpr DWORD flags = MB_PRECOMPOSED | MB_ERR_INVALID_CHARS;
    wide[0] = L'\0';
    if (text().MultiByteToWideChar(CP_ACP, flags, name, -1, wide, kProfileNameCapacity) != 0)
        return 0;
    const DWORD error = platform::errors().GetLastError();
    trace.Failed(error, "Profile Name error: %u");
    return static_cast<ErrorNumber>(error);
}

bool calvix::SsidAsProfileName(const DOT11_SSID& ssid, unsigned long longestStated, wchar_t (&text)[kSsidTextCapacity])
{
    char bytes[sizeof(ssid.ucSSID) + 1] = {};
    if (ssid.uSSIDLength <= longestStated)
        std::memcpy(bytes, ssid.ucSSID, SsidLength(ssid));
    constexpr DWORD flags = MB_PRECOMPOSED | MB_ERR_INVALID_CHARS;
    return platform::text().MultiByteToWideChar(CP_UTF8, flags, bytes, -1, text, kSsidTextCapacity) != 0;
}

bool CWirelessManage::UnicodeToAnsi(const wchar_t* source, char* destination)
{
    // Deliberate: the capacity is stated as 1024 whatever the destination holds; callers pass 256 bytes and rely on
    // the text being short.
    constexpr int kStatedCapacity = 1024;
    BOOL usedDefault = FALSE;
    return text().WideCharToMultiByte(CP_ACP, 0, source, -1, destination, kStatedCapacity, "", &usedDefault) != 0;
}

int CWirelessManage::WideCharToChar(const wchar_t* source, char* destination, int capacity)
{
    const int size = text().WideCharToMultiByte(CP_ACP, 0, source, -1, nullptr, 0, nullptr, nullptr);
    std::string narrow;
    int converted = 0;
    if (size > 0 && !OutOfMemoryIn([&] { narrow.resize(static_cast<std::size_t>(size)); }))
        converted = text().WideCharToMultiByte(CP_ACP, 0, source, -1, narrow.data(), size, nullptr, nullptr);
    StrictCopyText(destination, capacity, narrow.c_str(), "WideCharToChar");
    return converted;
}

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
