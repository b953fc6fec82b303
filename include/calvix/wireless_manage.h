#pragma once

#include "calvix/export.h"
#include "calvix/platform_records.h"

#include <string>
#include <vector>

/// Frame counters of an interface, as GetWlanStatistics fills them.
struct _WIFI_TXRX_COUNT
{
    unsigned long long ullTransmitted; ///< unicast frames transmitted
    unsigned long long ullSpare1;      ///< never written: keeps the caller's value
    unsigned long long ullSpare2;      ///< never written: keeps the caller's value
    unsigned long long ullReceived;    ///< unicast frames received
};

namespace calvix
{
struct ManagerInternals; // the library's own tests
} // namespace calvix

/// Manages Wi-Fi through the WLAN service. There is one object.
///
/// Get returns the object, Delete destroys it. For all methods:
///
/// - An adapter is identified by its GUID, which GetWlanInterface lists. Each call looks it up again. A method without
///   a GUID uses the first adapter that the service lists.
/// - All methods share the client handle of the service. The first method that needs it opens it (WlanOpenHandle).
/// - Each method has its own result codes: the same failure has different numbers in different methods. The command
///   `calvix explain METHOD CODE` explains a code and says what to do. A failure leaves the outputs unchanged, unless
///   the method says otherwise.
/// - Null pointers: a null interface GUID, description or profile name is not found. If a method does not list null
///   pointers, it returns -13 for a null output record or container and -14 for a null input, before it does anything
///   else.
/// - If the service returns no answer, or a shorter one than the method reads, the query has failed. "The platform's
///   error number" is then 13 or 24, which is the library's choice. A record that the method does not read is copied up
///   to its end.
/// - A fatal caller error ends the process: the library writes what happened and where to the debugger and to standard
///   error, then aborts. Each method lists its own.
/// - No method throws. If memory runs out, a method fails as if it could not read its list: it returns the same code
///   (8, the platform's number, if its result is a platform error number), false, 0 or null, and leaves its outputs as
///   in that case.
/// - A method releases the lists and records of the service before it returns. Its outputs are in the caller's buffers
///   and containers, or are text inside the object. Such text is valid until the next call of the same method or
///   Delete; the caller must not free it.
/// - No method waits, unless it says otherwise: success means that the service accepted the scan or connection request,
///   not that it is complete.
/// - The service refuses to return the current connection if there is none, or if location access is denied. If
///   location access is denied, it also refuses scans and lists of networks.
/// - The library formats failures as trace lines and writes them to the debugger (OutputDebugStringA) while tracing is
///   on. The library never switches tracing on.
/// - Narrow text is in the active code page. Text in the current C locale, and names in traces, have '?' for each
///   character that the locale lacks. Wide text is terminated. Capacities count the terminator. Comparisons of names
///   and SSIDs are exact and case-sensitive.
/// - Threading: the object has no locks. Call it from one thread at a time; every call runs on the caller's thread.
class CALVIX_API CWirelessManage
{
public:
    // --- Frame --------------------------------------------------------------------------------------------------

    /// Returns the one object; the first call creates it. Opens the client handle if it is not open (WlanOpenHandle). A
    /// failure is only traced, and the next method that needs the handle tries again.
    /// @return the object; null only when there is no memory for it
    static CWirelessManage* Get();

    /// Closes the client handle (WlanCloseHandle), which ends the registration for notifications, and destroys the
    /// object with the saved connection, the saved power policy and its texts. The value of the closed handle is kept:
    /// later calls through a new object use it and report the service's error for a closed handle (6).
    static void Delete();

    /// Copies the whole object. There is only one, so it can only be assigned to itself.
    /// @param[in] other the object to copy
    /// @return this object
    CWirelessManage& operator=(const CWirelessManage& other);

    /// Zeroes the object from its beginning: the saved connection, its connection mode and every text that it returned.
    /// @param[in] byteCount the number of bytes; a number above the object's size clears all of it
    void __autoclassinit2(unsigned long long byteCount);

    // --- Adapters -----------------------------------------------------------------------------------------------

    /// Starts the WLAN service ("WlanSvc") if it is not running (OpenSCManagerA, OpenServiceA, QueryServiceStatus,
    /// StartServiceA). Returns no result and checks no step. It needs the rights to control services, and does not wait
    /// until the service runs.
    void CheckAutoConfig();

    /// Returns the state of an adapter (WlanEnumInterfaces). If the service lists a GUID twice, the last entry counts.
    /// @return a WLAN_INTERFACE_STATE; -1 no such adapter, -2 client handle not opened, -3 enumeration failed, -4 no
    /// adapter
    int GetWlanStatus(const GUID* pInterfaceGuid);

    /// Checks whether an adapter is connected: whether GetWlanStatus returns 1.
    /// @return true when it is connected; false otherwise and on every failure
    bool GetWlanIsLink(const GUID* pInterfaceGuid);

    /// Returns the English words for an adapter's state, such as "disconnected", or "unknown(N)" for any other number
    /// N.
    /// @param[in] state a WLAN_INTERFACE_STATE
    /// @return text inside the object
    char* GetWlanInterfaceState(unsigned long state);

    /// Finds an adapter by its description (WlanEnumInterfaces). If several adapters have the same description, finds
    /// the first.
    /// @param[in] description the whole description, wide text; null is not found
    /// @param[out] guid the adapter's GUID
    /// @return 0; -1 client handle not opened, -2 enumeration failed, -3 no adapter, -4 no such description
    long GetWlanInterfaceGuid(const wchar_t* description, GUID& guid);

    /// Returns the text of a GUID, "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}" in upper case.
    /// @param[in] guid any GUID
    /// @return text inside the object
    char* GUID2String(const GUID& guid);

    /// Returns the description of an adapter (WlanEnumInterfaces), converted as by UnicodeToAnsi and cut to 255 bytes.
    /// The first description found is kept: every later call returns it, for any GUID.
    /// @return text inside the object; empty when the adapter was not found and on every failure
    char* GetWlanInterfaceDesc(const GUID* pInterfaceGuid);

    /// Counts the adapters (WlanEnumInterfaces). Having no adapter is not a failure here.
    /// @return the number, 0 included; -2 client handle not opened, -3 enumeration failed
    int GetWiFiAdapterCount();

    /// Lists the adapters (WlanEnumInterfaces).
    /// @param[out] pList one record for each adapter, in the service's order, replacing the previous content; unchanged
    /// after a failure, including -3
    /// @return 0; -1 client handle not opened, -2 enumeration failed, -3 no adapter, -13 null output
    long GetWlanInterface(std::vector<WLAN_INTERFACE_INFO>* pList);

    // --- Text, SSID and address conversions ---------------------------------------------------------------------
    // They need no client handle and write no trace.

