#pragma once

#include <calvix/platform_records.h>

#include <atomic>
#include <cstdint>
#include <map>
#include <mutex>

namespace calvix::simulation
{

/// The last error, which every thread has for itself.
class LastErrorCell
{
public:
    LastErrorCell& operator=(DWORD error)
    {
        const std::lock_guard lock(m_mutex);
        m_errors[ThisThread()] = error;
        return *this;
    }

    DWORD GetLastError()
    {
        const std::lock_guard lock(m_mutex);
        const auto known = m_errors.find(ThisThread());
        return known != m_errors.end() ? known->second : 0;
    }

private:
    /// A number of its own for each thread. The system's identities will not do: a new thread may get that of one that
    /// has ended, and would find its error.
    static std::uint64_t ThisThread()
    {
        static std::atomic<std::uint64_t> latest{0};
        thread_local const std::uint64_t number = ++latest;
        return number;
    }

    std::mutex m_mutex;
    std::map<std::uint64_t, DWORD> m_errors;
};

} // namespace calvix::simulation
