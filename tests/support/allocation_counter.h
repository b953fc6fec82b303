#pragma once

#include "wrappers/interceptor.h"

#include <cstddef>

namespace calvix::test
{

/// Heap allocations of the current thread through operator new, from this object's making on.
class AllocationCounter
{
public:
    AllocationCounter();

    std::size_t Count() const;

private:
    std::size_t m_start;
};

/// Allocations of the current thread are not counted while one of these lives.
class AllocationPause
{
public:
    AllocationPause();
    ~AllocationPause();
    AllocationPause(const AllocationPause&) = delete;
    AllocationPause& operator=(const AllocationPause&) = delete;
};

/// Keeps what happens inside platform calls out of the count. Belongs in the outermost interception layer.
class PlatformCallsUncounted final : public wrappers::Interceptor
{
public:
    std::optional<DWORD> Before(const wrappers::Call& call) override;
    void After(const wrappers::Call& call, long long result) override;
};

} // namespace calvix::test