    /// Converts wide to narrow text (WideCharToMultiByte). A character that the code page lacks ends the text. If the
    /// active code page is UTF-8, every conversion fails, because the platform accepts no replacement character for it.
    /// @param[in] source wide text; null cannot be converted
    /// @param[out] destination narrow text; must hold 1024 bytes
    /// @return whether the text was converted; false also when it needs more than 1024 bytes
    bool UnicodeToAnsi(const wchar_t* source, char* destination);

    /// Converts wide to narrow text, whole (WideCharToMultiByte). A text that does not fit, or a null destination, is a
    /// fatal caller error.
    /// @param[in] source wide text; null cannot be converted
    /// @param[out] destination narrow text; empty when the text cannot be converted
    /// @param[in] capacity bytes at destination
    /// @return bytes that the text needs, terminator included; 0 when it cannot be converted
    int WideCharToChar(const wchar_t* source, char* destination, int capacity);

    /// Converts an SSID to narrow text (MultiByteToWideChar, WideCharToMultiByte). The SSID ends at its first zero
    /// byte; characters that the code page lacks become its replacement character. A null SSID, or a length above 64,
    /// is a fatal caller error.
    /// @param[in] pSsid the SSID, taken as UTF-8
    /// @param[out] destination narrow text, cut where it does not fit and terminated; unchanged when the SSID cannot be
    /// converted
    /// @param[in] capacity bytes at destination; with 0 nothing is written, below 0 the empty text
    /// @return 1, also when the text was cut or not written; 0 when the SSID cannot be converted
    int GetSSID(const DOT11_SSID* pSsid, char* destination, int capacity);

    /// Converts an SSID to wide text (MultiByteToWideChar), by the rules of the narrow form.
    /// @param[in] pSsid the SSID, taken as UTF-8
    /// @param[out] destination wide text, cut where it does not fit and terminated; unchanged when the SSID cannot be
    /// converted
    /// @param[in] capacity characters at destination; with 0 nothing is written, below 0 the empty text
    /// @return as GetSSID into narrow text
    int GetSSID(const DOT11_SSID* pSsid, wchar_t* destination, int capacity);

    /// Converts hexadecimal text to bytes, in pairs of characters from the end of the text. If the number of characters
    /// is odd, the first is a byte of its own. Invalid characters are not rejected; their bytes are arbitrary. Bytes
    /// that do not fit are left out.
    /// @param[in] text digits in upper or lower case; null means no digits
    /// @param[in] textLength how many
    /// @param[out] destination the bytes; the rest is zero
    /// @param[in] destinationLength bytes at destination
    /// @param[in] reversed false: right-aligned, in the order of the text; true: from the first byte, last pair first
    /// @return destination
    unsigned char*
    StringToHex(const char* text, int textLength, unsigned char* destination, int destinationLength, bool reversed);

    /// Converts bytes to upper-case hexadecimal text, padded with '0' to the capacity.
    /// @param[in] bytes the bytes; null means no bytes
    /// @param[in] count how many
    /// @param[out] destination the text. Left-aligned: all 2 x count digits are written, whatever the capacity; the
    /// last place of the capacity holds a terminator, unless a digit lies there. Right-aligned: the digits end in the
    /// last place of the capacity, without a terminator (a count of 0 or less leaves one); the first bytes are left out
    /// when they do not fit
    /// @param[in] capacity characters at destination; right-aligned an even number, as the first place of an odd one
    /// has room for one digit of a byte only
    /// @param[in] fromStart true: left-aligned; false: right-aligned
    /// @return destination
    char* HexToString(const unsigned char* bytes, int count, char* destination, int capacity, bool fromStart);

    /// Converts text to the hexadecimal text of its characters, without their top bits.
    /// @param[in] text ASCII text; null has no characters
    /// @param[in] textLength characters of it
    /// @param[out] destination upper-case digits, right-aligned as by HexToString
    /// @param[in] capacity characters at destination, an even number
    /// @return destination
    unsigned char* StringToHexString(const char* text, int textLength, unsigned char* destination, int capacity);

    /// Writes an address as "00:1A:2B:3C:4D:5E". A null pointer writes nothing.
    /// @param[in] address six bytes
    /// @param[out] destination 17 characters and the terminator; the size is not checked
    void FormMAC(const unsigned char* address, char* destination);

    /// Writes an address as FormMAC does, within a capacity. A null address is a fatal caller error.
    /// @param[in] address six bytes
    /// @param[out] destination up to 17 characters, cut where they do not fit and terminated
    /// @param[in] capacity bytes at destination; with 0 nothing is written, below 0 the empty text
    void GetBSSID(const unsigned char* address, char* destination, int capacity);

    // --- Notifications ------------------------------------------------------------------------------------------

    /// Registers a callback for the notifications of the service's automatic configuration (WlanRegisterNotification).
    /// It replaces the previous one: the process has one registration, until UnRegisterNotification or Delete.
    /// @param[in] callback called on a thread of the service, also while a method runs; its record belongs to the
    /// service and is valid during the call only. It must not call UnRegisterNotification
    /// @param[in] context passed to the callback unchanged
    /// @return 0, or the platform's error number
    int RegisterNotification(WLAN_NOTIFICATION_CALLBACK callback, void* context);

    /// Ends the registration (WlanRegisterNotification) and waits for a callback that is running.
    /// @param[in] callback ignored: the registered callback is removed
    /// @param[in] context passed to the service
    /// @return 0, or the platform's error number
    int UnRegisterNotification(WLAN_NOTIFICATION_CALLBACK callback, void* context);

    // --- Radio --------------------------------------------------------------------------------------------------
    // These methods read only the adapter's first PHY, and set only its software switch. A radio is off if its software
    // or its hardware switch is off; an unknown switch does not count as off.

    /// Checks whether the radio is on (WlanQueryInterface).
    /// @return 1 when it is on; 0 when it is off and on every failure
    int PhyRadioIsOn(const GUID* pInterfaceGuid);

    /// Checks whether the radio is on (WlanQueryInterface), with codes for the failures.
    /// @return 1 when it is on, 0 when it is off; -1 client handle not opened, -4 radio query refused, -5 no PHY
    long PhyRadioIsOn2(const GUID* pInterfaceGuid);

    /// Checks whether the radio is on (WlanQueryInterface), and returns both switches.
    /// @param[out] softwareState a DOT11_RADIO_STATE
    /// @param[out] hardwareState a DOT11_RADIO_STATE
    /// @return as PhyRadioIsOn2 without outputs
    long PhyRadioIsOn2(const GUID* pInterfaceGuid, unsigned int& softwareState, unsigned int& hardwareState);

    /// Checks whether the radio is off (WlanQueryInterface).
    /// @return 1 when it is off; 0 when it is on and on every failure
    int PhyRadioTurnedOff(const GUID* pInterfaceGuid);

