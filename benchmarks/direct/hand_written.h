#pragma once

#include "platform/platform.h"

#include <calvix/wireless_manage.h>

#include <string>
#include <vector>

namespace calvix::benchmarks
{

/// What a competent programmer writes who does without the library: the same questions answered by the WLAN API and its
/// neighbours, called directly. No traces but where they are the result. A result means the same as the library's, for
/// success and for an ordinary "no"; failures only fail. Lists are walked as they come: nested loops.
class HandWritten
{
public:
    HandWritten() = default;

    // frame.cpp
    HandWritten& operator=(const HandWritten& other);
    static HandWritten* Get();
    static void Delete();
    void __autoclassinit2(unsigned long long byteCount);
    int RegisterNotification(WLAN_NOTIFICATION_CALLBACK callback, void* context);
    int UnRegisterNotification(WLAN_NOTIFICATION_CALLBACK callback, void* context);

    // adapters.cpp
    void CheckAutoConfig();
    int GetWlanStatus(const GUID* adapter);
    bool GetWlanIsLink(const GUID* adapter);
    char* GetWlanInterfaceState(unsigned long state);
    long GetWlanInterfaceGuid(const wchar_t* description, GUID& guid);
    char* GUID2String(const GUID& guid);
    char* GetWlanInterfaceDesc(const GUID* adapter);
    int GetWiFiAdapterCount();
    long GetWlanInterface(std::vector<WLAN_INTERFACE_INFO>* list);
    int WiFiIsConnected(const GUID* adapter);
    int WiFiIsDisconnected(const GUID* adapter);

    // conversions.cpp
    bool UnicodeToAnsi(const wchar_t* source, char* destination);
    int WideCharToChar(const wchar_t* source, char* destination, int capacity);
    int GetSSID(const DOT11_SSID* ssid, char* destination, int capacity);
    int GetSSID(const DOT11_SSID* ssid, wchar_t* destination, int capacity);
    unsigned char* StringToHex(const char* text, int length, unsigned char* destination, int size, bool reversed);
    char* HexToString(const unsigned char* bytes, int count, char* destination, int capacity, bool fromStart);
    unsigned char* StringToHexString(const char* text, int length, unsigned char* destination, int capacity);
    void FormMAC(const unsigned char* address, char* destination);
    void GetBSSID(const unsigned char* address, char* destination, int capacity);
    unsigned long GetChannel(unsigned long frequency);
    int GetSignalStrength(int rssi);
    int IsThisSSID(const wchar_t* xml, wchar_t* ssid);
    int IsAutoConnMode(const wchar_t* xml);
    bool ReasonCode2String(unsigned long reasonCode, char* text, int size);

    // radio.cpp
    int PhyRadioIsOn(const GUID* adapter);
    long PhyRadioIsOn2(const GUID* adapter);
    long PhyRadioIsOn2(const GUID* adapter, unsigned int& software, unsigned int& hardware);
    int PhyRadioTurnedOff(const GUID* adapter);
    long PhyRadioTurnedOff2(const GUID* adapter);
    int SupportedSafeMode(const GUID* adapter);
    int RadioTurnOn(const GUID* adapter);
    int TurnOnSoftwareRadio(const GUID* adapter);
    int TurnOnSoftwareRadio(const GUID* adapter, unsigned long& error);
    int RadioTurnOff(const GUID* adapter);
    int ResetWiFiRadio(const GUID* adapter);
    void RestartWiFiRadio(const GUID* adapter);
    int EnableAutoCfg(const GUID* adapter);
    int EnableBackgroundScan(const GUID* adapter);
    int GetPowerSetting(unsigned long& level);
    int SetPowerSetting(unsigned long level);
    char* GetPowerSettingStr(unsigned long level);
    unsigned long SetIhvSecuritySettings();
    unsigned long IhvControl(const GUID* adapter, void* buffer, unsigned long size, unsigned long& returned);

    // inventory.cpp
    int Rescan(const GUID* adapter, unsigned long& error);
    int Rescan();
    int GetAvailableNetworkCount(const GUID* adapter);
    int GetNetworkBssCount();
    int GetConnectableNetworkCount(const GUID* adapter);
    int GetAP(const GUID* adapter, DOT11_SSID* ssid);
    long GetNotConnectableReason(
        const GUID* adapter, DOT11_SSID* ssid, unsigned long bssType, int& connectable, unsigned long& reason);
    int IsWiFiDisappear(const GUID* adapter);
    long GetCurrentBSS();
    int GetRssi(const GUID* adapter, int& rssi);
    int GetCurrentRSSI(const GUID* adapter, int& rssi);
    int GetWiFiRSSI(const GUID* adapter, DOT11_SSID& ssid);
    int GetSignalQuality(const GUID* adapter);
    int GetSoftAPList(const GUID* adapter, std::vector<std::string>* list);
    bool SpecialSoftAP();

    // listings.cpp
    int GetAvailableNetwork();
    int GetNetworkBss();

    // profiles.cpp
    int GetWlanProfile(const GUID* adapter, const char* name);
    int DeleteProfile(const GUID* adapter, const char* name);
    int DeleteProfile(const GUID* adapter, const wchar_t* name);
    int ResetProfilePosition(const GUID* adapter, const char* name);
    int SetProfilePosition(const GUID* adapter, const wchar_t* name);
    int GetProfileCount(const GUID* adapter);
    int GetProfile(const GUID* adapter, const wchar_t* name, wchar_t* xml, int capacity);
    int GetProfile(const GUID* adapter, const wchar_t* name, char* xml, int capacity);
    int GetProfile(const GUID* adapter, const wchar_t* name);
    int SetProfile(const GUID* adapter, const wchar_t* xml);
    int IsAutoConnMode2(const GUID* adapter, const wchar_t* name);

