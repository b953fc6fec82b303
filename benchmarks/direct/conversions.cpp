#include "direct/hand_written.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <cwchar>

namespace calvix::benchmarks
{

using platform::text;

namespace
{

constexpr char kHexDigits[] = "0123456789ABCDEF";

int ValueOfDigit(char digit)
{
    if (digit >= 'a')
        return digit - 'a' + 10;
    if (digit >= 'A')
        return digit - 'A' + 10;
    return digit - '0';
}

bool WideSsid(const DOT11_SSID* ssid, wchar_t (&wide)[128])
{
    char bytes[sizeof(ssid->ucSSID) + 1] = {};
    std::memcpy(bytes, ssid->ucSSID, ssid->uSSIDLength);
    return text().MultiByteToWideChar(CP_UTF8, 0, bytes, -1, wide, 128) != 0;
}

/// The text between the closing tag and the '>' before it.
bool ElementIs(const wchar_t* xml, const wchar_t* closingTag, const wchar_t* expected)
{
    const wchar_t* const end = std::wcsstr(xml, closingTag);
    if (end == nullptr)
        return false;
    const wchar_t* start = end;
    while (start != xml && start[-1] != L'>')
        --start;
    const std::size_t length = std::wcslen(expected);
    return static_cast<std::size_t>(end - start) == length && std::wmemcmp(start, expected, length) == 0;
}

} // namespace

bool HandWritten::UnicodeToAnsi(const wchar_t* source, char* destination)
{
    BOOL usedDefault = FALSE;
    return text().WideCharToMultiByte(CP_ACP, 0, source, -1, destination, 1024, "", &usedDefault) != 0;
}

// The size is asked for first, since the destination's must not be believed.
int HandWritten::WideCharToChar(const wchar_t* source, char* destination, int capacity)
{
    const int size = text().WideCharToMultiByte(CP_ACP, 0, source, -1, nullptr, 0, nullptr, nullptr);
    if (size == 0 || size > capacity)
        return 0;
    return text().WideCharToMultiByte(CP_ACP, 0, source, -1, destination, size, nullptr, nullptr);
}

int HandWritten::GetSSID(const DOT11_SSID* ssid, char* destination, int capacity)
{
    wchar_t wide[128] = {};
    char narrow[64] = {};
    if (!WideSsid(ssid, wide) || text().WideCharToMultiByte(CP_ACP, 0, wide, -1, narrow, 64, nullptr, nullptr) == 0)
        return 0;
    std::snprintf(destination, static_cast<std::size_t>(capacity), "%s", narrow);
    return 1;
}

int HandWritten::GetSSID(const DOT11_SSID* ssid, wchar_t* destination, int capacity)
{
    wchar_t wide[128] = {};
    if (!WideSsid(ssid, wide))
        return 0;
    const std::size_t length = (std::min)(std::wcslen(wide), static_cast<std::size_t>(capacity) - 1);
    std::wmemcpy(destination, wide, length);
    destination[length] = L'\0';
    return 1;
}

unsigned char*
HandWritten::StringToHex(const char* digits, int length, unsigned char* destination, int size, bool reversed)
{
    std::memset(destination, 0, static_cast<std::size_t>(size));
    int written = 0;
    for (int low = length - 1; low >= 0 && written < size; low -= 2, ++written)
    {
        const int high = low > 0 ? ValueOfDigit(digits[low - 1]) : 0;
        destination[reversed ? written : size - 1 - written] =
            static_cast<unsigned char>(16 * high + ValueOfDigit(digits[low]));
    }
    return destination;
}

char* HandWritten::HexToString(const unsigned char* bytes, int count, char* destination, int capacity, bool fromStart)
{
    std::memset(destination, '0', static_cast<std::size_t>(capacity));
    destination[capacity - 1] = '\0';
    char* place = fromStart ? destination : destination + capacity - 2 * count;
    for (int index = 0; index < count; ++index)
    {
        *place++ = kHexDigits[bytes[index] >> 4];
        *place++ = kHexDigits[bytes[index] & 15];
    }
    return destination;
}

unsigned char*
HandWritten::StringToHexString(const char* characters, int length, unsigned char* destination, int capacity)
{
    char* const digits = reinterpret_cast<char*>(destination);
    std::memset(digits, '0', static_cast<std::size_t>(capacity));
    digits[capacity - 1] = '\0';
    char* place = digits + capacity - 2 * length;
    for (int index = 0; index < length; ++index)
    {
        const int character = characters[index] & 0x7F;
        *place++ = kHexDigits[character >> 4];
        *place++ = kHexDigits[character & 15];
    }
    return destination;
}

void HandWritten::FormMAC(const unsigned char* address, char* destination)
{
    std::snprintf(destination, 18, "%02X:%02X:%02X:%02X:%02X:%02X", address[0], address[1], address[2], address[3],
                  address[4], address[5]);
}

void HandWritten::GetBSSID(const unsigned char* address, char* destination, int capacity)
{
    std::snprintf(destination, static_cast<std::size_t>(capacity), "%02X:%02X:%02X:%02X:%02X:%02X", address[0],
                  address[1], address[2], address[3], address[4], address[5]);
}

unsigned long HandWritten::GetChannel(unsigned long frequency)
{
    while (frequency > 10000)
        frequency /= 10;
    if (frequency > 2484)
        return frequency < 5000 ? 200 - (5000 - frequency) / 5 : (frequency - 5000) / 5;
    if (frequency == 2484)
        return 13;
    return frequency >= 2412 && (frequency - 2412) % 5 == 0 ? (frequency - 2412) / 5 : 14;
}

int HandWritten::GetSignalStrength(int rssi)
{
    return rssi <= -100 ? 0 : rssi >= -50 ? 100 : 2 * (rssi + 100);
}

int HandWritten::IsThisSSID(const wchar_t* xml, wchar_t* ssid)
{
    const wchar_t* const start = std::wcsstr(xml, L"<SSID>");
    return start != nullptr && ElementIs(start, L"</name>", ssid) ? 1 : 0;
}

int HandWritten::IsAutoConnMode(const wchar_t* xml)
{
    return ElementIs(xml, L"</connectionMode>", L"auto") ? 1 : 0;
}

bool HandWritten::ReasonCode2String(unsigned long reasonCode, char* destination, int size)
{
    wchar_t reason[256] = {};
    if (platform::wlan().WlanReasonCodeToString(reasonCode, 256, reason, nullptr) != 0)
        return false;
    return text().WideCharToMultiByte(CP_ACP, 0, reason, -1, destination, size, nullptr, nullptr) != 0;
}

} // namespace calvix::benchmarks