    /// Checks whether the radio is off (WlanQueryInterface), with codes for the failures.
    /// @return 1 when it is off, 0 when it is on; -1 client handle not opened, -4 radio query refused, -5 no PHY
    long PhyRadioTurnedOff2(const GUID* pInterfaceGuid);

    /// Checks whether the adapter supports safe mode (WlanQueryInterface).
    /// @return the platform's boolean; -2 client handle not opened, -5 safe-mode query refused
    int SupportedSafeMode(const GUID* pInterfaceGuid);

    /// Switches the software radio on (WlanSetInterface). If the hardware switch is off, the radio stays off.
    /// @return 0; -1 client handle not opened, -4 switch refused
    int RadioTurnOn(const GUID* pInterfaceGuid);

    /// Switches the software radio on: another name of RadioTurnOn.
    /// @return as RadioTurnOn
    int TurnOnSoftwareRadio(const GUID* pInterfaceGuid);

    /// Switches the software radio on and returns the platform's error.
    /// @param[out] dwError the platform's error number after a failure; unchanged after success
    /// @return as RadioTurnOn
    int TurnOnSoftwareRadio(const GUID* pInterfaceGuid, unsigned long& dwError);

    /// Switches the software radio off (WlanSetInterface).
    /// @return 0; -1 client handle not opened, -4 switch refused
    int RadioTurnOff(const GUID* pInterfaceGuid);

    /// Switches the software radio off, waits half a second, and switches it on (WlanSetInterface).
    /// @return 0, whether or not the switches were accepted; -1 client handle not opened
    int ResetWiFiRadio(const GUID* pInterfaceGuid);

    /// Switches the radio off and on as RadioTurnOff and RadioTurnOn do, and after each waits until the adapter reports
    /// the change: it queries the adapter up to ten times, once a second. Returns no result.
    void RestartWiFiRadio(const GUID* pInterfaceGuid);

    // --- Interface settings -------------------------------------------------------------------------------------

    /// Switches automatic configuration on (WlanSetInterface), so that the adapter connects by itself. There is no
    /// method to switch it off.
    /// @return 0, or the platform's error number
    int EnableAutoCfg(const GUID* pInterfaceGuid);

    /// Switches background scanning on (WlanSetInterface). There is no method to switch it off.
    /// @return 0, or the platform's error number
    int EnableBackgroundScan(const GUID* pInterfaceGuid);

    /// Returns the service's power-saving level (WlanQueryAutoConfigParameter).
    /// @param[out] level a WLAN_POWER_SETTING; unchanged when the query is refused
    /// @return 0, also when the query is refused; the platform's error number when the client handle was not opened
    int GetPowerSetting(unsigned long& level);

    /// Does nothing. This is deliberate.
    /// @param[in] level ignored
    /// @return always 0
    int SetPowerSetting(unsigned long level);

    /// Returns the platform's name of a power-saving level, "wlan_power_setting_invalid" for any other number.
    /// @param[in] level a WLAN_POWER_SETTING
    /// @return text inside the object
    char* GetPowerSettingStr(unsigned long level);

    /// Allows ordinary users to send requests to the adapters' drivers (WlanSetSecuritySettings). Needs administrative
    /// rights.
    /// @return 0; 0xFFFFFFFF other service version, looked at only when this call opens the client handle, which then
    /// stays open; otherwise the platform's error number
    unsigned long SetIhvSecuritySettings();

    /// Sends a request to the adapter's driver and receives its answer (WlanIhvControl).
    /// @param[in,out] buffer the request, in the driver's own layout; the answer overwrites it, within the same size
    /// @param[in] size bytes at buffer
    /// @param[out] bytesReturned bytes of the answer
    /// @return 0, or the platform's error number
    unsigned long
    IhvControl(const GUID* pInterfaceGuid, void* buffer, unsigned long size, unsigned long& bytesReturned);

    // --- Scans, lists and counts --------------------------------------------------------------------------------
    // The available-network list (WlanGetAvailableNetworkList, flags 0) has one entry for each visible network and
    // matching profile. The BSS list (WlanGetNetworkBssList) has one entry for each access point.

    /// Requests a scan (WlanScan). The results are available some seconds later, when the service sends the
    /// notification wlan_notification_acm_scan_complete.
    /// @param[out] dwError the platform's error number after a failure; unchanged after success
    /// @return 0; -1 client handle not opened, -4 scan refused
    int Rescan(const GUID* pInterfaceGuid, unsigned long& dwError);

    /// Requests a scan on the first adapter (WlanEnumInterfaces, WlanScan).
    /// @return 0; -1 client handle not opened, -2 enumeration failed, -3 no adapter, -4 scan refused
    int Rescan();

    /// Counts the entries of the available-network list. A network with two profiles counts twice.
    /// @return the number, 0 included; -2 client handle not opened, -5 network list failed
    int GetAvailableNetworkCount(const GUID* pInterfaceGuid);

    /// Counts the BSS entries of all networks on the first adapter (WlanEnumInterfaces, WlanGetNetworkBssList).
    /// @return the number, 0 included; -2 client handle not opened, -3 enumeration failed, -4 no adapter, -5 BSS list
    /// failed
    int GetNetworkBssCount();

    /// Counts the pairs of a stored profile and an available-network entry that carries its name (WlanGetProfileList,
    /// WlanGetAvailableNetworkList). Whether the service calls the network connectable does not matter.
    /// @return the number, 0 included; -2 client handle not opened, -5 profile list failed, -6 no profile, -7 network
    /// list failed, -8 no network
    int GetConnectableNetworkCount(const GUID* pInterfaceGuid);

    /// Checks whether a network is in view (WlanGetAvailableNetworkList). An empty SSID is never found, although hidden
    /// networks are listed with one.
    /// @param[in] pSsid the SSID
    /// @return 0 when it is; -1 client handle not opened, -3 network list failed, -4 SSID not found, -14 null input
    int GetAP(const GUID* pInterfaceGuid, DOT11_SSID* pSsid);

    /// Returns why a network cannot be joined (WlanGetAvailableNetworkList), from the first matching entry. Here an
    /// empty SSID matches a hidden network.
    /// @param[in] pSsid the network's SSID
    /// @param[in] dwBssType its DOT11_BSS_TYPE
    /// @param[out] bConnectable the service's connectable flag
    /// @param[out] dwReason a WLAN_REASON_CODE, see ReasonCode2String
    /// @return 0; -1 client handle not opened, -4 network list failed, -5 no network, -6 no such network, -14 null
    /// input
    long GetNotConnectableReason(const GUID* pInterfaceGuid,
                                 DOT11_SSID* pSsid,
                                 unsigned long dwBssType,
                                 int& bConnectable,
                                 unsigned long& dwReason);

