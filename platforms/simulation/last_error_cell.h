#pragma once

#include <calvix/platform_records.h>

#include <map>
#include <mutex>
#include <thread>

namespace calvix::simulation
{

/// The last error, which every thread has for itself.
class LastErrorCell
{
public:
    LastErrorCell& operator=(DWORD error)
    {
        const std::lock_guard lock(m_mutex);
        m_errors[std::this_thread::get_id()] = error;
        return *this;
    }

    operator DWORD() const
    {
        const std::lock_guard lock(m_mutex);
        const auto known = m_errors.find(std::this_thread::get_id());
        return known != m_errors.end() ? known->second : 0;
    }

private:
    mutable std::mutex m_mutex;
    std::map<std::thread::id, DWORD> m_errors;
};

} // namespace calvix::simulation
