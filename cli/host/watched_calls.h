#pragma once

#include "explain/failure_words.h"
#include "platform/platform.h"
#include "wrappers/interceptor.h"

#include <cstdint>
#include <string>
#include <string_view>
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

/// Remembers what was refused and what was asked to be connected: the library's own codes say which step failed, not what
/// the platform answered.
class WatchedCalls final : public wrappers::Interceptor
{
public:
    /// `errors` has the error of an operation that does not return it, and outlives this object.
    explicit WatchedCalls(platform::LastError& errors) : m_errors(errors) {}

    void After(const wrappers::Call& call, long long result) override;
    /// Notes a request, which the service may have refused.
    void NoteConnect(const GUID* adapter, const WLAN_CONNECTION_PARAMETERS* parameters, DWORD error);
    /// Why the profile was refused that has just been.
    void NoteProfileReason(DWORD reasonCode) { m_serviceRefusal.reasonCode = reasonCode; }
    /// Forgets everything so far.
    void Forget();

    /// What the WLAN service refused last; empty: nothing.
    const Refusal& LastOfService() const { return m_serviceRefusal; }
    /// The same of the rest of the operating system. The answer no is not a refusal.
    Refusal LastOfSystem() const { return m_systemRefusals.empty() ? Refusal{} : m_systemRefusals.back(); }
    /// The system's first refusal of an operation, empty if there was none.
    Refusal OfSystem(std::string_view operation) const;
    const std::vector<ConnectRequest>& ConnectRequests() const { return m_requests; }

private:
    platform::LastError& m_errors;
    Refusal m_serviceRefusal;
    std::vector<Refusal> m_systemRefusals;
    std::vector<ConnectRequest> m_requests;
};

} // namespace calvix::host