    /// Checks whether the connected network has no BSS in view any more (WlanQueryInterface, WlanGetNetworkBssList).
    /// @return 1 when it has none; 0 otherwise, when there is no connection, and on every failure
    int IsWiFiDisappear(const GUID* pInterfaceGuid);

    /// Checks whether the network that the first adapter is connected to has a BSS in view (WlanEnumInterfaces,
    /// WlanQueryInterface, WlanGetNetworkBssList).
    /// @return 0 when it has; -1 client handle not opened, -2 enumeration failed, -3 no adapter, -4 connection query
    /// refused, -5 BSS list failed, -6 no BSS in view
    long GetCurrentBSS();

    // --- Signal metrics -----------------------------------------------------------------------------------------

    /// Returns the channel number of a centre frequency. In the 2.4 GHz band it is one below the usual number: 0 for
    /// 2412 MHz, 13 for 2484 MHz, and 14 for a frequency up to there that is not a channel. Above, it is (MHz - 5000) /
    /// 5 from 5000 MHz on and 200 - (5000 - MHz) / 5 below, in 32 unsigned bits: 36 for 5180 MHz, 184 for 4920 MHz; up
    /// to 3995 MHz the number wraps to a huge one. There is no rule for 6 GHz: the result for 5955 MHz is 191.
    /// @param[in] frequency in MHz or a finer decimal unit, as the kHz of WLAN_BSS_ENTRY: divided by ten while above
    /// 10000
    /// @return the channel number
    unsigned long GetChannel(unsigned long frequency);

    /// Converts dBm to a signal strength, linear from 0 at -100 dBm and below to 100 at -50 dBm and above.
    /// @param[in] rssi dBm
    /// @return the strength, from 0 to 100
    int GetSignalStrength(int rssi);

    /// Returns the received signal strength of the connection, as the driver measures it (WlanQueryInterface).
    /// @param[out] rssi dBm
    /// @return 0; -1 client handle not opened, -4 RSSI query refused
    int GetRssi(const GUID* pInterfaceGuid, int& rssi);

    /// Returns the received signal strength of the connected access point from the last scan (WlanQueryInterface,
    /// WlanGetNetworkBssList).
    /// @param[out] rssi dBm
    /// @return 0; -1 client handle not opened, -4 connection query refused, -5 BSS list failed, -6 no BSS in view,
    /// -7 access point not listed
    int GetCurrentRSSI(const GUID* pInterfaceGuid, int& rssi);

    /// Estimates the signal strength of the first available network whose SSID begins with the given one
    /// (WlanGetAvailableNetworkList): half its signal quality minus 100. An empty SSID means the first entry of the
    /// list.
    /// @param[in] ssid the SSID or its beginning; only read
    /// @return dBm, `-100` to `-50`; `-100` also when there is no such network or the list failed; -1 client handle not
    /// opened
    int GetWiFiRSSI(const GUID* pInterfaceGuid, DOT11_SSID& ssid);

    /// Returns the signal quality of the current connection (WlanQueryInterface).
    /// @return the quality, from 0 to 100; -1 client handle not opened, -4 connection query refused
    int GetSignalQuality(const GUID* pInterfaceGuid);

    // --- Software access points, listings, reasons --------------------------------------------------------------

    /// Lists the available networks whose SSID contains the marker of software access points, "LC#"
    /// (WlanGetAvailableNetworkList). The SSID is read as UTF-8 up to its first zero byte, whatever its length. An SSID
    /// that cannot be converted is skipped. Windows rejects the flags of this conversion for every SSID, so the list is
    /// always empty there.
    /// @param[out] pList the SSIDs, narrow text, one for each entry; emptied first, but unchanged on a failure
    /// @return 0; -1 client handle not opened, -13 null output; otherwise the platform's error number
    int GetSoftAPList(const GUID* pInterfaceGuid, std::vector<std::string>* pList);

    /// Checks whether the first adapter is connected by a profile whose name contains that marker (WlanEnumInterfaces,
    /// WlanQueryInterface). The SSID is ignored.
    /// @return true when it is; false otherwise and on every failure
    bool SpecialSoftAP();

    /// Traces a listing of the networks that every adapter sees (WlanEnumInterfaces, WlanGetAvailableNetworkList).
    /// While tracing is off, the method makes the same calls and writes nothing. Only connected networks get the remark
    /// that a network has a profile, because it depends on the connected flag.
    /// @return 0, also when the enumeration failed; 1 some list failed, the others being traced; the platform's error
    /// number when the client handle was not opened
    int GetAvailableNetwork();

    /// Traces a listing of the access points that every adapter sees (WlanEnumInterfaces, WlanGetNetworkBssList), with
    /// channels as GetChannel counts them. While tracing is off, the method makes the same calls and writes nothing.
    /// @return as GetAvailableNetwork
    int GetNetworkBss();

    /// Returns the service's words for a reason (WlanReasonCodeToString). Needs no client handle.
    /// @param[in] reasonCode a WLAN_REASON_CODE
    /// @param[out] text narrow text; empty after a failure of the service that is not an invalid parameter
    /// @param[in] textSize bytes at text; with 0 nothing is written, and the result is true
    /// @return whether the text was written; false when the service finds a parameter invalid (87) or the text does not
    /// fit, but true after other failures of the service
    bool ReasonCode2String(unsigned long reasonCode, char* text, int textSize);

    // --- Profile store ------------------------------------------------------------------------------------------
    // A profile's document is XML. It has keys in plain text if the caller may read them: do not log it.

    /// Checks whether a profile with this name is stored (WlanGetProfileList).
    /// @param[in] name narrow text, at most 127 bytes; a longer or null one is a fatal caller error
    /// @return 0 when it is; -1 no such profile; otherwise the platform's error number of the client handle, the name's
    /// conversion or the list
    int GetWlanProfile(const GUID* pInterfaceGuid, const char* name);

    /// Deletes a profile (WlanDeleteProfile).
    /// @param[in] name narrow text in the current C locale, an invalid byte keeps its value; cut to 127 characters;
    /// null is passed on
    /// @return 0; -1 client handle not opened, -4 not deleted
    int DeleteProfile(const GUID* pInterfaceGuid, const char* name);

    /// Deletes a profile by its wide name (WlanDeleteProfile).
    /// @param[in] name wide text, passed on as it is
    /// @return as DeleteProfile by a narrow name
    int DeleteProfile(const GUID* pInterfaceGuid, const wchar_t* name);

    /// Moves a profile to the second place of the order of preference, never to the first (WlanGetProfileList,
    /// WlanSetProfilePosition). With fewer than two profiles it moves nothing.
    /// @param[in] name narrow text, at most 255 characters
    /// @return 0, also when there was nothing to move; -1 client handle not opened; otherwise the platform's error
    /// number of the list, the name's conversion or the move
    int ResetProfilePosition(const GUID* pInterfaceGuid, const char* name);

