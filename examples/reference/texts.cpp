// The reference's examples: texts and addresses.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace reference
{

void UnicodeToAnsi(CWirelessManage& manager, const WLAN_INTERFACE_INFO& adapter)
{
    char description[1024];
    if (manager.UnicodeToAnsi(adapter.strInterfaceDescription, description))
        std::printf("%s\n", description);
}

void WideCharToChar(CWirelessManage& manager, const WLAN_PROFILE_INFO& profile)
{
    char name[1024]; // a profile's name has at most 255 characters
    if (manager.WideCharToChar(profile.strProfileName, name, sizeof(name)) != 0)
        std::printf("%s\n", name);
}

void GetSSIDNarrow(CWirelessManage& manager, const WLAN_BSS_ENTRY& entry)
{
    char ssid[64];
    if (manager.GetSSID(&entry.dot11Ssid, ssid, sizeof(ssid)) == 1)
        std::printf("%s\n", ssid);
}

void GetSSIDWide(CWirelessManage& manager, const WLAN_BSS_ENTRY& entry)
{
    wchar_t ssid[DOT11_SSID_MAX_LENGTH + 1];
    if (manager.GetSSID(&entry.dot11Ssid, ssid, DOT11_SSID_MAX_LENGTH + 1) == 1)
        std::printf("%ls\n", ssid);
}

void StringToHex(CWirelessManage& manager)
{
    unsigned char bytes[4];
    manager.StringToHex("0A1B", 4, bytes, 4, false); // 00 00 0A 1B
    manager.StringToHex("0A1B", 4, bytes, 4, true);  // 1B 0A 00 00
}

void HexToString(CWirelessManage& manager)
{
    const unsigned char bytes[] = {0x12, 0xAB};
    char text[7] = {}; // one more than the capacity, for the terminator
    std::printf("%s\n", manager.HexToString(bytes, 2, text, 6, false)); // 0012AB
}

void StringToHexString(CWirelessManage& manager)
{
    unsigned char text[9] = {};                    // one more than the capacity, for the terminator
    manager.StringToHexString("Wlan", 4, text, 8); // 576C616E
}

void FormMAC(CWirelessManage& manager, const WLAN_BSS_ENTRY& entry)
{
    char address[18];
    manager.FormMAC(entry.dot11Bssid, address);
    std::printf("%s\n", address); // 00:1A:2B:3C:4D:5E
}

void GetBSSID(CWirelessManage& manager, const WLAN_BSS_ENTRY& entry)
{
    char maker[9];
    manager.GetBSSID(entry.dot11Bssid, maker, sizeof(maker)); // cut behind the maker's half: 00:1A:2B
}

} // namespace reference
