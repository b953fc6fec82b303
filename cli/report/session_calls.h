#pragma once

#include "host/service_view.h"

#include <cstdint>
#include <istream>
#include <optional>
#include <string>
#include <vector>

namespace calvix::host
{

/// Which access points a list was asked for.
struct AirQuestion
{
    std::optional<DOT11_SSID> ssid; ///< none: all
    bool secured = false;           ///< known with an SSID only
};

/// Learns what a session got to know about the air, in the order in which it did. Only the last answer to a question
/// holds; what was refused comes as a refusal.
class SessionListener
{
public:
    virtual ~SessionListener() = default;

    /// The session waited.
    virtual void Pass(unsigned milliseconds) = 0;
    virtual void Hear(const std::vector<WLAN_INTERFACE_INFO>& adapters) = 0;
    virtual void
    Hear(const GUID& adapter, const AirQuestion& asked, const std::vector<HeardAccessPoint>& accessPoints) = 0;
    virtual void Hear(const GUID& adapter, const std::vector<WLAN_AVAILABLE_NETWORK>& networks) = 0;
    virtual void Hear(const GUID& adapter, const std::vector<WLAN_PROFILE_INFO>& profiles) = 0;
    virtual void HearProfile(const GUID& adapter, const std::wstring& xml) = 0;
    virtual void ChangeProfiles(const GUID& adapter) = 0;
    virtual void HearConnection(const GUID& adapter, const WLAN_CONNECTION_ATTRIBUTES& attributes) = 0;
    virtual void HearSignal(const GUID& adapter, int rssi) = 0;
    /// A connection was asked for, by an access point's address or without one.
    virtual void AskForConnection(const GUID& adapter, const std::optional<std::string>& bssid) = 0;
    /// The last request made a connection.
    virtual void Connect(const GUID& adapter) = 0;
    /// There is no connection.
    virtual void Disconnect(const GUID& adapter) = 0;
    /// `question`: the operation, and after WlanQueryInterface the number of the opcode. `adapter` is null where
    /// none was named.
    virtual void Refuse(const GUID* adapter, const std::string& question, std::uint32_t error) = 0;
};

/// How Refuse names the question for the current connection.
inline constexpr const char* kConnectionQuestion = "WlanQueryInterface 7";

/// What a recording says about itself.
struct SessionTraits
{
    bool simulated = false;
    bool anonymised = false;
    bool complete = false;    ///< it has the session's end
    std::size_t lastLine = 0; ///< that is there
};

/// Reads a recording from its first line to its last; no call is compared with anything. `name` is the file's. What is
/// no recording, or damaged, is a recording::RecordingError.
SessionTraits ListenToSession(std::istream& recording, const std::string& name, SessionListener& listener);

} // namespace calvix::host