    /// Moves a profile to the last place of the order of preference (WlanGetProfileList, WlanSetProfilePosition). With
    /// fewer than two profiles it moves nothing.
    /// @param[in] name wide text, passed on as it is
    /// @return 0, also when there was nothing to move; -1 client handle not opened; otherwise the platform's error
    /// number
    int SetProfilePosition(const GUID* pInterfaceGuid, const wchar_t* name);

    /// Counts the stored profiles (WlanGetProfileList).
    /// @return the number, 0 included; -1 client handle not opened, -4 profile list failed
    int GetProfileCount(const GUID* pInterfaceGuid);

    /// Reads a profile's document as wide text (WlanGetProfile).
    /// @param[in] name wide text, passed on as it is
    /// @param[out] xml the document, cut where it does not fit and terminated
    /// @param[in] capacity characters at xml; with 0 nothing is written, and xml may be null; below 0 the empty text
    /// @return 0, also when the document was cut; -1 client handle not opened, -4 profile not read, -13 null output
    int GetProfile(const GUID* pInterfaceGuid, const wchar_t* name, wchar_t* xml, int capacity);

    /// Reads a profile's document as narrow text of the current C locale (WlanGetProfile), whole: a document that does
    /// not fit, or a null xml, is a fatal caller error.
    /// @param[in] name wide text, passed on as it is
    /// @param[out] xml the document
    /// @param[in] capacity bytes at xml
    /// @return 0; -1 client handle not opened, -4 profile not read
    int GetProfile(const GUID* pInterfaceGuid, const wchar_t* name, char* xml, int capacity);

    /// Checks whether a profile can be read (WlanGetProfile).
    /// @param[in] name wide text, passed on as it is
    /// @return 0 when it can; -1 client handle not opened, -4 profile not read
    int GetProfile(const GUID* pInterfaceGuid, const wchar_t* name);

    /// Stores a profile for all users and replaces the one with the same name (WlanSetProfile). It does not report why
    /// the service refuses a document.
    /// @param[in] xml the document, wide text
    /// @return 0; -1 client handle not opened, -4 not stored
    int SetProfile(const GUID* pInterfaceGuid, const wchar_t* xml);

    // --- Profile XML --------------------------------------------------------------------------------------------
    // A search in the text, without an XML parser: entities are not decoded, and blanks count.

    /// Checks whether a profile's document is for an SSID: whether the text right before the first "</name>" after
    /// "<SSID>" is the SSID. Malformed text is no failure.
    /// @param[in] xml the document, wide text
    /// @param[in] ssid the SSID, wide text; only read
    /// @return 1 when it is, else 0
    int IsThisSSID(const wchar_t* xml, wchar_t* ssid);

    /// Checks whether a profile's document specifies automatic connection: whether the text right before its first
    /// "</connectionMode>" is "auto". Malformed text is no failure.
    /// @param[in] xml the document, wide text
    /// @return 1 when it does, else 0
    int IsAutoConnMode(const wchar_t* xml);

    /// Checks whether a stored profile connects automatically (WlanGetProfile), by the rule of IsAutoConnMode. Compare
    /// the result with 1: failures are not 0.
    /// @param[in] name wide text, passed on as it is
    /// @return 1 when it does, 0 when it has another mode; -1 client handle not opened, -4 profile not read, -5 no
    /// connection mode, -6 malformed before the connection mode
    int IsAutoConnMode2(const GUID* pInterfaceGuid, const wchar_t* name);

    // --- Current connection -------------------------------------------------------------------------------------

    /// Returns the attributes of the current connection (WlanQueryInterface).
    /// @param[out] pAttributes the service's record; null is a fatal caller error
    /// @return 0; -1 client handle not opened, -4 connection query refused
    int GetCurrentConnection(const GUID* pInterfaceGuid, WLAN_CONNECTION_ATTRIBUTES* pAttributes);

    /// Returns the attributes of the first adapter's connection (WlanEnumInterfaces, WlanQueryInterface). It ignores
    /// other adapters, even connected ones.
    /// @param[out] pAttributes the service's record; null is a fatal caller error
    /// @return 0; -1 client handle not opened, -2 enumeration failed, -3 no adapter, -4 connection query refused
    int GetCurrentConnection(WLAN_CONNECTION_ATTRIBUTES* pAttributes);

    /// Returns the SSID that the first adapter is connected to (WlanEnumInterfaces, WlanQueryInterface).
    /// @param[out] ssid narrow text, as by GetSSID
    /// @param[in] capacity bytes at ssid
    /// @return 0, also when the SSID could not be converted, which leaves the text alone; -1 client handle not opened,
    /// -2 enumeration failed, -3 no adapter, -4 connection query refused
    int GetCurrentSSID(char* ssid, int capacity);

    /// Returns the SSID that the first adapter is connected to, and the attributes of the connection.
    /// @param[out] ssid narrow text, as by GetSSID
    /// @param[in] capacity bytes at ssid
    /// @param[out] pAttributes the service's record; null is a fatal caller error, after the text was written
    /// @return as GetCurrentSSID without the record
    int GetCurrentSSID(char* ssid, int capacity, WLAN_CONNECTION_ATTRIBUTES* pAttributes);

    /// Returns state, BSS type, SSID and BSSID of the current connection (WlanQueryInterface).
    /// @param[out] state a WLAN_INTERFACE_STATE; may be null
    /// @param[out] bssType a DOT11_BSS_TYPE; may be null
    /// @param[out] ssid narrow text, as by GetSSID
    /// @param[in] ssidCapacity bytes at ssid
    /// @param[out] bssid six bytes, not text; null is a fatal caller error, after state and SSID were written
    /// @return 0, also when the SSID could not be converted, which leaves the text alone; otherwise the platform's
    /// error number
    int
    GetCurrentLinkInfo(const GUID* pInterfaceGuid, int* state, int* bssType, char* ssid, int ssidCapacity, char* bssid);

    /// Counts the access points in view that belong to the network of a connection (WlanGetNetworkBssList). The caller
    /// specifies the connection; the method does not query it.
    /// @param[in] pAttributes SSID, BSS type and security flag are read
    /// @return the number, 0 included; -1 client handle not opened, -4 BSS list failed, -14 null input
    long GetCurrentWiFi(const GUID* pInterfaceGuid, WLAN_CONNECTION_ATTRIBUTES* pAttributes);

    /// Checks whether an adapter is connected (WlanEnumInterfaces).
    /// @return 1 when it is; 0 otherwise and on every failure
    int WiFiIsConnected(const GUID* pInterfaceGuid);

