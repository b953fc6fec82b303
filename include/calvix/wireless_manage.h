#pragma once

#include "calvix/export.h"
#include "calvix/platform_records.h"

#include <string>
#include <vector>

/// Frame counters of an interface, as GetWlanStatistics fills them.
struct _WIFI_TXRX_COUNT
{
    unsigned long long ullTransmitted; ///< unicast frames transmitted
    unsigned long long ullSpare1;      ///< never written: keeps what the caller put in
    unsigned long long ullSpare2;      ///< never written: keeps what the caller put in
    unsigned long long ullReceived;    ///< unicast frames received
};

namespace calvix
{
struct ManagerInternals; // the library's own tests
} // namespace calvix

/// Wi-Fi management: one object in front of the WLAN service.
///
/// Obtain it with Get, call its methods, end with Delete.
///
/// - Interfaces are named by their GUID and looked up afresh in each call; a method without a GUID works on the first
///   interface that the service lists.
/// - The client handle of the service is shared by all methods and opened by the first that needs it.
/// - Results are per method: the same failure has different numbers in different methods.
/// - Null pointers: a null interface GUID, description or profile name names none. Where a list of codes does not name
///   null pointers, a null record or container gives -13 when it is an output and -14 when it is an input.
/// - Lists and records of the service are released before a method returns; what a method hands out lies in the
///   caller's own buffers and vectors, or is text inside the object, valid until the same method is called again.
/// - Narrow text is in the active code page.
/// - Threading: no locks. Callers serialise their calls; every call runs on the caller's thread.
class CALVIX_API CWirelessManage
{
public:
    // --- Frame --------------------------------------------------------------------------------------------------

    /// The one instance, created by the first call; opens the client handle when it is not open (WlanOpenHandle),
    /// and returns the instance even when that fails. Null only when there is no memory for it.
    static CWirelessManage* Get();

    /// Closes the client handle (WlanCloseHandle) and destroys the instance. The closed handle's value is kept, so
    /// later calls through a new instance report the service's error for a closed handle.
    static void Delete();

    /// Copies all state of `other` into this object.
    CWirelessManage& operator=(const CWirelessManage& other);

    /// Zeroes the first `byteCount` bytes of the object, at most all of it.
    void __autoclassinit2(unsigned long long byteCount);

    // --- Adapters -----------------------------------------------------------------------------------------------

    /// Makes sure that the WLAN service ("WlanSvc") runs, starting it when it does not. Reports nothing.
    void CheckAutoConfig();

    /// State of an interface (WlanEnumInterfaces): a WLAN_INTERFACE_STATE; -1 no such interface, -2 client handle not
    /// opened, -3 enumeration failed, -4 no adapter.
    int GetWlanStatus(const GUID* pInterfaceGuid);

    /// Whether GetWlanStatus gives 1 (connected).
    bool GetWlanIsLink(const GUID* pInterfaceGuid);

    /// English text of a WLAN_INTERFACE_STATE; "unknown(N)" for other values. The text belongs to the object.
    char* GetWlanInterfaceState(unsigned long state);

    /// Finds the interface whose description equals `description` exactly (WlanEnumInterfaces) and writes its GUID to
    /// `guid` [out]. 0; -1 client handle not opened, -2 enumeration failed, -3 no adapter, -4 not found.
    long GetWlanInterfaceGuid(const wchar_t* description, GUID& guid);

    /// "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}", upper case. The text belongs to the object.
    char* GUID2String(const GUID& guid);

    /// Description of an interface (WlanEnumInterfaces), empty when it was not found. The first description found is
    /// remembered and returned for every later call, whatever its GUID. The text belongs to the object.
    char* GetWlanInterfaceDesc(const GUID* pInterfaceGuid);

    /// Number of interfaces (WlanEnumInterfaces), 0 included; -2 client handle not opened, -3 enumeration failed.
    int GetWiFiAdapterCount();

    /// Replaces the content of `pList` [out] by all interfaces (WlanEnumInterfaces). 0; -1 client handle not opened,
    /// -2 enumeration failed, -3 no adapter; on failure the vector stays as it was.
    long GetWlanInterface(std::vector<WLAN_INTERFACE_INFO>* pList);

