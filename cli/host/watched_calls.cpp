#include "host/watched_calls.h"

#include "output/text_forms.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

using operations::Facility;

bool IsOfSystem(Facility facility)
{
    return facility == Facility::power || facility == Facility::security || facility == Facility::processes ||
           facility == Facility::internet;
}

} // namespace

void WatchedCalls::After(const wrappers::Call& call, long long result)
{
    const operations::Facts& operation = *call.facts;
    if (!operations::HasFailed(operation.fails, result))
        return;
    if (operation.facility == Facility::wlan)
        m_serviceRefusal = {std::string(call.operation), static_cast<std::uint32_t>(result)};
    if (!IsOfSystem(operation.facility))
        return;
    const bool givesError = operations::ReturnsError(operation.fails);
    const auto error = static_cast<std::uint32_t>(givesError ? static_cast<DWORD>(result) : m_errors.GetLastError());
    m_systemRefusals.push_back({std::string(call.operation), error, 0, true});
}

void WatchedCalls::NoteConnect(const GUID* adapter, const WLAN_CONNECTION_PARAMETERS* parameters, DWORD error)
{
    ConnectRequest& request = m_requests.emplace_back();
    request.error = static_cast<std::uint32_t>(error);
    if (adapter != nullptr)
        request.adapter = *adapter;
    if (parameters == nullptr)
        return;
    request.bssType = parameters->dot11BssType;
    if (parameters->strProfile != nullptr)
        request.profile = parameters->strProfile;
    const DOT11_BSSID_LIST* const desired = parameters->pDesiredBssidList;
    if (desired != nullptr && desired->uNumOfEntries > 0)
        request.accessPoint = MacText(desired->BSSIDs[0]);
}

void WatchedCalls::Forget()
{
    m_serviceRefusal = {};
    m_systemRefusals.clear();
    m_requests.clear();
}

Refusal WatchedCalls::OfSystem(std::string_view operation) const
{
    const auto found = std::ranges::find(m_systemRefusals, operation, &Refusal::operation);
    return found != m_systemRefusals.end() ? *found : Refusal{};
}

} // namespace calvix::host