    /// Checks whether an adapter is disconnected (WlanEnumInterfaces). While it connects or disconnects, it is neither
    /// connected nor disconnected.
    /// @return 1 when it is; 0 otherwise and on every failure
    int WiFiIsDisconnected(const GUID* pInterfaceGuid);

    /// Returns the counters of unicast frames (WlanQueryInterface).
    /// @param[out] pCount frames transmitted and received; its spare fields keep the caller's values
    /// @return 0; -1 client handle not opened, -4 statistics query refused, -13 null output
    int GetWlanStatistics(const GUID* pInterfaceGuid, _WIFI_TXRX_COUNT* pCount);

    // --- Connecting ---------------------------------------------------------------------------------------------
    // A request (WlanConnect) names a stored profile. The service accepts or refuses it at once. Whether the connection
    // is made shows later, in the notifications and in the current connection.

    /// Connects by a stored profile that the available-network list contains (WlanGetAvailableNetworkList,
    /// WlanConnect). An empty name means the first network without a profile, which the service refuses.
    /// @param[in] name the profile's name, narrow text, at most 255 characters; only read
    /// @return 0 when the request is accepted; -1 client handle not opened, -2 no network with the profile; otherwise
    /// the platform's error number of the list, the name's conversion or the request
    int LinkProfile(const GUID* pInterfaceGuid, char* name);

    /// Disconnects (WlanDisconnect).
    /// @return 0, or the platform's error number, also that of the client handle
    int Disconnect(const GUID* pInterfaceGuid);

    /// Connects to the network of a remembered connection, to one access point (WlanGetNetworkBssList, WlanConnect):
    /// the last entry of the BSS list whose link quality is above the first entry's, or the first when none is. This is
    /// not always the best one.
    /// @param[in] pAttributes profile name, SSID, BSS type and security flag are read
    /// @param[in] unused no effect
    /// @return 0 when the request is accepted; -1 client handle not opened, -4 BSS list failed, -6 no BSS in view or
    /// request refused, -14 null input
    int Reconnect(const GUID* pInterfaceGuid, WLAN_CONNECTION_ATTRIBUTES* pAttributes, unsigned long unused);

    /// Connects to the network of a connection notification, to the access point of the form above.
    /// @param[in] pData profile name, SSID, BSS type and security flag are read
    /// @param[in] unused no effect
    /// @return as Reconnect from attributes
    int Reconnect(const GUID* pInterfaceGuid, WLAN_CONNECTION_NOTIFICATION_DATA* pData, unsigned long unused);

    /// Connects by the profile of a remembered connection (WlanConnect), whether or not its network is in view.
    /// @param[in] pAttributes profile name and BSS type are read
    /// @return 0 when the request is accepted; -1 client handle not opened, -4 request refused, -14 null input
    int RecoverConnection(const GUID* pInterfaceGuid, WLAN_CONNECTION_ATTRIBUTES* pAttributes);

    /// Requests the current connection again (WlanQueryInterface, WlanConnect), without disconnecting first. The
    /// service chooses the access point.
    /// @return 0 when the request is accepted; -1 client handle not opened, -4 connection query refused, -5 request
    /// refused
    int ResetConnection(const GUID* pInterfaceGuid);

    /// Moves the profile of the first adapter's connection to the last place of the order of preference
    /// (WlanEnumInterfaces, WlanGetProfileList, WlanQueryInterface, WlanSetProfilePosition).
    /// @return 0, also when there is no adapter or there are fewer than two profiles; -1 client handle not opened;
    /// otherwise the platform's error number
    int SetCurrentWiFiToLast();

    // --- Saved connection ---------------------------------------------------------------------------------------
    // The object remembers one connection as attributes and one as notification data, until the next save or Delete.

    /// Remembers the current connection and whether its profile connects automatically (WlanQueryInterface,
    /// WlanGetProfile).
    /// @return 0; -1 client handle not opened, -4 connection query refused, -5 profile not read, the connection being
    /// remembered with the mode from before
    int SaveCurrentConnectionAttributes(const GUID* pInterfaceGuid);

    /// Connects by the profile of the remembered connection, if its network is in view (WlanGetNetworkBssList,
    /// WlanConnect). If no connection was remembered, it looks for a network without a name.
    /// @return 0 when the request is accepted; -99 profile not automatic, -1 client handle not opened, -4 BSS list
    /// failed, -5 no BSS of the saved network, -6 request refused
    long RecoverConnetionAttributes(const GUID* pInterfaceGuid);

    /// Remembers notification data, without the profile XML that may follow it.
    /// @param[in] pData a record of a connection notification; null first clears the remembered data, then is a fatal
    /// caller error
    void SaveConnNotificationData(WLAN_CONNECTION_NOTIFICATION_DATA* pData);

    /// Connects as Reconnect does with the remembered notification data, whether or not its profile connects
    /// automatically, and whether or not anything was remembered.
    /// @return 0 when the request is accepted; -1 client handle not opened, -4 BSS list failed, -6 no BSS in view or
    /// request refused
    long RecoverConnNotificationData(const GUID* pInterfaceGuid);

    // --- Access points of stored networks -----------------------------------------------------------------------
    // An available network matches a stored profile if its entry has the profile's name (WlanGetProfileList,
    // WlanGetAvailableNetworkList); the SSID is not compared. Each method goes through the profiles in their order, and
    // through the networks of each in list order. It empties the container first, unless the container is null. On
    // success the result is a number, which may be 0.

    /// Lists the BSS entries of every network that matches a profile (WlanGetNetworkBssList). If a network has two
    /// profiles, its entries are listed twice. A network whose BSS list fails is skipped.
    /// @param[out] pList the entries; emptied first
    /// @return the number of entries; -2 client handle not opened, -5 profile list failed, -6 no profile, -7 network
    /// list failed, -8 no network, -13 null output
    int GetMatchAPList(const GUID* pInterfaceGuid, std::vector<WLAN_BSS_ENTRY>* pList);

    /// Lists the BSS entries of every network that matches one named profile, or any that connects automatically
    /// (IsAutoConnMode2), by the rules of GetMatchAPList.
    /// @param[in] name the profile that always counts, wide text; only read
    /// @param[out] pList the entries; emptied first, before the name is checked
    /// @return as GetMatchAPList; also -14 null input
    int GetConnectableAPList(const GUID* pInterfaceGuid, wchar_t* name, std::vector<WLAN_BSS_ENTRY>* pList);

    /// Lists the same as the form with a GUID, on the first adapter (WlanEnumInterfaces).
    /// @param[in] name the profile that always counts, wide text; only read
    /// @param[out] pList the entries; emptied first, before the name is checked
    /// @return as GetConnectableAPList; also -3 enumeration failed, -4 no adapter
    int GetConnectableAPList(wchar_t* name, std::vector<WLAN_BSS_ENTRY>* pList);

