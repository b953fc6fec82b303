#pragma once

#include "wrappers/intercepted_wlan_service.h"
#include "wrappers/interceptor.h"

#include <cstdint>
#include <string>
#include <vector>

namespace calvix::host
{

/// An operation that the WLAN service, or the rest of the system, refused.
struct Refusal
{
    std::string operation; ///< empty: none was
    std::uint32_t error = 0;
    DWORD reasonCode = 0;  ///< of a refused profile, 0 otherwise
    bool bySystem = false; ///< not by the WLAN service
};

/// A connection that was asked for.
struct ConnectRequest
{
    GUID adapter{};
    std::wstring profile;
    std::string accessPoint; ///< the one that was asked for, "02:..."; empty: any
    DOT11_BSS_TYPE bssType = dot11_BSS_type_any;
    std::uint32_t error = 0; ///< 0: accepted
};

/// Notes which operation was refused last.
class RefusalNotes final : public wrappers::Interceptor
{
public:
    void After(const wrappers::Call& call, long long result) override;

    Refusal last;
};

/// What a watched service stands on; a base, so that it is there before the service.
struct WatchedCalls
{
    RefusalNotes notes;
    wrappers::InterceptionPoint point{notes};
};

/// Forwards every operation and remembers what was refused and what was asked to be connected: the library's own codes
/// say which step failed, not what the service answered.
class WatchedWlan final : private WatchedCalls, public wrappers::InterceptedWlanService
{
public:
    explicit WatchedWlan(platform::WlanService& inner) : InterceptedWlanService(inner, point) {}

    const Refusal& LastRefusal() const { return notes.last; }
    const std::vector<ConnectRequest>& ConnectRequests() const { return m_requests; }
    /// Forgets what was refused and asked for so far.
    void StartWatching();
    /// While rehearsing, connection requests are noted and refused, and never reach the service: what is left to ask
    /// for after a refusal comes to light without anything being joined. Profiles are not moved either, though the
    /// library is told that they were.
    void Rehearse(bool rehearsing) { m_rehearsing = rehearsing; }

    DWORD WlanSetProfile(HANDLE client,
                         const GUID* interfaceGuid,
                         DWORD flags,
                         const wchar_t* xml,
                         const wchar_t* allUserProfileSecurity,
                         BOOL overwrite,
                         PVOID reserved,
                         DWORD* reasonCode) override;
    DWORD WlanSetProfilePosition(
        HANDLE client, const GUID* interfaceGuid, const wchar_t* profileName, DWORD position, PVOID reserved) override;
    DWORD WlanConnect(HANDLE client,
                      const GUID* interfaceGuid,
                      const WLAN_CONNECTION_PARAMETERS* parameters,
                      PVOID reserved) override;

private:
    bool m_rehearsing = false;
    std::vector<ConnectRequest> m_requests;
};

} // namespace calvix::host
