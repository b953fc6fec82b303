#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace calvix::host
{

/// What the commands found out, ready to be shown as a table or as JSON. Texts are UTF-8; an SSID is there twice,
/// as people read it and as its bytes in hexadecimal.

struct SsidFacts
{
    std::string text;
    std::string hex;
};

struct AdapterFacts
{
    unsigned number = 0; ///< from 1, as --interface takes it
    std::string guid;
    std::string description;
    unsigned state = 0;
    std::string stateText;
};

struct NetworkFacts
{
    SsidFacts ssid;
    std::string profile; ///< empty: none
    unsigned long quality = 0;
    std::string security;
    std::string bssType;
    std::vector<std::string> phys;
    unsigned long accessPoints = 0;
    bool connected = false;
    bool connectable = true;
    std::string reason; ///< why it is not connectable
};

struct AccessPointFacts
{
    SsidFacts ssid;
    std::string bssid;
    long rssi = 0;
    unsigned quality = 0;
    unsigned long frequencyKhz = 0;
    unsigned channel = 0; ///< as people number it
    std::string band;
    std::string phy;
    std::string bssType;
    unsigned beaconPeriod = 0;
};

struct ProfileFacts
{
    unsigned position = 0; ///< from 1, the preferred one first
    std::string name;
    std::string mode; ///< "auto", "manual" or "unknown"
    bool groupPolicy = false;
    bool perUser = false;
};

struct ConnectionFacts
{
    std::string profile;
    std::string mode;
    SsidFacts ssid;
    std::string bssid;
    std::string bssType;
    std::string phy;
    std::string security;
    unsigned long quality = 0;
    std::optional<int> rssi;
    std::optional<long> accessPoints; ///< in view, of the network
    unsigned long receiveKbps = 0;
    unsigned long transmitKbps = 0;
    std::optional<std::uint64_t> framesSent;
    std::optional<std::uint64_t> framesReceived;
};

struct StatusFacts
{
    AdapterFacts adapter;
    std::optional<ConnectionFacts> connection;
};

/// Seconds without use until something happens, 0: never.
struct IdlePolicyFacts
{
    std::uint32_t sleepAfter = 0;
    std::uint32_t displayOffAfter = 0;
};

/// The link at a moment.
struct SignalFacts
{
    std::string state;
    bool connected = false; ///< the rest is known only then
    std::string profile;
    SsidFacts ssid;
    std::string bssid;
    unsigned long quality = 0;
    std::optional<int> rssi;
};

/// A notification of the service.
struct NoticeFacts
{
    unsigned code = 0;
    std::string name;
    std::string profile;
    SsidFacts ssid;
    std::uint32_t reasonCode = 0;
    std::string reason; ///< empty with reason code 0
};

/// What a scenario holds, in numbers.
struct ScenarioCounts
{
    std::size_t adapters = 0;
    std::size_t accessPoints = 0;
    std::size_t networks = 0; ///< as the first adapter lists them
    std::size_t hidden = 0;   ///< access points that keep their name to themselves
    std::size_t profiles = 0;
};

/// The result of an import.
struct ImportFacts
{
    ScenarioCounts counts;
    std::vector<std::string> warnings;
    std::string output; ///< the file written
};

/// The result of roaming.
struct RoamFacts
{
    int code = 0;
    std::string decision; ///< "roam", "stay", or "none" where the library could not decide
    std::string why;
    std::string from;
    std::string to;
};

enum class Outcome
{
    notTried,
    refused,
    accepted, ///< asked for, but not made
    joined
};

struct CandidateFacts
{
    unsigned order = 0; ///< from 1, in the order of being asked
    std::string profile;
    SsidFacts ssid;
    unsigned long quality = 0;
    unsigned fiveGhz = 0; ///< access points that earned the bonus
    unsigned long bonus = 0;
    unsigned long score = 0;
    Outcome outcome = Outcome::notTried;
    std::uint32_t error = 0; ///< of a refused request
};

/// By Outcome.
inline constexpr const char* kOutcomeTexts[] = {"not tried", "refused", "accepted", "joined"};
inline const char* OutcomeText(Outcome outcome)
{
    return kOutcomeTexts[static_cast<std::size_t>(outcome)];
}

enum class Verdict
{
    ok,
    warning, ///< works, but not as well as it could
    failed
};

/// One thing that the doctor looked at.
struct CheckFacts
{
    unsigned adapter = 0; ///< as AdapterFacts numbers it; 0: it is about the computer
    std::string check;    ///< "WLAN service"
    Verdict verdict = Verdict::ok;
    std::string finding;
    std::string advice; ///< what to do about it; empty where it is ok
};

/// By Verdict.
inline constexpr const char* kVerdictTexts[] = {"ok", "warning", "failed"};
inline const char* VerdictText(Verdict verdict)
{
    return kVerdictTexts[static_cast<std::size_t>(verdict)];
}

} // namespace calvix::host