    /// Lists the profile name of every network that matches a profile and has a BSS in view (WlanGetNetworkBssList),
    /// once for each network. A network whose BSS list fails is skipped.
    /// @param[out] pNames the names, wide text; emptied first
    /// @param[in] mode 1: only profiles that connect automatically (IsAutoConnMode2); any other: all
    /// @return as GetMatchAPList, the number being that of the names
    int GetMatchAPCount(const GUID* pInterfaceGuid, std::vector<std::wstring>* pNames, int mode);

    /// Lists profile names as the form without a name does. In mode 1 the named profile also counts, whatever its own
    /// mode.
    /// @param[out] pNames the names, wide text; emptied first
    /// @param[in] name that profile, wide text; may be null
    /// @param[in] mode 1: only profiles that connect automatically, and that one; any other: all
    /// @return as GetMatchAPCount without a name
    int GetMatchAPCount(const GUID* pInterfaceGuid, std::vector<std::wstring>* pNames, const wchar_t* name, int mode);

    /// Traces how the time stamps of the BSS entries of each matching network change (WlanGetNetworkBssList). It waits
    /// three seconds for each such network. The differences have 16 bits, and wrap when a clock goes back or passes
    /// midnight.
    /// @return never 0; -1 diagnostic run without a problem, or the code of the last problem: -2 client handle not
    /// opened, -5 profile list failed, -6 no profile, -7 network list failed, -8 no network, -9 first BSS list failed,
    /// -10 first BSS list empty, -11 later BSS list failed, -12 later BSS list empty
    int GetMatchBSSID(const GUID* pInterfaceGuid);

    // --- Best access point --------------------------------------------------------------------------------------

    /// Joins a network by rank, the lowest score first: normally the weakest candidate. This is deliberate. The
    /// candidates are the networks that match a profile which connects automatically (IsAutoConnMode2). The method
    /// requests connections (WlanConnect) from the lowest score upward until one request is accepted. Equal scores are
    /// in the order of the profiles, then of the networks.
    ///
    /// The score is the signal quality plus 10, up to 100 in all, for each access point of the 5 GHz band. For this the
    /// method reads one BSS list, that of the network listed last, candidate or not. An entry counts if GetChannel
    /// returns more than 14 for it and its SSID is the beginning of the candidate's.
    /// @return 0 when a request is accepted; -1 client handle not opened, -4 profile list failed, -5 no profile,
    /// -6 network list failed, -7 no network, -9 no candidate, -10 BSS list failed, -11 BSS list empty, -12 every
    /// request refused
    int ConnectBestAP(const GUID* pInterfaceGuid);

    /// Joins a network by rank as the form without exclusions does, but excludes some networks.
    /// @param[in] pExcluded a network is excluded if its SSID is the beginning of an entry's SSID: HomeNet5G excludes
    /// HomeNet. Only the SSIDs are read
    /// @return as ConnectBestAP; also -14 null input
    int ConnectBestAP(const GUID* pInterfaceGuid, std::vector<WLAN_BSS_ENTRY>* pExcluded);

    /// Joins a network by rank as the form without exclusions does, but excludes one profile.
    /// @param[in] excludedName the name of the excluded profile, wide text
    /// @return as ConnectBestAP; also -14 null input
    int ConnectBestAP(const GUID* pInterfaceGuid, const wchar_t* excludedName);

    /// Joins a network by rank as the form without exclusions does, but excludes some networks and one profile.
    /// @param[in] pExcluded as above
    /// @param[in] excludedName as above
    /// @return as ConnectBestAP; also -14 null input
    int ConnectBestAP(const GUID* pInterfaceGuid, std::vector<WLAN_BSS_ENTRY>* pExcluded, const wchar_t* excludedName);

    // --- Automatic connection -----------------------------------------------------------------------------------
    // Networks match a profile as above. When every request is refused, AutoConnect, AutoSwitch and ConnectAutoMode
    // return 0; the others report the refusal.

    /// Requests the matching networks in profile order until one request is accepted (WlanConnect), whatever the
    /// profile's connection mode.
    /// @return 0, also when every request was refused; -1 client handle not opened, -4 profile list failed, -5 no
    /// profile, -6 network list failed, -7 no network, -9 nothing matches
    int AutoConnect(const GUID* pInterfaceGuid);

    /// Joins a network by rank as ConnectBestAP does, the lowest score first. Every matching network is a candidate,
    /// whatever the profile's connection mode.
    /// @return as ConnectBestAP, but -9 nothing matches
    int AutoConnectEx(const GUID* pInterfaceGuid);

    /// Moves the current profile to the last place (WlanQueryInterface, WlanSetProfilePosition) permanently, and then
    /// requests networks as AutoConnect does, in the previous order: it may request the current network again. It does
    /// not move a single profile.
    /// @return 0, also when every request was refused; -1 client handle not opened, -3 connection query refused,
    /// -4 profile list failed, -5 profile not moved, -6 network list failed, -7 nothing matches, also when a list is
    /// empty
    int AutoSwitch(const GUID* pInterfaceGuid);

    /// Requests the first matching network whose signal quality is above the current one, by one point or more
    /// (WlanQueryInterface, WlanConnect). Skips networks whose profile name is the current SSID, because profiles
    /// usually have the name of their network. It makes one request only. Windows rejects the flags with which this
    /// method converts the current SSID: the result there is 1004.
    /// @return 0 when the request is accepted; -1 client handle not opened, -2 nothing better; otherwise the platform's
    /// error number
    int SmartSwitch(const GUID* pInterfaceGuid);

    /// Requests the first matching network on the first adapter, once (WlanEnumInterfaces, WlanConnect).
    /// @param[in] pInterfaceGuid ignored
    /// @param[out] profileName the name of its profile, narrow text of the current C locale, cut to 127 bytes and
    /// terminated; may be null. Written only when the request is accepted
    /// @return 0 when the request is accepted, and when there is no adapter; -1 client handle not opened, -2 nothing
    /// matches; otherwise the platform's error number
    int SmartConnecting(const GUID* pInterfaceGuid, char* profileName);

    /// Requests the networks that have the name of an automatically connecting profile, or whose SSID is that name, in
    /// profile order until one request is accepted (WlanGetProfile, WlanConnect). The request for a match by SSID has
    /// the network's own, empty profile name, which the service refuses. The method reads the first 1023 characters of
    /// each profile's document. Windows rejects the flags with which it converts SSIDs, and it skips such networks, so
    /// that it finds no candidate there.
    /// @return 0, also when every request was refused; -1 client handle not opened, -4 profile list failed, -5 no
    /// profile, -6 network list failed, -7 no network, -9 no candidate
    int ConnectAutoMode(const GUID* pInterfaceGuid);

    // --- Roaming ------------------------------------------------------------------------------------------------

