#include <calvix/wireless_manage.h>

#include "platform/platform.h"

using namespace calvix::platform;

bool CWirelessManage::ReasonCode2String(unsigned long reasonCode, char* text, int textSize)
{
    constexpr DWORD capacity = 256;
    wchar_t reason[capacity] = {};
    // Deliberate: only an invalid parameter is a failure; after any other the empty text is converted as it stands.
    if (wlan().WlanReasonCodeToString(reasonCode, capacity, reason, nullptr) == ERROR_INVALID_PARAMETER)
        return false;
    return calvix::platform::text().WideCharToMultiByte(CP_ACP, 0, reason, -1, text, textSize, nullptr, nullptr) != 0;
}
