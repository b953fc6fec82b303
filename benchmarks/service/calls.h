#pragma once

#include <array>
#include <cstddef>

namespace calvix::benchmarks
{

/// The platform's operations as far as a benchmark's two sides must agree on them, some by the dozen.
enum class Operation
{
    openHandle,
    closeHandle,
    enumInterfaces,
    scan,
    networkList,
    bssList,
    queryInterface,
    setInterface,
    queryParameter,
    profileList,
    profileText,
    setProfile,
    deleteProfile,
    setPosition,
    connect,
    disconnect,
    registerNotification,
    ihvControl,
    securitySettings,
    reasonText,
    freeMemory,
    services,
    power,
    security,
    processes,
    internet,
    text,
    sleep,
    time,
    lastError,
    count
};

/// How often each operation was called.
using CallCounts = std::array<unsigned, static_cast<std::size_t>(Operation::count)>;

inline CallCounts g_calls{};

inline void Count(Operation operation)
{
    ++g_calls[static_cast<std::size_t>(operation)];
}

} // namespace calvix::benchmarks
