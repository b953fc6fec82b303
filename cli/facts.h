#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace calvix::host
{

/// What the commands found out, ready to be shown as a table or as JSON. Texts are UTF-8; an SSID stands there twice,
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

struct ScanFacts
{
    bool completed = false;
    unsigned milliseconds = 0; ///< waited
    std::size_t accessPoints = 0;
};

struct MatchFacts
{
    std::vector<std::string> profiles; ///< of the networks in view, one for each
    std::vector<AccessPointFacts> accessPoints;
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

struct BestFacts
{
    std::vector<CandidateFacts> candidates;
    StatusFacts status;
};

/// "joined", "refused", "accepted", "not tried"
const char* OutcomeText(Outcome outcome);

} // namespace calvix::host
