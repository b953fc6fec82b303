#include <calvix/wireless_manage.h>

#include "core/narrow_text.h"
#include "core/out_of_memory.h"
#include "core/strict_copy.h"
#include "platform/platform.h"

#include <algorithm>
#include <climits>
#include <cwchar>
#include <string>

using namespace calvix;
using platform::text;

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
        {
            if (whole + 1 < capacity)
                narrow[whole] = bytes[index];
        }
    }
    if (capacity != 0)
        narrow[(std::min)(whole, capacity - 1)] = '\0';
    return whole;
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
