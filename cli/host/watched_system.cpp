#include "host/watched_system.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

bool IsWatched(operations::Facility facility)
{
    using operations::Facility;
    return facility == Facility::power || facility == Facility::security || facility == Facility::processes ||
           facility == Facility::internet;
}

/// The operations whose result is their error.
bool GivesItsError(operations::Fails fails)
{
    return fails == operations::Fails::withErrorNumber || fails == operations::Fails::withStatus;
}

} // namespace

void SystemRefusals::After(const wrappers::Call& call, long long result)
{
    const operations::Facts& operation = *call.facts;
    if (!IsWatched(operation.facility) || !operations::HasFailed(operation.fails, result))
        return;
    const bool givesError = GivesItsError(operation.fails);
    const auto error = static_cast<std::uint32_t>(givesError ? static_cast<DWORD>(result) : m_errors.GetLastError());
    m_refusals.push_back({std::string(call.operation), error, 0, true});
}

Refusal SystemRefusals::Of(std::string_view operation) const
{
    const auto found = std::find_if(m_refusals.begin(), m_refusals.end(),
                                    [operation](const Refusal& each) { return each.operation == operation; });
    return found != m_refusals.end() ? *found : Refusal{};
}

} // namespace calvix::host