    // --- Text, SSID and address conversions ---------------------------------------------------------------------

    /// Wide to narrow text. `destination` [out] is taken to hold 1024 bytes. A character that the code page lacks
    /// ends the text. Whether the conversion succeeded.
    bool UnicodeToAnsi(const wchar_t* source, char* destination);

    /// Wide to narrow text into `capacity` bytes at `destination` [out]. Bytes produced, terminator included; 0 when
    /// the text cannot be converted. A text that does not fit is a fatal caller error.
    int WideCharToChar(const wchar_t* source, char* destination, int capacity);

    /// SSID (UTF-8) as narrow text, cut to `capacity` - 1 bytes and terminated. 1, or 0 when it cannot be converted.
    /// An SSID length above 64 is a fatal caller error.
    int GetSSID(const DOT11_SSID* pSsid, char* destination, int capacity);

    /// The same into wide text; `capacity` in characters.
    int GetSSID(const DOT11_SSID* pSsid, wchar_t* destination, int capacity);

    /// Hexadecimal text to bytes, taken in pairs from the end of the text; the rest of `destination` [out] is zero.
    /// `reversed` false: right-aligned in the text's order; true: last pair first. Returns `destination`. Characters
    /// that are no digits give bytes all the same.
    unsigned char*
    StringToHex(const char* text, int textLength, unsigned char* destination, int destinationLength, bool reversed);

    /// Bytes to upper-case hexadecimal text, padded with '0' to `capacity`. `fromStart` true: left-aligned, and all
    /// 2 x `count` digits are written whatever the capacity. False: right-aligned over the whole capacity, which must
    /// be even, and not terminated. Returns `destination`.
    char* HexToString(const unsigned char* bytes, int count, char* destination, int capacity, bool fromStart);

    /// Text to the hexadecimal text of its characters (top bits cleared), right-aligned over the whole, even
    /// `capacity` of `destination` [out] and not terminated. Returns `destination`.
    unsigned char* StringToHexString(const char* text, int textLength, unsigned char* destination, int capacity);

    /// Six address bytes as "00:1A:2B:3C:4D:5E" into 18 bytes at `destination` [out].
    void FormMAC(const unsigned char* address, char* destination);

    /// The same into `capacity` bytes, cut and terminated. A null address is a fatal caller error.
    void GetBSSID(const unsigned char* address, char* destination, int capacity);

    // --- Notifications ------------------------------------------------------------------------------------------

    /// Has `callback` called with the notifications of the automatic-configuration module (WlanRegisterNotification),
    /// in place of what was registered before: one registration for the process. It is called on a thread of the
    /// service. 0, or the platform's error number.
    int RegisterNotification(WLAN_NOTIFICATION_CALLBACK callback, void* context);

    /// Ends the registration, whichever callback is named; waits for a callback that is running. 0, or the platform's
    /// error number.
    int UnRegisterNotification(WLAN_NOTIFICATION_CALLBACK callback, void* context);

    // --- Radio --------------------------------------------------------------------------------------------------
    // A radio is off when its software or its hardware switch is off. Only the adapter's first PHY is looked at.

    /// 1 when the radio is on (WlanQueryInterface); 0 when off and on every failure.
    int PhyRadioIsOn(const GUID* pInterfaceGuid);

    /// 1 on, 0 off; -1 client handle not opened, -4 query refused, -5 no PHY.
    long PhyRadioIsOn2(const GUID* pInterfaceGuid);

    /// The same, with the DOT11_RADIO_STATE of both switches to the outputs, which a failure leaves alone.
    long PhyRadioIsOn2(const GUID* pInterfaceGuid, unsigned int& softwareState, unsigned int& hardwareState);

    /// 1 when the radio is off; 0 when on and on every failure.
    int PhyRadioTurnedOff(const GUID* pInterfaceGuid);

    /// 1 off, 0 on; -1 client handle not opened, -4 query refused, -5 no PHY.
    long PhyRadioTurnedOff2(const GUID* pInterfaceGuid);

    /// Whether the adapter supports safe mode, as the platform's boolean; -2 client handle not opened, -5 query refused.
    int SupportedSafeMode(const GUID* pInterfaceGuid);

