#pragma once

#include "host/watched_wlan.h"
#include "platform/platform.h"

#include <vector>

namespace calvix::host
{

/// Notes what the operating system refused outside its WLAN service. The answer no is not a refusal.
class SystemRefusals final : public wrappers::Interceptor
{
public:
    /// `errors` has the error of an operation that does not return it, and outlives this object.
    explicit SystemRefusals(platform::LastError& errors) : m_errors(errors) {}

    void After(const wrappers::Call& call, long long result) override;

    void Forget() { m_refusals.clear(); }
    /// The last one, empty if there was none.
    Refusal Last() const { return m_refusals.empty() ? Refusal{} : m_refusals.back(); }
    /// The first one of an operation, empty if there was none.
    Refusal Of(std::string_view operation) const;

private:
    platform::LastError& m_errors;
    std::vector<Refusal> m_refusals;
};

} // namespace calvix::host
