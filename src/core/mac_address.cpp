#include "core/mac_address.h"

#include <calvix/wireless_manage.h>

#include "core/bounded_copy.h"
#include "core/strict_copy.h"
#include "core/trace.h"

using namespace calvix;

void calvix::FormatAddress(const unsigned char* address, char* text, std::size_t capacity)
{
    FormatTrace(text, capacity, "%02X:%02X:%02X:%02X:%02X:%02X", address[0], address[1], address[2], address[3],
                address[4], address[5]);
}

void CWirelessManage::FormMAC(const unsigned char* address, char* destination)
{
    if (address != nullptr && destination != nullptr)
        FormatAddress(address, destination, kAddressTextSize);
}

void CWirelessManage::GetBSSID(const unsigned char* address, char* destination, int capacity)
{
    DOT11_MAC_ADDRESS copy = {};
    StrictCopy(copy, sizeof(copy), address, sizeof(copy), "GetBSSID");
    char text[24] = {};
    FormatAddress(copy, text, sizeof(text));
    CopyTruncatingToCaller(destination, capacity, text);
}