    /// Switches the software radio on (WlanSetInterface). 0; -1 client handle not opened, -4 refused.
    int RadioTurnOn(const GUID* pInterfaceGuid);

    /// RadioTurnOn under its other name.
    int TurnOnSoftwareRadio(const GUID* pInterfaceGuid);

    /// The same; on failure the platform's error number goes to `dwError` [out], which success leaves alone.
    int TurnOnSoftwareRadio(const GUID* pInterfaceGuid, unsigned long& dwError);

    /// Switches the software radio off (WlanSetInterface). 0; -1 client handle not opened, -4 refused.
    int RadioTurnOff(const GUID* pInterfaceGuid);

    /// Switches the software radio off and, half a second later, on. 0 whatever became of it; -1 client handle not
    /// opened.
    int ResetWiFiRadio(const GUID* pInterfaceGuid);

    /// Switches the radio off, then on, waiting up to ten seconds each for the adapter to report it.
    void RestartWiFiRadio(const GUID* pInterfaceGuid);

    // --- Interface settings -------------------------------------------------------------------------------------

    /// Switches automatic connection on (WlanSetInterface). 0, or the platform's error number.
    int EnableAutoCfg(const GUID* pInterfaceGuid);

    /// Switches background scanning on (WlanSetInterface). 0, or the platform's error number.
    int EnableBackgroundScan(const GUID* pInterfaceGuid);

    /// The service's power-saving level (WlanQueryAutoConfigParameter), a WLAN_POWER_SETTING, into `level` [out]. 0,
    /// also when the query is refused, which leaves `level` alone; or the error number of the client handle.
    int GetPowerSetting(unsigned long& level);

    /// Does nothing, on purpose. 0.
    int SetPowerSetting(unsigned long level);

    /// Platform name of a power-saving level. The text belongs to the object.
    char* GetPowerSettingStr(unsigned long level);

    /// Lets ordinary users talk to the adapter's driver (WlanSetSecuritySettings; takes administrative rights). 0, the
    /// platform's error number, or 0xFFFFFFFF when the service has another version.
    unsigned long SetIhvSecuritySettings();

    /// Sends `size` bytes at `buffer` [in, out] to the adapter's driver, whose answer replaces them, and its length to
    /// `bytesReturned` [out] (WlanIhvControl). 0, or the platform's error number.
    unsigned long
    IhvControl(const GUID* pInterfaceGuid, void* buffer, unsigned long size, unsigned long& bytesReturned);

    // --- Scans, lists and counts --------------------------------------------------------------------------------

    /// Asks for a scan (WlanScan) and returns at once. 0; -1 client handle not opened, -4 scan refused; both store
    /// the service's error in `dwError` [out], which success leaves alone.
    int Rescan(const GUID* pInterfaceGuid, unsigned long& dwError);

    /// The same on the first interface. 0; -1 client handle not opened, -2 enumeration failed, -3 no interface,
    /// -4 scan refused.
    int Rescan();

    /// Entries of the available-network list (WlanGetAvailableNetworkList, flags 0): one per network and matching
    /// profile. -2 client handle not opened, -5 list failed.
    int GetAvailableNetworkCount(const GUID* pInterfaceGuid);

    /// BSS entries of all networks on the first interface (WlanGetNetworkBssList). -2 client handle not opened,
    /// -3 enumeration failed, -4 no interface, -5 list failed.
    int GetNetworkBssCount();

    /// Pairs of a stored profile and a visible network that carries its name. -2 client handle not opened, -5 profile
    /// list failed, -6 no profile, -7 available-network list failed, -8 no network.
    int GetConnectableNetworkCount(const GUID* pInterfaceGuid);

    /// 0 when a visible network has this SSID; -1 client handle not opened, -3 list failed, -4 not found. An empty or
    /// null SSID is never found.
    int GetAP(const GUID* pInterfaceGuid, DOT11_SSID* pSsid);

