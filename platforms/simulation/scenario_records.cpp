#include "forms/address_text.h"
#include "forms/hex_text.h"
#include "simulation/scenario_checks.h"
#include "simulation/scenario_forms.h"

namespace calvix::simulation
{

/// The records of a scenario file: one row for each field, from which it is read, refused where it is wrong, written,
/// and described in docs/scenario.schema.json. scenario_fields.h says what the rows mean. A field's default is what the
/// record's member begins with. What no row can say is checked, or completed, in AfterReading.

inline const char kAddressText[] = "Six bytes in hexadecimal with colons between, such as 02:ca:1f:00:00:01.";
inline const char kSsidHexText[] =
    "The bytes of a network name, at most 32, as pairs of hexadecimal digits: for names that are not valid text.";
inline const char kHiddenText[] = "Whether the beacons carry no name.";
inline const char kSecondsText[] = "A number of seconds, 0: never.";
inline const char kGuidText[] = "A GUID with braces, such as {381B4222-F694-41F0-9685-FF5BB260DF2E}.";
inline const char kPathText[] = "The whole path of a program, such as C:\\Tools\\report.exe.";
inline const char kExitCodeText[] = "The exit code that it ends with.";
inline const char kSwitchText[] = "on or off.";
inline const char kPhyText[] =
    "fhss, dsss, irbaseband, ofdm (802.11a), hrdsss (b), erp (g), ht (n), vht (ac), dmg (ad), "
    "he (ax), eht (be), or the DOT11_PHY_TYPE as a number.";
inline const char kAuthenticationText[] =
    "As profiles name it: open, shared, WPA, WPAPSK, WPA2, WPA2PSK, WPA3, WPA3ENT, "
    "WPA3ENT192, WPA3SAE or OWE.";
inline const char kEncryptionText[] = "As profiles name it: none, WEP, TKIP, AES or GCMP256.";

inline const Among<std::string> kAuthentications{
    {"open", "shared", "WPA", "WPAPSK", "WPA2", "WPA2PSK", "WPA3", "WPA3ENT", "WPA3ENT192", "WPA3SAE", "OWE"}};
inline const Among<std::string> kEncryptions{{"none", "WEP", "TKIP", "AES", "GCMP256"}};
inline constexpr Text kPath{32767, 1};
inline constexpr Text kKey{128};
inline constexpr Whole kUpToAnHour{0, 3600000};
inline constexpr Whole kLegacyId{0, 4294967294};

void Describe(Fields& fields, PhyDescription& phy)
{
    fields.Record("A PHY of an adapter; its radio is on when both switches are.");
    fields.Shown("type", phy.type, NameOrNumber{{kPhyNames}}, kPhyText);
    fields.Shown("software", phy.software, OneOf<RadioSwitch>{kSwitchNames}, kSwitchText);
    fields.Shown("hardware", phy.hardware, OneOf<RadioSwitch>{kSwitchNames}, kSwitchText);
}

void Describe(Fields& fields, SignalPoint& point)
{
    fields.Record("The signal strength at a moment: from one point to the next it changes evenly.");
    fields.Required("at", point.at, Whole{}, "The moment, in milliseconds after the scenario begins.");
    fields.Required("rssi", point.rssi, OrNull{Whole{-120, 0}},
                    "The signal strength in dBm, or null: off the air until the next point.");
}

void Describe(Fields& fields, AccessPoint& point)
{
    std::string band;
    std::uint32_t channel = 0;
    fields.Record("An access point: its bssid, its name as either ssid or ssidHex, and its frequency as either "
                  "frequencyKhz or band and channel.");
    fields.ExactlyOne("ssid", "ssidHex");
    fields.NotBoth("frequencyKhz", "channel");
    fields.Together("band", "channel");
    fields.Shown("ssid", point.ssid, SsidText{}, "A network name of at most 32 bytes in UTF-8.");
    fields.Shown("ssidHex", point.ssid, HexUnless<SsidText>{{SsidText::kLongest}}, kSsidHexText);
    fields.Shown("hidden", point.hidden, Flag{}, kHiddenText);
    fields.Required("bssid", point.bssid, Address{}, kAddressText);
    fields.Shown("frequencyKhz", point.frequencyKhz, Whole{1}, "The primary channel's centre frequency in kHz.");
    fields.Optional("band", band, Among<std::string>{{"2.4", "5", "6"}},
                    "The band that the channel is in: 2.4, 5 or 6 (GHz), as a text.");
    fields.Optional("channel", channel, Whole{1, 233},
                    "A channel number of the band: 1 to 14 in 2.4 GHz, 7 to 196 in 5 GHz, 1 to 233 in 6 GHz.");
    fields.Shown("rssi", point.rssi, Whole{-120, 0}, "The signal strength at every adapter in dBm.");
    fields.Shown("phy", point.phyType, NameOrNumber{{kPhyNames}}, kPhyText);
    fields.Shown("bssType", point.bssType, NameOrNumber{{kBssTypeNames}},
                 "infrastructure, independent (ad hoc), or the DOT11_BSS_TYPE as a number.");
    fields.Shown("authentication", point.authentication, kAuthentications, kAuthenticationText);
    fields.Shown("encryption", point.encryption, kEncryptions, kEncryptionText);
    fields.Shown("beaconPeriod", point.beaconPeriod, Whole{0, 65535},
                 "The time between beacons in units of 1024 microseconds.");
    fields.Optional("informationElements", point.informationElements, Hex{2324},
                    "The information elements, at most 2324 bytes as pairs of hexadecimal digits; derived from the "
                    "other fields if left out.");
    fields.Optional("key", point.key, kKey,
                    "The passphrase that it takes. A profile with another one fails to connect; if left out, any is "
                    "taken.");
    fields.Optional("answers", point.answers, Flag{}, "Whether it replies to adapters that want to connect.");
    fields.Optional("channelWidth", point.channelWidth, Among<std::uint32_t>{{0, 20, 40, 80, 160, 320}},
                    "How wide its channel is in MHz, and with it what its PHY can do, for the information elements "
                    "that are derived; 0: they do not contain it.");
    fields.Optional("timetable", point.timetable, ListOf<SignalPoint>{.most = 4096},
                    "How its signal strength changes in the course of time, in place of rssi: points, earliest first, "
                    "each later than the one before. Before the first and after the last it stays as it is there.");
    fields.AfterReading([&](const Value& place) { CompleteAccessPoint(place, band, channel, point); });
}

void Describe(Fields& fields, StoredProfile& profile)
{
    ProfileSettings shortForm;
    fields.Record(
        "A stored profile: either the whole document as xml and nothing else, or name and everything that differs "
        "from the defaults.");
    fields.ExactlyOne("xml", "name");
    fields.NotBoth("ssid", "ssidHex");
    fields.Alone("xml");
    fields.Shown("xml", profile.xml, Text{65536}, "A WLANProfile document.");
    fields.Optional("name", shortForm.name, Text{255, 1}, "The profile's name, 1 to 255 characters.");
    fields.Optional("ssid", shortForm.ssid, SsidText{},
                    "The network's name, at most 32 bytes in UTF-8; the profile's name if left out.");
    fields.Optional("ssidHex", shortForm.ssid, HexUnless<SsidText>{{SsidText::kLongest}}, kSsidHexText);
    fields.Optional("mode", shortForm.mode, Among<std::string>{{"auto", "manual"}},
                    "Whether the service connects by itself: auto or manual. Ad hoc networks are manual if left out.");
    fields.Optional("authentication", shortForm.authentication, kAuthentications, kAuthenticationText);
    fields.Optional("encryption", shortForm.encryption, kEncryptions, kEncryptionText);
    fields.Optional("key", shortForm.key, kKey, "The passphrase or network key; none if left out.");
    fields.Optional("hidden", shortForm.hidden, Flag{}, kHiddenText);
    fields.Optional("bssType", shortForm.bssType, OneOf<std::uint32_t>{kBssTypeNames},
                    "infrastructure or independent (ad hoc).");
    fields.AfterReading([&](const Value& place) { CompleteProfile(place, shortForm, profile); });
}

void Describe(Fields& fields, Connection& connection)
{
    fields.Record("What the adapter is connected to when the scenario begins.");
    fields.Required("profile", connection.profile, Text{}, "The name of one of the adapter's profiles.");
    fields.Optional("bssid", connection.bssid, OrNull{Address{}}, kAddressText);
    fields.Optional("receiveKbps", connection.receiveKbps, Whole{},
                    "The rate at which the link receives, in kbit/s, until the adapter connects again; 0: what the PHY "
                    "type commonly reaches.");
    fields.Optional("transmitKbps", connection.transmitKbps, Whole{}, "The same for what the link transmits.");
}

void Describe(Fields& fields, Statistics& statistics)
{
    fields.Record("What the adapter has counted so far.");
    fields.Shown("transmitted", statistics.transmitted, kCount, "Unicast frames sent.");
    fields.Shown("received", statistics.received, kCount, "Unicast frames received.");
}

void Describe(Fields& fields, IhvRequest& request)
{
    fields.Record("A request to the driver, and the answer to it: either bytes or a platform error number.");
    fields.ExactlyOne("answer", "error");
    fields.Required("request", request.request, Hex{4096}, "The bytes of the request, as pairs of hexadecimal digits.");
    fields.Optional("answer", request.answer, OrNull{Hex{4096}},
                    "The bytes of the answer, as pairs of hexadecimal digits.");
    fields.Optional("error", request.error, OrNull{Whole{1}}, "The platform error number that the request fails with.");
}

void Describe(Fields& fields, AdapterDescription& adapter)
{
    std::vector<IhvRequest> requests = RequestsOf(adapter);
    fields.Record("A wireless adapter.");
    fields.Required("guid", adapter.guid, Guid{},
                    "The adapter's GUID with braces, such as {5ca1ab1e-0000-4000-8000-000000000001}.");
    fields.Required("description", adapter.description, Text{255}, "The adapter's name, at most 255 characters.");
    fields.Required("address", adapter.address, Address{}, kAddressText);
    fields.Shown("phys", adapter.phys, ListOf<PhyDescription>{.most = 64, .least = 1},
                 "The adapter's PHYs, 1 to 64; one ht PHY if left out.");
    fields.Shown("scanMilliseconds", adapter.scanMilliseconds, kUpToAnHour, "How long a scan takes, up to an hour.");
    fields.Shown("connectMilliseconds", adapter.connectMilliseconds, kUpToAnHour,
                 "How long connecting takes, up to an hour.");
    fields.Shown("profiles", adapter.profiles, ListOf<StoredProfile>{.most = 1024},
                 "The stored profiles, preferred ones first; none if left out.");
    fields.Optional("connection", adapter.connection, OrNull{Nested<Connection>{}});
    fields.Shown("statistics", adapter.statistics, Nested<Statistics>{});
    fields.Optional("autoConfiguration", adapter.autoConfiguration, Flag{},
                    "Whether the service looks after this adapter, that is, scans and connects by itself.");
    fields.Optional("backgroundScan", adapter.backgroundScan, Flag{},
                    "Whether the service scans by itself while the adapter is connected, too.");
    fields.Optional("ihv", requests,
                    ListOf<IhvRequest>{.most = 1024,
                                       .key = "request",
                                       .identity = [](const IhvRequest& each)
                                       { return forms::HexText(each.request, forms::Letters::lower); }},
                    "What the adapter's driver answers to the requests of its maker's programs; a request that is not "
                    "listed is not supported.");
    fields.AfterReading([&](const Value& place) { CompleteAdapter(place, requests, adapter); });
}

void Describe(Fields& fields, PowerValue& value)
{
    fields.Record("The values of a setting on mains power (ac) and on battery (dc).");
    fields.Required("subgroup", value.subgroup, Guid{}, kGuidText);
    fields.Required("setting", value.setting, Guid{}, kGuidText);
    fields.Shown("ac", value.ac, Whole{}, "The setting's value on mains power.");
    fields.Shown("dc", value.dc, Whole{}, "The setting's value on battery.");
}

void Describe(Fields& fields, PowerScheme& scheme)
{
    fields.Record("A power scheme: its GUID, its name as either name or nameHex, and its values.");
    fields.ExactlyOne("name", "nameHex");
    fields.Required("guid", scheme.guid, Guid{}, kGuidText);
    fields.Shown("name", scheme.name, SchemeName{}, "The scheme's name.");
    fields.Shown("nameHex", scheme.name, HexUnless<SchemeName>{{4096}},
                 "The bytes that a program has stored as the name, as pairs of hexadecimal digits: for names that are "
                 "no terminated UTF-16.");
    fields.Optional("values", scheme.values, ListOf<PowerValue>{.most = 1024},
                    "The values of its settings; none if left out. A setting that no scheme has a value of cannot be "
                    "written.");
}

void Describe(Fields& fields, LegacyPowerScheme& scheme)
{
    fields.Record("A power scheme of the older kind: its number, its name and what differs from the defaults.");
    fields.Required("id", scheme.id, kLegacyId, "The scheme's number.");
    fields.Required("name", scheme.name, Text{1024}, "The scheme's name.");
    fields.Shown("idleTimeoutAc", scheme.idleTimeoutAc, Whole{}, kSecondsText);
    fields.Shown("idleTimeoutDc", scheme.idleTimeoutDc, Whole{}, kSecondsText);
    fields.Shown("videoTimeoutAc", scheme.videoTimeoutAc, Whole{}, kSecondsText);
    fields.Shown("videoTimeoutDc", scheme.videoTimeoutDc, Whole{}, kSecondsText);
}

void Describe(Fields& fields, PowerDescription& power)
{
    fields.Record("Power management: what the computer can do, when it slept, and its power schemes.");
    fields.Optional("suspendAllowed", power.suspendAllowed, Flag{}, "Whether the computer can sleep.");
    fields.Optional("hibernateAllowed", power.hibernateAllowed, Flag{}, "Whether it can hibernate.");
    fields.Optional("shutdownAllowed", power.shutdownAllowed, Flag{}, "Whether it can be shut down.");
    fields.Optional("modernStandby", power.modernStandby, Flag{}, "Whether it sleeps always on and always connected.");
    fields.Optional("battery", power.battery, Flag{}, "Whether it has a battery and a lid.");
    fields.Optional("upMilliseconds", power.upMilliseconds, kCount,
                    "How long it has been up when the scenario begins.");
    fields.Optional("lastSleepTime", power.lastSleepTime, kCount,
                    "When it last went to sleep, in units of 100 ns since it came up; 0: not since then.");
    fields.Optional("lastWakeTime", power.lastWakeTime, kCount,
                    "When it last woke, in units of 100 ns since it came up; 0: not since then.");
    fields.Optional("sleepMilliseconds", power.sleepMilliseconds, Whole{0, 86400000},
                    "How long it sleeps when a program puts it to sleep, up to a day.");
    fields.Optional("resumesAutomatically", power.resumesAutomatically, Flag{},
                    "Whether it wakes by itself, for a timer or a device, the last time included; otherwise its user "
                    "wakes it.");
    fields.Optional("enumerationError", power.enumerationError, Whole{},
                    "A platform error number that listing the power schemes fails with, although they are there; 0: it "
                    "succeeds.");
    fields.Optional("schemes", power.schemes,
                    ListOf<PowerScheme>{.most = 256,
                                        .key = "guid",
                                        .identity = [](const PowerScheme& each) { return LowerCase(each.guid); }},
                    "The power schemes; Balanced, High performance and Power saver if left out.");
    fields.Shown("activeScheme", power.activeScheme, OrNull{Guid{}},
                 "The GUID of the active scheme, null: none; the first scheme if left out.");
    fields.Optional(
        "legacySchemes", power.legacySchemes,
        ListOf<LegacyPowerScheme>{.most = 256,
                                  .key = "id",
                                  .identity = [](const LegacyPowerScheme& each) { return std::to_string(each.id); }},
        "The power schemes of the older kind, which have numbers; Home/Office Desk (0), Portable/Laptop "
        "(1) and Always On (3) if left out.");
    fields.Shown("activeLegacyScheme", power.activeLegacyScheme, OrNull{kLegacyId},
                 "The number of the active one of these, null: none; the first if left out.");
    fields.AfterReading([&](const Value& place) { CompletePower(place, power); });
}

void Describe(Fields& fields, Privilege& privilege)
{
    fields.Record("A privilege that the token holds.");
    fields.Required("name", privilege.name, Text{}, "The privilege's name, such as SeShutdownPrivilege.");
    fields.Shown("enabled", privilege.enabled, Flag{}, "Whether it is enabled.");
    fields.AfterReading([&](const Value& place) { CompletePrivilege(place, privilege); });
}

void Describe(Fields& fields, Program& program)
{
    fields.Record("A program that can be started.");
    fields.Required("path", program.path, kPath, kPathText);
    fields.Shown("milliseconds", program.milliseconds, OrNull{Whole{}},
                 "How many milliseconds it runs, or null: until it is ended; 1000 if left out.");
    fields.Shown("exitCode", program.exitCode, Whole{}, kExitCodeText);
}

void Describe(Fields& fields, RunningProcess& process)
{
    fields.Record("A process that runs.");
    fields.Required("id", process.id, Whole{1}, "The number by which it is known.");
    fields.Required("path", process.path, kPath, kPathText);
    fields.Shown("milliseconds", process.milliseconds, OrNull{Whole{}},
                 "How many milliseconds it still runs, or null: until it is ended; null if left out.");
    fields.Shown("exitCode", process.exitCode, Whole{}, kExitCodeText);
    fields.Shown("foreign", process.foreign, Flag{},
                 "Whether it belongs to another user, so that opening it takes SeDebugPrivilege.");
}

void Describe(Fields& fields, Scenario& scenario)
{
    std::string schema;
    fields.Record("A simulated computer, its wireless adapters and the access points around it.");
    fields.Optional("$schema", schema, Text{}, "Where an editor finds this schema.");
    fields.Shown("description", scenario.description, Text{}, "What the scenario is for, in a sentence or two.");
    fields.Shown("codePage", scenario.codePage, Among<std::uint32_t>{{1252, 932, 936, 65001}},
                 "The active narrow code page: 1252, 932, 936 or 65001.");
    fields.Shown("service", scenario.serviceRunning, OneOf<bool>{kServiceNames},
                 "The WLAN service, running or stopped.");
    fields.Shown("locationConsent", scenario.locationConsent, Flag{},
                 "Whether programs may learn where the computer is. Without it the service refuses scans, network "
                 "lists and the current connection.");
    fields.Optional("administrator", scenario.administrator, Flag{},
                    "Whether programs run with an administrator's rights. Without them the service's security settings "
                    "cannot be changed.");
    fields.Optional("powerSetting", scenario.powerSetting, OneOf<std::uint32_t>{kPowerSettingNames},
                    "How much power the service saves: none, low, medium or maximum.");
    fields.Optional("power", scenario.power, Nested<PowerDescription>{});
    fields.Optional("tokens", scenario.tokens, Flag{},
                    "Whether the platform has tokens and privileges. Without them the operations on tokens are "
                    "missing, and nobody needs a privilege.");
    fields.Optional(
        "privileges", scenario.privileges,
        ListOf<Privilege>{.most = 64, .key = "name", .identity = [](const Privilege& each) { return each.name; }},
        "The privileges that the programs' token holds; SeShutdownPrivilege, SeUndockPrivilege, "
        "SeIncreaseWorkingSetPrivilege and SeTimeZonePrivilege, disabled, and SeChangeNotifyPrivilege, "
        "enabled, if left out.");
    fields.Optional("programPath", scenario.programPath, Text{32767},
                    "The path of the program that uses the computer.");
    fields.Optional("wow64", scenario.wow64, OrNull{Flag{}},
                    "Whether that program is a 32-bit one on a 64-bit system; false if left out, null: the platform "
                    "cannot be asked.");
    fields.Optional("programs", scenario.programs,
                    ListOf<Program>{.most = 1024,
                                    .key = "path",
                                    .identity = [](const Program& each) { return LowerCase(each.path); }},
                    "The programs that can be started; none if left out.");
    fields.Optional(
        "processes", scenario.processes,
        ListOf<RunningProcess>{
            .most = 1024, .key = "id", .identity = [](const RunningProcess& each) { return std::to_string(each.id); }},
        "The processes that run when the scenario begins, beside the program that uses the computer; none "
        "if left out.");
    fields.Optional("internet", scenario.internet, OneOf<InternetAccess>{kInternetNames},
                    "What becomes of an attempt to reach the internet: reachable, unresolved (names cannot be "
                    "resolved) or unreachable (nothing answers). It does not depend on the adapters.");
    fields.Shown(
        "adapters", scenario.adapters,
        ListOf<AdapterDescription>{
            .most = 64, .key = "guid", .identity = [](const AdapterDescription& each) { return LowerCase(each.guid); }},
        "The wireless adapters, in the service's order; none if left out.");
    fields.Shown("accessPoints", scenario.accessPoints,
                 ListOf<AccessPoint>{.most = 4096,
                                     .key = "bssid",
                                     .identity = [](const AccessPoint& each)
                                     { return forms::AddressText(each.bssid, forms::Letters::lower); }},
                 "What is in the air; nothing if left out.");
}

} // namespace calvix::simulation
