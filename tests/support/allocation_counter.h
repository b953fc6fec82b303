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

/// Blocks that operator new has allocated and that are not freed yet, in the whole process.
std::ptrdiff_t HeldHeapBlocks();

/// Allocations of the current thread fail while this object lives: `times` of them, from the `from`-th on that would be
/// counted. One at a time.
class AllocationFailure
{
public:
    static constexpr std::size_t kUnlimited = static_cast<std::size_t>(-1);

    explicit AllocationFailure(std::size_t from, std::size_t times = kUnlimited);
    ~AllocationFailure();
    AllocationFailure(const AllocationFailure&) = delete;
    AllocationFailure& operator=(const AllocationFailure&) = delete;

    std::size_t Refused() const { return m_refused; }

    /// Counts the next allocation. Whether it fails.
    bool Refuses();

private:
    std::size_t m_from;
    std::size_t m_times;
    std::size_t m_seen = 0;
    std::size_t m_refused = 0;
};

/// Allocations of the current thread are not counted, and do not fail, while one of these lives.
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
