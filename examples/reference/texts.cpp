// The reference's examples: texts and addresses.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace reference::text_examples
{

void Narrow(CWirelessManage& manager, const WLAN_INTERFACE_INFO& adapter)
{
    //! [UnicodeToAnsi]
    char description[1024];
    if (manager.UnicodeToAnsi(adapter.strInterfaceDescription, description))
        std::printf("%s\n", description);
    //! [UnicodeToAnsi]
}

void NarrowInto(CWirelessManage& manager, const WLAN_PROFILE_INFO& profile)
{
    //! [WideCharToChar]
    char name[1024]; // a profile's name has at most 255 characters
    if (manager.WideCharToChar(profile.strProfileName, name, sizeof(name)) != 0)
        std::printf("%s\n", name);
    //! [WideCharToChar]
}

void NarrowSsid(CWirelessManage& manager, const WLAN_BSS_ENTRY& entry)
{
    //! [GetSSID, narrow]
    char ssid[64];
    if (manager.GetSSID(&entry.dot11Ssid, ssid, sizeof(ssid)) == 1)
        std::printf("%s\n", ssid);
    //! [GetSSID, narrow]
}

void WideSsid(CWirelessManage& manager, const WLAN_BSS_ENTRY& entry)
{
    //! [GetSSID, wide]
    wchar_t ssid[DOT11_SSID_MAX_LENGTH + 1];
    if (manager.GetSSID(&entry.dot11Ssid, ssid, DOT11_SSID_MAX_LENGTH + 1) == 1)
        std::printf("%ls\n", ssid);
    //! [GetSSID, wide]
}

void FromHex(CWirelessManage& manager)
{
    //! [StringToHex]
    unsigned char bytes[4];
    manager.StringToHex("0A1B", 4, bytes, 4, false); // 00 00 0A 1B
    manager.StringToHex("0A1B", 4, bytes, 4, true);  // 1B 0A 00 00
    //! [StringToHex]
}

void ToHex(CWirelessManage& manager)
{
    //! [HexToString]
    const unsigned char bytes[] = {0x12, 0xAB};
    char text[7] = {}; // one more than the capacity, for the terminator
    std::printf("%s\n", manager.HexToString(bytes, 2, text, 6, false)); // 0012AB
    //! [HexToString]
}

void TextToHex(CWirelessManage& manager)
{
    //! [StringToHexString]
    unsigned char text[9] = {};                    // one more than the capacity, for the terminator
    manager.StringToHexString("Wlan", 4, text, 8); // 576C616E
    //! [StringToHexString]
}

void Address(CWirelessManage& manager, const WLAN_BSS_ENTRY& entry)
{
    //! [FormMAC]
    char address[18];
    manager.FormMAC(entry.dot11Bssid, address);
    std::printf("%s\n", address); // 00:1A:2B:3C:4D:5E
    //! [FormMAC]
}

void Bssid(CWirelessManage& manager, const WLAN_BSS_ENTRY& entry)
{
    //! [GetBSSID]
    char maker[9];
    manager.GetBSSID(entry.dot11Bssid, maker, sizeof(maker)); // cut behind the maker's half: 00:1A:2B
    //! [GetBSSID]
}

} // namespace reference::text_examples
