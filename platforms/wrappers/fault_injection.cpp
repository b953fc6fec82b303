#include "wrappers/fault_injection.h"

namespace calvix::wrappers
{

void FaultInjection::Fail(std::string operation, Fault fault)
{
    const std::lock_guard lock(m_mutex);
    m_rules.push_back({std::move(operation), fault});
}

void FaultInjection::FailWhen(Predicate predicate)
{
    const std::lock_guard lock(m_mutex);
    m_predicates.push_back(std::move(predicate));
}

void FaultInjection::Clear()
{
    const std::lock_guard lock(m_mutex);
    m_rules.clear();
    m_predicates.clear();
    m_injected = 0;
}

unsigned FaultInjection::Injected() const
{
    const std::lock_guard lock(m_mutex);
    return m_injected;
}

bool FaultInjection::WantsArguments() const
{
    const std::lock_guard lock(m_mutex);
    return !m_predicates.empty();
}

std::optional<DWORD> FaultInjection::Before(const Call& call)
{
    const std::optional<DWORD> error = ErrorFor(call);
    if (error)
    {
        const std::lock_guard lock(m_mutex);
        ++m_injected;
    }
    return error;
}

bool FaultInjection::Rule::Applies(const Call& call)
{
    if (call.operation != operation)
        return false;
    ++seen;
    return seen >= fault.fromCall && seen - fault.fromCall < fault.times;
}

std::optional<DWORD> FaultInjection::ErrorFor(const Call& call)
{
    std::optional<DWORD> error;
    std::vector<Predicate> predicates;
    {
        const std::lock_guard lock(m_mutex);
        for (Rule& rule : m_rules)
            if (rule.Applies(call) && !error)
                error = rule.fault.error;
        predicates = m_predicates;
    }
    // Outside the lock: what a predicate does may lead to further calls.
    for (const Predicate& predicate : predicates)
    {
        const std::optional<DWORD> own = predicate(call);
        if (!error)
            error = own;
    }
    return error;
}

} // namespace calvix::wrappers