    /// Checks whether Roaming would request another access point of the current network (WlanQueryInterface,
    /// WlanGetNetworkBssList). It chooses the access point as Reconnect does.
    /// @return 0 when it would; -1 client handle not opened, -4 connection query refused, -5 signal quality 80 or more,
    /// -6 BSS list failed, -7 no BSS in view, -8 already connected to it
    int PreRoaming(const GUID* pInterfaceGuid);

    /// Decides as PreRoaming does, and requests that access point with the current profile (WlanConnect), without
    /// disconnecting first.
    /// @return 0 when the request is accepted; as PreRoaming; also -9 request refused
    int Roaming(const GUID* pInterfaceGuid);

    // --- Privileges, power and sleep ----------------------------------------------------------------------------

    /// Enables the shutdown privilege of the calling process (OpenProcessToken, LookupPrivilegeValueA,
    /// AdjustTokenPrivileges).
    /// @return 1 when the platform took the request, also when the account does not hold the privilege, and when the
    /// platform has no tokens; 0 otherwise
    int GetPrivileges();

    /// Enables a privilege of the calling process (OpenProcessToken, LookupPrivilegeValueA, AdjustTokenPrivileges).
    /// @param[in] privilegeName the platform's name, such as "SeShutdownPrivilege"; may be null
    /// @return false only when the platform did not enable it; true also when the name is null or names no privilege,
    /// and when no token can be opened
    bool EnablePriviledge(const char* privilegeName);

    /// Puts the computer to sleep (SetSuspendState, forced, with wake events), and returns after it has woken. Needs
    /// the shutdown privilege, see GetPrivileges.
    /// @return the platform's boolean: 1, or 0 when refused
    int ForceComputerSleep();

    /// Remembers the policy of the active legacy power scheme and switches its idle time-outs off, on mains and on
    /// battery (IsPwrSuspendAllowed, GetActivePwrScheme, ReadPwrScheme, WritePwrScheme, SetActivePwrScheme). A second
    /// call remembers the changed policy of the first one.
    /// @return 0; -1 suspend not allowed, -2 no active scheme, -3 scheme not read, -4 scheme not written, -5 scheme not
    /// activated
    long SetPowerScheme();

    /// Writes the remembered policy, all zero when none was, to the scheme that is active now, and activates it
    /// (IsPwrSuspendAllowed, GetActivePwrScheme, WritePwrScheme, SetActivePwrScheme).
    /// @return 0; -1 suspend not allowed, -2 no active scheme, -3 scheme not written, -4 scheme not activated
    long ResetPowerScheme();

    /// Copies the active power scheme, names the copy "Super energy-saving", makes it sleep after a second on mains and
    /// after two when unattended, and activates it (PowerGetActiveScheme, PowerDuplicateScheme, PowerWriteFriendlyName,
    /// PowerWriteACValueIndex, PowerSetActiveScheme). The copy stays in the store. Its name is passed in 8-bit
    /// characters, which the platform reads as wide ones. Before that, the method lists the first scheme
    /// (PowerEnumerate) until that fails: if the system lists a power scheme, the method does not return.
    /// @return 0; -1 no active scheme, -2 scheme not copied, -3 copy not named, -4 time-out not written, -5 scheme not
    /// activated
    long GetPowerScheme();

    /// Checks whether the computer sleeps in the "always on, always connected" way, Modern Standby
    /// (CallNtPowerInformation).
    /// @return 1 when it does; 0 otherwise and on every failure
    int IsSurpportAoAc();

    /// Returns when the computer last woke (CallNtPowerInformation).
    /// @return interrupt time in 100 ns, which counts from the system's start; 0 on every failure
    unsigned long long GetLastWakeTime();

    /// Returns when the computer last went to sleep (CallNtPowerInformation).
    /// @return interrupt time in 100 ns, which counts from the system's start; 0 on every failure
    unsigned long long GetLastSleepTime();

    /// Queries the power policies on mains and on battery (CallNtPowerInformation) and discards them.
    /// @return 0, or the platform's error number, an NTSTATUS, of the question about the battery
    long GetSystemPowerPolicy();

    /// Returns, despite its name, whether the computer woke by itself (IsSystemResumeAutomatic). The answers that the
    /// name promises are discarded (IsPwrHibernateAllowed, IsPwrShutdownAllowed, IsPwrSuspendAllowed).
    /// @return the platform's boolean
    int IsPowerHibernateAllowed();

    // --- Processes and the host program -------------------------------------------------------------------------

    /// Checks whether this is a 32-bit process on a 64-bit system (IsWow64Process, looked up at run time).
    /// @return the platform's boolean; 0 also when it cannot be asked
    int IsWow64();

    /// Ends a process at once, with exit code 0 (OpenProcess, TerminateProcess, CloseHandle). Returns no result and
    /// checks no step.
    /// @param[in] processId the number of the process
    void CloseProcess(unsigned long processId);

    /// Starts a program and waits, without limit, until it has ended (CreateProcessA, WaitForSingleObject). Returns no
    /// result.
    /// @param[in,out] commandLine program and arguments, narrow text; the platform may write to it; null starts nothing
    void CreateProcRunCmd(char* commandLine);

    /// Starts a program in the folder of the host program and waits, without limit, until it has ended (GetAppPath,
    /// CreateProcessA, WaitForSingleObject). Overwrites the text of GetAppPath.
    /// @param[in] fileName narrow text, appended to the folder; null starts nothing
    /// @return 1 when it was started, whatever its exit code; 0 otherwise
    int CreateProcRunExe(char* fileName);

    /// Returns the folder of the host program with a backslash at the end (GetModuleFileNameA).
    /// @return text inside the object, at most 511 bytes; empty when the folder cannot be determined
    char* GetAppPath();

    /// Checks whether https://www.example.com/ can be reached (InternetCheckConnectionA). Opens nothing. Sets the
    /// connect time-out of the whole process to three seconds (InternetSetOptionA), and waits for the answer.
    /// @return 0 when it can; -1 not reached
    long OpenUrl();

private:
    friend struct calvix::ManagerInternals;

    CWirelessManage();
    ~CWirelessManage();
    CWirelessManage(const CWirelessManage&) = delete;

    static HANDLE hClient;
    static CWirelessManage* m_pManage;

    WLAN_CONNECTION_ATTRIBUTES m_SavedConnAttr;
    WLAN_CONNECTION_NOTIFICATION_DATA m_SavedConnNotify;
    int m_nSavedAutoConnMode;
    char m_szInterfaceState[256];
    char m_szGuid[128];
    char m_szInterfaceDesc[256];
    char m_szPowerSetting[128];
    bool m_bSpare;
    void* m_pSpare;
    POWER_POLICY m_SavedPowerPolicy;
    char m_szAppPath[512];
};