    /// Why a network cannot be joined: writes its connectable flag and its WLAN_REASON_CODE to the outputs. 0;
    /// -1 client handle not opened, -4 list failed, -5 list empty, -6 no entry with this SSID and BSS type (outputs
    /// untouched).
    long GetNotConnectableReason(const GUID* pInterfaceGuid,
                                 DOT11_SSID* pSsid,
                                 unsigned long dwBssType,
                                 int& bConnectable,
                                 unsigned long& dwReason);

    /// 1 when the connected network has no BSS left in view; 0 otherwise and on every failure.
    int IsWiFiDisappear(const GUID* pInterfaceGuid);

    /// 0 when the network that the first interface is connected to has a BSS in view; -1 client handle not opened,
    /// -2 enumeration failed, -3 no interface, -4 no current connection, -5 BSS list failed, -6 none in view.
    long GetCurrentBSS();

    // --- Signal metrics -----------------------------------------------------------------------------------------

    /// Channel number of a centre frequency in MHz or a finer power of ten of it (kHz, Hz). In the 2.4 GHz band the
    /// number is one below the customary one: 2412 gives 0, 2484 gives 13, and what is no channel there gives 14.
    unsigned long GetChannel(unsigned long frequency);

    /// dBm to 0..100, linear from -100 to -50.
    int GetSignalStrength(int rssi);

    /// Received signal strength of the link in dBm (WlanQueryInterface) into `rssi` [out]. 0; -1 client handle not
    /// opened, -4 query refused (`rssi` untouched).
    int GetRssi(const GUID* pInterfaceGuid, int& rssi);

    /// The same from the BSS list entry of the connected access point. 0; -1 client handle not opened, -4 no current
    /// connection, -5 BSS list failed, -6 list empty, -7 access point not listed (`rssi` untouched).
    int GetCurrentRSSI(const GUID* pInterfaceGuid, int& rssi);

    /// Estimated dBm (-100..-50) of the first visible network whose SSID begins with `ssid` [in]; -100 when there is
    /// none or the list failed, -1 client handle not opened.
    int GetWiFiRSSI(const GUID* pInterfaceGuid, DOT11_SSID& ssid);

    /// Signal quality of the current connection, 0..100; -1 client handle not opened, -4 no current connection.
    int GetSignalQuality(const GUID* pInterfaceGuid);

    // --- Software access points, listings, reasons --------------------------------------------------------------

    /// Visible networks whose SSID holds the software access point marker "LC#", into `pList` [out]. 0; -1 client handle
    /// not opened; otherwise the platform's error number.
    int GetSoftAPList(const GUID* pInterfaceGuid, std::vector<std::string>* pList);

    /// Whether the first interface is connected by a profile whose name holds the marker; false on every failure.
    bool SpecialSoftAP();

    /// Traces a listing of what every interface sees. 0; 1 when some interface refused; the platform's error number when
    /// the client handle is not opened.
    int GetAvailableNetwork();

    /// The same for the access points.
    int GetNetworkBss();

    /// Text of a WLAN_REASON_CODE (WlanReasonCodeToString) into `textSize` bytes at `text` [out]. Whether it fits; with
    /// a size of 0 nothing is written and the answer is true.
    bool ReasonCode2String(unsigned long reasonCode, char* text, int textSize);

    // --- Profile store ------------------------------------------------------------------------------------------

    /// 0 when a profile of this name (at most 127 bytes; a longer or null one is a fatal caller error) is stored, -1
    /// when not; otherwise the platform's error number of the client handle, the name's conversion or the list.
    int GetWlanProfile(const GUID* pInterfaceGuid, const char* name);

    /// Deletes a profile (WlanDeleteProfile); the name is cut to 127 characters. 0; -1 client handle not opened,
    /// -4 not deleted.
    int DeleteProfile(const GUID* pInterfaceGuid, const char* name);

    /// The same with a wide name, passed on as it is.
    int DeleteProfile(const GUID* pInterfaceGuid, const wchar_t* name);

    /// Moves a profile to the second place of the preference order (WlanSetProfilePosition); nothing to do with fewer
    /// than two profiles. 0; -1 client handle not opened; otherwise the platform's error number.
    int ResetProfilePosition(const GUID* pInterfaceGuid, const char* name);

    /// Moves a profile to the last place. Results as ResetProfilePosition.
    int SetProfilePosition(const GUID* pInterfaceGuid, const wchar_t* name);

