#pragma once

#include "simulation/scenario_system.h"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace calvix::simulation
{

/// The plain data that describes a simulated computer and what it hears. Texts are UTF-8. Numbers such as PHY and BSS
/// types are the WLAN API's own.

using MacAddress = std::array<std::uint8_t, 6>;
using Bytes = std::vector<std::uint8_t>;

enum class RadioSwitch
{
    on,
    off
};

struct PhyDescription
{
    std::uint32_t type = 7; ///< DOT11_PHY_TYPE
    RadioSwitch software = RadioSwitch::on;
    RadioSwitch hardware = RadioSwitch::on;

    bool operator==(const PhyDescription&) const = default;
};

/// A point of an access point's timetable.
struct SignalPoint
{
    std::uint32_t at = 0;             ///< milliseconds of simulated time since the computer started
    std::optional<std::int32_t> rssi; ///< dBm; none: off the air from here to the next point

    bool operator==(const SignalPoint&) const = default;
};

struct AccessPoint
{
    Bytes ssid;          ///< at most 32 bytes, any value
    bool hidden = false; ///< beacons carry no SSID
    MacAddress bssid{};
    std::uint32_t frequencyKhz = 2412000;
    std::int32_t rssi = -60; ///< dBm, as every adapter hears it
    std::uint32_t phyType = 7;
    std::uint32_t bssType = 1; ///< DOT11_BSS_TYPE: 1 infrastructure, 2 independent
    std::string authentication =
        "WPA2PSK";                    ///< as in a profile: open, shared, WPA, WPAPSK, WPA2, WPA2PSK, WPA3SAE, OWE ...
    std::string encryption = "AES";   ///< as in a profile: none, WEP, TKIP, AES, GCMP256
    std::uint16_t beaconPeriod = 100; ///< in 1024 microseconds
    Bytes informationElements;        ///< empty: derived from the other fields
    std::string key{};                ///< passphrase that it takes; empty: any
    bool answers = true;              ///< whether it replies to those who want to associate
    std::vector<SignalPoint> timetable{}; ///< if not empty, in place of rssi; see SignalAt
    std::uint32_t channelWidth = 0;       ///< MHz, in the derived information elements; 0: not in them

    bool operator==(const AccessPoint&) const = default;
};

struct StoredProfile
{
    std::string xml; ///< the whole profile document; the scenario file may give a short form instead

    bool operator==(const StoredProfile&) const = default;
};

struct Connection
{
    std::string profile;             ///< name of a stored profile
    std::optional<MacAddress> bssid; ///< none: the strongest access point of the profile's network
    std::uint32_t receiveKbps = 0;   ///< 0: what the PHY type commonly reaches
    std::uint32_t transmitKbps = 0;

    bool operator==(const Connection&) const = default;
};

struct Statistics
{
    std::uint64_t transmitted = 0; ///< unicast frames
    std::uint64_t received = 0;

    bool operator==(const Statistics&) const = default;
};

/// What the adapter's driver answers to a vendor request: bytes, or nothing but an error.
struct IhvAnswer
{
    Bytes data;
    std::uint32_t error = 0; ///< a platform error number, 0: none

    bool operator==(const IhvAnswer&) const = default;
};

struct AdapterDescription
{
    std::string guid;        ///< "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}"
    std::string description; ///< at most 255 characters
    MacAddress address{};
    std::vector<PhyDescription> phys{PhyDescription{}};
    std::uint32_t scanMilliseconds = 2500;    ///< how long a scan takes
    std::uint32_t connectMilliseconds = 1200; ///< from an accepted request to the connection
    std::vector<StoredProfile> profiles;      ///< in preference order
    std::optional<Connection> connection;
    Statistics statistics;
    bool autoConfiguration = true;    ///< whether the service looks after this adapter: scans and connects by itself
    bool backgroundScan = true;       ///< whether it scans by itself while connected, too
    std::map<Bytes, IhvAnswer> ihv{}; ///< the driver's answers, by request

    bool operator==(const AdapterDescription&) const = default;
};

struct Scenario
{
    std::string description;
    std::uint32_t codePage = 1252; ///< the active narrow code page: 1252, 932, 936 or 65001
    bool serviceRunning = true;
    bool locationConsent = true;    ///< without it the service refuses everything that reveals where the computer is
    bool administrator = true;      ///< whether the programs run with an administrator's rights
    std::uint32_t powerSetting = 0; ///< WLAN_POWER_SETTING: the service's power saving
    PowerDescription power;
    bool tokens = true; ///< without them, the platform has no privileges and says that the operations are missing
    std::vector<Privilege> privileges = DefaultPrivileges();
    std::string programPath = "C:\\Program Files\\Calvix\\calvix.exe"; ///< of the program that uses the computer
    std::optional<bool> wow64 = false; ///< whether it is a 32-bit one on a 64-bit system; none: cannot be asked
    std::vector<Program> programs;
    std::vector<RunningProcess> processes;
    InternetAccess internet = InternetAccess::reachable;
    std::vector<AdapterDescription> adapters;
    std::vector<AccessPoint> accessPoints;

    bool operator==(const Scenario&) const = default;
};

/// A scenario that cannot be used; the message names the file and the place in it.
class ScenarioError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Reads a scenario and refuses what is wrong in it. `source` is what messages call the text.
Scenario ParseScenario(const std::string& json, const std::string& source);
Scenario LoadScenario(const std::string& path);

/// The scenario as a JSON text that ParseScenario reads back.
std::string WriteScenario(const Scenario& scenario);

/// The JSON Schema of scenario files: docs/scenario.schema.json.
std::string ScenarioSchema();

/// The scenario that is used where none was named: the gallery's home.
Scenario BuiltInScenario();

/// A profile document as the service stores it, for an SSID of valid UTF-8 (otherwise pass the bytes as hexadecimal
/// only). `mode` is "auto" or "manual".
struct ProfileSettings
{
    std::string name;
    Bytes ssid;
    std::string mode = "auto";
    std::string authentication = "WPA2PSK";
    std::string encryption = "AES";
    std::string key;           ///< passphrase, empty: none
    bool hidden = false;       ///< <nonBroadcast>true</nonBroadcast>
    std::uint32_t bssType = 1; ///< 1 ESS, 2 IBSS
};
std::string MakeProfileXml(const ProfileSettings& settings);

/// The default name of a profile for an SSID: the SSID as text, or in hexadecimal if it is not text.
std::string ProfileNameFor(const Bytes& ssid);

} // namespace calvix::simulation
