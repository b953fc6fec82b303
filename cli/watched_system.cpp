#include "watched_system.h"

#include "platform/records/error_numbers.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

bool BeginsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

/// The operations whose result is their error.
bool GivesItsError(std::string_view operation)
{
    return BeginsWith(operation, "Power") || operation == "CallNtPowerInformation";
}

/// The operations whose zero is an answer, or that have nothing to say.
bool CannotBeRefused(std::string_view operation)
{
    return BeginsWith(operation, "Is") || operation == "LocalFree" || operation == "GetCurrentProcess";
}

} // namespace

void SystemRefusals::After(const wrappers::Call& call, long long result)
{
    if (CannotBeRefused(call.operation))
        return;
    const bool isWait = call.operation == "WaitForSingleObject";
    const bool givesError = GivesItsError(call.operation);
    const auto number = static_cast<std::uint32_t>(result);
    const bool refused = isWait ? number == static_cast<std::uint32_t>(WAIT_FAILED) : (number != 0) == givesError;
    if (!refused)
        return;
    const std::uint32_t error = givesError ? number : static_cast<std::uint32_t>(m_errors.GetLastError());
    m_refusals.push_back({std::string(call.operation), error, 0, true});
}

Refusal SystemRefusals::Of(std::string_view operation) const
{
    const auto found = std::find_if(m_refusals.begin(), m_refusals.end(),
                                    [operation](const Refusal& each) { return each.operation == operation; });
    return found != m_refusals.end() ? *found : Refusal{};
}

} // namespace calvix::host