    // connection.cpp
    int GetCurrentConnection(const GUID* adapter, WLAN_CONNECTION_ATTRIBUTES* attributes);
    int GetCurrentConnection(WLAN_CONNECTION_ATTRIBUTES* attributes);
    int GetCurrentSSID(char* ssid, int capacity);
    int GetCurrentSSID(char* ssid, int capacity, WLAN_CONNECTION_ATTRIBUTES* attributes);
    int GetCurrentLinkInfo(const GUID* adapter, int* state, int* bssType, char* ssid, int capacity, char* bssid);
    long GetCurrentWiFi(const GUID* adapter, WLAN_CONNECTION_ATTRIBUTES* attributes);
    int GetWlanStatistics(const GUID* adapter, _WIFI_TXRX_COUNT* count);
    int LinkProfile(const GUID* adapter, char* name);
    int Disconnect(const GUID* adapter);
    int Reconnect(const GUID* adapter, WLAN_CONNECTION_ATTRIBUTES* attributes, unsigned long unused);
    int Reconnect(const GUID* adapter, WLAN_CONNECTION_NOTIFICATION_DATA* data, unsigned long unused);
    int RecoverConnection(const GUID* adapter, WLAN_CONNECTION_ATTRIBUTES* attributes);
    int ResetConnection(const GUID* adapter);
    int SetCurrentWiFiToLast();
    int SaveCurrentConnectionAttributes(const GUID* adapter);
    long RecoverConnetionAttributes(const GUID* adapter);
    void SaveConnNotificationData(WLAN_CONNECTION_NOTIFICATION_DATA* data);
    long RecoverConnNotificationData(const GUID* adapter);

    // matching.cpp
    int GetMatchAPList(const GUID* adapter, std::vector<WLAN_BSS_ENTRY>* list);
    int GetConnectableAPList(const GUID* adapter, wchar_t* name, std::vector<WLAN_BSS_ENTRY>* list);
    int GetConnectableAPList(wchar_t* name, std::vector<WLAN_BSS_ENTRY>* list);
    int GetMatchAPCount(const GUID* adapter, std::vector<std::wstring>* names, int mode);
    int GetMatchAPCount(const GUID* adapter, std::vector<std::wstring>* names, const wchar_t* name, int mode);
    int GetMatchBSSID(const GUID* adapter);

    // best_access_point.cpp
    int ConnectBestAP(const GUID* adapter, std::vector<WLAN_BSS_ENTRY>* excluded, const wchar_t* excludedName);
    int ConnectBestAP(const GUID* adapter, std::vector<WLAN_BSS_ENTRY>* excluded);
    int ConnectBestAP(const GUID* adapter, const wchar_t* excludedName);
    int ConnectBestAP(const GUID* adapter);
    int AutoConnectEx(const GUID* adapter);

    // automatic.cpp
    int AutoConnect(const GUID* adapter);
    int AutoSwitch(const GUID* adapter);
    int SmartSwitch(const GUID* adapter);
    int SmartConnecting(const GUID* adapter, char* profileName);
    int ConnectAutoMode(const GUID* adapter);
    int PreRoaming(const GUID* adapter);
    int Roaming(const GUID* adapter);

    // computer.cpp
    int GetPrivileges();
    bool EnablePriviledge(const char* name);
    int ForceComputerSleep();
    long SetPowerScheme();
    long ResetPowerScheme();
    long GetPowerScheme();
    int IsSurpportAoAc();
    unsigned long long GetLastWakeTime();
    unsigned long long GetLastSleepTime();
    long GetSystemPowerPolicy();
    int IsPowerHibernateAllowed();
    int IsWow64();
    void CloseProcess(unsigned long processId);
    void CreateProcRunCmd(char* commandLine);
    int CreateProcRunExe(char* fileName);
    char* GetAppPath();
    long OpenUrl();

    /// Back to the beginning of the process, without a platform call.
    static void Forget();

    /// The client handle, opened by the first method that needs it.
    static HANDLE client;

private:
    static bool Ready() { return client != nullptr || Open(); }
    static bool Open();
    static DWORD QueryConnection(const GUID* adapter, WLAN_CONNECTION_ATTRIBUTES*& connection);
    static DWORD Connect(const GUID* adapter, const wchar_t* profile, DOT11_BSS_TYPE type, DOT11_BSSID_LIST* desired);
    static int
    ConnectTo(const GUID* adapter, const DOT11_SSID& ssid, DOT11_BSS_TYPE type, BOOL secured, const wchar_t* profile);

    static HandWritten* instance;

    WLAN_CONNECTION_ATTRIBUTES m_connection{};
    WLAN_CONNECTION_NOTIFICATION_DATA m_notification{};
    int m_automatic = 1;
    char m_state[256] = {};
    char m_guid[128] = {};
    char m_description[256] = {};
    char m_powerSetting[128] = {};
    POWER_POLICY m_policy{};
    char m_folder[512] = {};
};

} // namespace calvix::benchmarks