    /// Number of stored profiles (WlanGetProfileList); -1 client handle not opened, -4 list failed.
    int GetProfileCount(const GUID* pInterfaceGuid);

    /// A profile's XML (WlanGetProfile, keys in plain text where the caller may see them) into `capacity` wide
    /// characters at `xml` [out], cut and terminated. 0; -1 client handle not opened, -4 not readable.
    int GetProfile(const GUID* pInterfaceGuid, const wchar_t* name, wchar_t* xml, int capacity);

    /// The same as narrow text (C locale) into `capacity` bytes. A text that does not fit is a fatal caller error.
    int GetProfile(const GUID* pInterfaceGuid, const wchar_t* name, char* xml, int capacity);

    /// Whether a profile can be read: 0; -1 client handle not opened, -4 not readable.
    int GetProfile(const GUID* pInterfaceGuid, const wchar_t* name);

    /// Stores a profile (WlanSetProfile), replacing the one of the same name. 0; -1 client handle not opened, -4 not
    /// stored.
    int SetProfile(const GUID* pInterfaceGuid, const wchar_t* xml);

    // --- Profile XML --------------------------------------------------------------------------------------------

    /// 1 when the SSID name in a profile's XML equals `ssid`, else 0. Plain text search: entities are not decoded.
    int IsThisSSID(const wchar_t* xml, wchar_t* ssid);

    /// 1 when the connection mode in a profile's XML is "auto", else 0.
    int IsAutoConnMode(const wchar_t* xml);

    /// The same for a stored profile (WlanGetProfile). 1 "auto", 0 any other mode; -1 client handle not opened, -4 not
    /// readable, -5 no connection mode in the XML, -6 malformed before it.
    int IsAutoConnMode2(const GUID* pInterfaceGuid, const wchar_t* name);

    // --- Current connection -------------------------------------------------------------------------------------

    /// Attributes of the current connection (WlanQueryInterface) into `pAttributes` [out]. 0; -1 client handle not
    /// opened, -4 not connected. A null record is a fatal caller error.
    int GetCurrentConnection(const GUID* pInterfaceGuid, WLAN_CONNECTION_ATTRIBUTES* pAttributes);

    /// The same on the first interface; also -2 enumeration failed, -3 no interface.
    int GetCurrentConnection(WLAN_CONNECTION_ATTRIBUTES* pAttributes);

    /// SSID of the current connection of the first interface, as GetSSID writes it. 0; -1 client handle not opened,
    /// -2 enumeration failed, -3 no interface, -4 not connected.
    int GetCurrentSSID(char* ssid, int capacity);

    /// The same, and the whole record into `pAttributes` [out]; a null one is a fatal caller error.
    int GetCurrentSSID(char* ssid, int capacity, WLAN_CONNECTION_ATTRIBUTES* pAttributes);

    /// State (WLAN_INTERFACE_STATE), SSID, BSSID (6 bytes) and BSS type (DOT11_BSS_TYPE) of the current connection;
    /// `state` and `bssType` may be null, a null `bssid` is a fatal caller error. 0, or the platform's error number.
    int
    GetCurrentLinkInfo(const GUID* pInterfaceGuid, int* state, int* bssType, char* ssid, int ssidCapacity, char* bssid);

    /// Number of access points in view that belong to the network of `pAttributes` [in] (WlanGetNetworkBssList);
    /// -1 client handle not opened, -4 list failed.
    long GetCurrentWiFi(const GUID* pInterfaceGuid, WLAN_CONNECTION_ATTRIBUTES* pAttributes);

    /// 1 when the interface is connected; 0 otherwise and on every failure.
    int WiFiIsConnected(const GUID* pInterfaceGuid);

    /// 1 when the interface is disconnected; 0 otherwise (also while it connects) and on every failure.
    int WiFiIsDisconnected(const GUID* pInterfaceGuid);

    /// Unicast frame counters (WlanQueryInterface) into `pCount` [out], whose spare fields stay as they were. 0;
    /// -1 client handle not opened, -4 query refused.
    int GetWlanStatistics(const GUID* pInterfaceGuid, _WIFI_TXRX_COUNT* pCount);

