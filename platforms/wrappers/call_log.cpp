#include "wrappers/call_log.h"

#include <algorithm>

namespace calvix::wrappers
{

std::optional<DWORD> CallLog::Before(const Call& call)
{
    const std::lock_guard lock(m_mutex);
    m_calls.push_back(call);
    return std::nullopt;
}

std::vector<std::string> CallLog::Lines() const
{
    const std::lock_guard lock(m_mutex);
    std::vector<std::string> lines;
    for (const Call& call : m_calls)
        lines.push_back(call.Line());
    return lines;
}

std::vector<std::string> CallLog::Operations() const
{
    const std::lock_guard lock(m_mutex);
    std::vector<std::string> operations;
    for (const Call& call : m_calls)
        operations.emplace_back(call.operation);
    return operations;
}

std::vector<Call> CallLog::Calls() const
{
    const std::lock_guard lock(m_mutex);
    return m_calls;
}

std::size_t CallLog::Count(std::string_view operation) const
{
    const std::lock_guard lock(m_mutex);
    return static_cast<std::size_t>(std::count_if(
        m_calls.begin(), m_calls.end(), [operation](const Call& call) { return call.operation == operation; }));
}

void CallLog::Clear()
{
    const std::lock_guard lock(m_mutex);
    m_calls.clear();
}

} // namespace calvix::wrappers
