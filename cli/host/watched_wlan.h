#pragma once

#include "explain/failure_words.h"
#include "platform/platform.h"
#include "wrappers/interceptor.h"

#include <cstdint>
#include <string>
#include <vector>

namespace calvix::host
{

/// A connection that was asked for.
struct ConnectRequest
{
    GUID adapter{};
    std::wstring profile;
    std::string accessPoint; ///< the one that was asked for, "02:..."; empty: any
    DOT11_BSS_TYPE bssType = dot11_BSS_type_any;
    std::uint32_t error = 0; ///< 0: accepted
};

/// Notes which operation of the WLAN service was refused last.
class RefusalNotes final : public wrappers::Interceptor
{
public:
    void After(const wrappers::Call& call, long long result) override;

    Refusal last;
};

/// Remembers what was refused and what was asked to be connected: the library's own codes say which step failed, not what
/// the service answered.
class WatchedWlan final
{
public:
    /// `notes` sees the calls of the service. Both outlive this object.
    WatchedWlan(platform::WlanService& inner, RefusalNotes& notes) : m_inner(inner), m_notes(notes) {}

    const Refusal& LastRefusal() const { return m_notes.last; }
    const std::vector<ConnectRequest>& ConnectRequests() const { return m_requests; }
    /// Forgets what was refused and asked for so far.
    void StartWatching();
    /// While rehearsing, connection requests are noted and refused, and never reach the service: what is left to ask
    /// for after a refusal comes to light without anything being joined. Profiles are not moved either, though the
    /// library gets success for it.
    void Rehearse(bool rehearsing) { m_rehearsing = rehearsing; }

    DWORD WlanSetProfile(HANDLE client,
                         const GUID* interfaceGuid,
                         DWORD flags,
                         const wchar_t* xml,
                         const wchar_t* allUserProfileSecurity,
                         BOOL overwrite,
                         PVOID reserved,
                         DWORD* reasonCode);
    DWORD WlanSetProfilePosition(
        HANDLE client, const GUID* interfaceGuid, const wchar_t* profileName, DWORD position, PVOID reserved);
    DWORD
    WlanConnect(HANDLE client, const GUID* interfaceGuid, const WLAN_CONNECTION_PARAMETERS* parameters, PVOID reserved);

private:
    platform::WlanService& m_inner;
    RefusalNotes& m_notes;
    bool m_rehearsing = false;
    std::vector<ConnectRequest> m_requests;
};

} // namespace calvix::host