    // --- Connecting ---------------------------------------------------------------------------------------------
    // A request (WlanConnect) is accepted or refused at once; whether the connection is made shows later.

    /// Connects by a stored profile whose network is in view. 0; -1 client handle not opened, -2 no network in view
    /// carries the profile; otherwise the platform's error number.
    int LinkProfile(const GUID* pInterfaceGuid, char* name);

    /// Disconnects (WlanDisconnect). 0, or the platform's error number.
    int Disconnect(const GUID* pInterfaceGuid);

    /// Connects to the network of a remembered connection, to the access point that the link qualities of the BSS list
    /// pick. `unused` has no effect. 0; -1 client handle not opened, -4 BSS list failed, -6 refused or none in view.
    int Reconnect(const GUID* pInterfaceGuid, WLAN_CONNECTION_ATTRIBUTES* pAttributes, unsigned long unused);

    /// The same from notification data.
    int Reconnect(const GUID* pInterfaceGuid, WLAN_CONNECTION_NOTIFICATION_DATA* pData, unsigned long unused);

    /// Connects by the profile of a remembered connection. 0; -1 client handle not opened, -4 refused.
    int RecoverConnection(const GUID* pInterfaceGuid, WLAN_CONNECTION_ATTRIBUTES* pAttributes);

    /// Asks again for the connection that is up. 0; -1 client handle not opened, -4 not connected, -5 refused.
    int ResetConnection(const GUID* pInterfaceGuid);

    /// Moves the profile of the first interface's connection to the last place. 0, also with no interface or fewer than
    /// two profiles; -1 client handle not opened; otherwise the platform's error number.
    int SetCurrentWiFiToLast();

    // --- Saved connection ---------------------------------------------------------------------------------------

    /// Remembers the current connection and whether its profile connects automatically. 0; -1 client handle not opened,
    /// -4 not connected, -5 profile not readable (the connection is remembered all the same).
    int SaveCurrentConnectionAttributes(const GUID* pInterfaceGuid);

    /// Connects to the remembered connection's network. 0; -99 its profile does not connect automatically, -1 client
    /// handle not opened, -4 BSS list failed, -5 not in view, -6 refused.
    long RecoverConnetionAttributes(const GUID* pInterfaceGuid);

    /// Remembers notification data, without a profile XML behind it. A null record is a fatal caller error.
    void SaveConnNotificationData(WLAN_CONNECTION_NOTIFICATION_DATA* pData);

    /// Reconnect with the remembered notification data.
    long RecoverConnNotificationData(const GUID* pInterfaceGuid);

    // --- Access points of stored networks -----------------------------------------------------------------------

    /// Every BSS entry of every visible network that has a stored profile, in profile, network and list order, into
    /// `pList` [out]. Number of entries; -2 client handle not opened, -5 profile list failed, -6 no profile,
    /// -7 available-network list failed, -8 no network, -13 null list. Failing BSS queries contribute nothing.
    int GetMatchAPList(const GUID* pInterfaceGuid, std::vector<WLAN_BSS_ENTRY>* pList);

    /// The same for profiles that connect automatically and for the profile `name` [in]; also -14 null name.
    int GetConnectableAPList(const GUID* pInterfaceGuid, wchar_t* name, std::vector<WLAN_BSS_ENTRY>* pList);

    /// The same on the first interface; also -3 enumeration failed, -4 no interface.
    int GetConnectableAPList(wchar_t* name, std::vector<WLAN_BSS_ENTRY>* pList);

    /// The profile name of every visible network that has a stored profile and a BSS in view, into `pNames` [out].
    /// `mode` 1: only profiles that connect automatically. Codes as GetMatchAPList.
    int GetMatchAPCount(const GUID* pInterfaceGuid, std::vector<std::wstring>* pNames, int mode);

    /// The same; with `mode` 1 the profile `name` [in, may be null] counts whatever its connection mode.
    int GetMatchAPCount(const GUID* pInterfaceGuid, std::vector<std::wstring>* pNames, const wchar_t* name, int mode);

    /// Diagnostic: traces how the time stamps of the matching access points move over three seconds. -1, or the code
    /// of the last problem: -2, -5 to -8 as GetMatchAPList, -9 and -10 first BSS list failed or empty, -11 and -12 a
    /// later one.
    int GetMatchBSSID(const GUID* pInterfaceGuid);

    // --- Best access point --------------------------------------------------------------------------------------

    /// Ranks the visible networks with an automatically connecting profile by signal quality, with a bonus for 5 GHz,
    /// and asks for a connection (WlanConnect) from the lowest rank upward until one request is accepted. Networks
    /// whose SSID begins one in `pExcluded` [in] and the profile `excludedName` [in] are left out. 0 request accepted;
    /// -1 client handle not opened, -4 profile list failed, -5 no profile, -6 available-network list failed, -7 no
    /// network, -9 no candidate, -10 BSS list failed, -11 BSS list empty, -12 every request refused, -13 null list,
    /// -14 null name.
    int ConnectBestAP(const GUID* pInterfaceGuid, std::vector<WLAN_BSS_ENTRY>* pExcluded, const wchar_t* excludedName);

    /// The same without an excluded profile.
    int ConnectBestAP(const GUID* pInterfaceGuid, std::vector<WLAN_BSS_ENTRY>* pExcluded);

    /// The same without excluded networks.
    int ConnectBestAP(const GUID* pInterfaceGuid, const wchar_t* excludedName);

    /// The same without any exclusion.
    int ConnectBestAP(const GUID* pInterfaceGuid);

    // --- Automatic connection -----------------------------------------------------------------------------------
    // Networks match a profile by its name. Where every request is refused, the walks report success.

    /// Requests every matching network in profile order until one is accepted. 0; -1 client handle not opened,
    /// -4 profile list failed, -5 no profile, -6 available-network list failed, -7 no network, -9 nothing matches.
    int AutoConnect(const GUID* pInterfaceGuid);

    /// ConnectBestAP over all matching networks, whatever their connection mode. Codes as ConnectBestAP.
    int AutoConnectEx(const GUID* pInterfaceGuid);

    /// Moves the current profile to the last place, then connects as AutoConnect, by the order from before. 0;
    /// -1 client handle not opened, -3 not connected, -4 profile list failed, -5 not moved, -6 available-network list
    /// failed, -7 nothing matches.
    int AutoSwitch(const GUID* pInterfaceGuid);

    /// Requests the first matching network with a better signal quality than the current one. 0; -1 client handle not
    /// opened, -2 nothing better; otherwise the platform's error number.
    int SmartSwitch(const GUID* pInterfaceGuid);

    /// Requests the first profile's network in view, on the first interface whatever the GUID, and writes its name to
    /// `profileName` [out, 128 bytes, may be null]. 0, also without an interface; -1 client handle not opened, -2 nothing
    /// matches; otherwise the platform's error number.
    int SmartConnecting(const GUID* pInterfaceGuid, char* profileName);

    /// Requests every network of an automatically connecting profile, matched by profile name or by SSID, in profile
    /// order until one is accepted. Codes as AutoConnect.
    int ConnectAutoMode(const GUID* pInterfaceGuid);

    // --- Roaming ------------------------------------------------------------------------------------------------

    /// Whether the current network has a better access point: 0; -1 client handle not opened, -4 not connected,
    /// -5 quality is 80 or more, -6 BSS list failed, -7 none in view, -8 already there.
    int PreRoaming(const GUID* pInterfaceGuid);

    /// The same decision, then a request for that access point; also -9 refused.
    int Roaming(const GUID* pInterfaceGuid);

    // --- Privileges, power and sleep ----------------------------------------------------------------------------

    /// Enables the shutdown privilege for the calling process (OpenProcessToken, LookupPrivilegeValueA,
    /// AdjustTokenPrivileges). 1 when the platform took the request, also where the account does not hold the
    /// privilege and where there are no tokens; 0 on every other failure.
    int GetPrivileges();

    /// The same for a privilege named as the platform names it, "SeShutdownPrivilege". False only when there is such a
    /// privilege and it was not enabled; true also when `privilegeName` [in] is null or names none, or there is no
    /// token to open.
    bool EnablePriviledge(const char* privilegeName);

    /// Puts the computer to sleep (SetSuspendState, forced, wake events left on). Takes the shutdown privilege, see
    /// GetPrivileges. The platform's answer: 1, or 0 when refused.
    int ForceComputerSleep();

    /// Remembers the policy of the active legacy power scheme and switches its idle time-outs off, on mains and on
    /// battery (GetActivePwrScheme, ReadPwrScheme, WritePwrScheme, SetActivePwrScheme). 0; -1 the computer cannot be
    /// suspended, -2 no active scheme, -3 not readable, -4 not written, -5 not activated.
    long SetPowerScheme();

    /// Writes the remembered policy, all zero when none was, to whichever scheme is active now, and activates it. 0;
    /// -1 the computer cannot be suspended, -2 no active scheme, -3 not written, -4 not activated.
    long ResetPowerScheme();

    /// Copies the active power scheme, names the copy "Super energy-saving", in 8-bit characters where the platform
    /// takes wide ones, makes it sleep after a second on mains, and activates it (PowerDuplicateScheme,
    /// PowerWriteFriendlyName, PowerWriteACValueIndex, PowerSetActiveScheme). The copy stays in the store. 0; -1 no
    /// active scheme, -2 not copied, -3 not named, -4 a time-out not written, -5 not activated. Begins by listing the
    /// first scheme (PowerEnumerate) until that fails: where there is a scheme it does not return.
    long GetPowerScheme();

    /// 1 when the computer sleeps in the "always on, always connected" way, Modern Standby (CallNtPowerInformation);
    /// else 0, also when it cannot be asked.
    int IsSurpportAoAc();

    /// When the computer last woke, in 100 ns of interrupt time (CallNtPowerInformation); 0 when it cannot be asked.
    unsigned long long GetLastWakeTime();

    /// When it last went to sleep, likewise.
    unsigned long long GetLastSleepTime();

    /// Asks for the power policies on mains and on battery (CallNtPowerInformation) and drops them. The NTSTATUS of
    /// the second question, 0 for success.
    long GetSystemPowerPolicy();

    /// In spite of the name: whether the computer woke by itself, as the platform's boolean (IsSystemResumeAutomatic).
    int IsPowerHibernateAllowed();

    // --- Processes and the host program -------------------------------------------------------------------------

    /// Whether this is a 32-bit process on a 64-bit system, the platform's boolean (IsWow64Process); 0 when it cannot
    /// be asked.
    int IsWow64();

    /// Ends a process at once, with exit code 0 (OpenProcess, TerminateProcess). Reports nothing.
    void CloseProcess(unsigned long processId);

    /// Starts `commandLine` [in, the platform may write to it] (CreateProcessA) and waits, without limit, until the
    /// program has ended. Reports nothing; a null command line starts nothing.
    void CreateProcRunCmd(char* commandLine);

    /// The same for the program `fileName` [in] beside the host program; overwrites GetAppPath's text. 1, whatever the
    /// exit code; 0 when it was not started, as with a null name.
    int CreateProcRunExe(char* fileName);

    /// Folder of the host program, last backslash included (GetModuleFileNameA); empty when it cannot be told. The
    /// text, at most 511 bytes, belongs to the object.
    char* GetAppPath();

    /// 0 when a connection to https://www.example.com/ can be made (InternetCheckConnectionA), else -1. Opens nothing,
    /// but sets the whole process's connect time-out to three seconds (InternetSetOptionA).
    long OpenUrl();

private:
    friend struct calvix::ManagerInternals;

    struct TextRecord
    {
        char szLong[256];
        char szShort[128];
    };

    CWirelessManage();
    ~CWirelessManage();
    CWirelessManage(const CWirelessManage&) = delete;

    static HANDLE hClient;
    static CWirelessManage* m_pManage;

    WLAN_CONNECTION_ATTRIBUTES m_SavedConnAttr;
    WLAN_CONNECTION_NOTIFICATION_DATA m_SavedConnNotify;
    int m_nSavedAutoConnMode;
    TextRecord m_Text[2]; ///< interface state and GUID; interface description and power setting
    bool m_bSpare;
    void* m_pSpare;
    POWER_POLICY m_SavedPowerPolicy;
    char m_szAppPath[512];
};
