#include "support/allocation_counter.h"

#include <atomic>
#include <cstdlib>
#include <new>
#ifdef _WIN32
#include <malloc.h>
#endif

namespace
{

thread_local std::size_t t_allocations = 0;
thread_local int t_pauses = 0;
thread_local calvix::test::AllocationFailure* t_failure = nullptr;
std::atomic<std::ptrdiff_t> g_heldBlocks = 0;

} // namespace

// Those of clang's thread sanitizer cannot be replaced: nothing is counted there.
#ifndef CALVIX_THREAD_SANITIZER

namespace
{

/// Counts an allocation. Whether it is one that is to fail.
bool IsRefused() noexcept
{
    if (t_pauses != 0)
        return false;
    ++t_allocations;
    return t_failure != nullptr && t_failure->Refuses();
}

void* Held(void* memory) noexcept
{
    if (memory != nullptr)
        ++g_heldBlocks;
    return memory;
}

void* Allocate(std::size_t size) noexcept
{
    if (IsRefused())
        return nullptr;
    return Held(std::malloc(size != 0 ? size : 1));
}

void* Allocate(std::size_t size, std::align_val_t alignment) noexcept
{
    if (IsRefused())
        return nullptr;
    const auto boundary = static_cast<std::size_t>(alignment);
#ifdef _WIN32
    return Held(_aligned_malloc(size != 0 ? size : 1, boundary));
#else
    const std::size_t rounded = (size + boundary - 1) / boundary * boundary;
    return Held(std::aligned_alloc(boundary, rounded != 0 ? rounded : boundary));
#endif
}

void* OrThrow(void* memory)
{
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

void Release(void* memory) noexcept
{
    if (memory != nullptr)
        --g_heldBlocks;
    std::free(memory);
}

void ReleaseAligned(void* memory) noexcept
{
    if (memory != nullptr)
        --g_heldBlocks;
#ifdef _WIN32
    _aligned_free(memory);
#else
    std::free(memory);
#endif
}

} // namespace

// All forms are replaced, because a sanitizer brings its own for those that are not, and compares the pairs.
void* operator new(std::size_t size)
{
    return OrThrow(Allocate(size));
}
void* operator new[](std::size_t size)
{
    return OrThrow(Allocate(size));
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return Allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return Allocate(size);
}
void* operator new(std::size_t size, std::align_val_t alignment)
{
    return OrThrow(Allocate(size, alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment)
{
    return OrThrow(Allocate(size, alignment));
}
void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept
{
    return Allocate(size, alignment);
}
void* operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept
{
    return Allocate(size, alignment);
}

void operator delete(void* memory) noexcept
{
    Release(memory);
}
void operator delete[](void* memory) noexcept
{
    Release(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    Release(memory);
}
void operator delete[](void* memory, std::size_t) noexcept
{
    Release(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    Release(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept
{
    Release(memory);
}
void operator delete(void* memory, std::align_val_t) noexcept
{
    ReleaseAligned(memory);
}
void operator delete[](void* memory, std::align_val_t) noexcept
{
    ReleaseAligned(memory);
}
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept
{
    ReleaseAligned(memory);
}
void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept
{
    ReleaseAligned(memory);
}
void operator delete(void* memory, std::align_val_t, const std::nothrow_t&) noexcept
{
    ReleaseAligned(memory);
}
void operator delete[](void* memory, std::align_val_t, const std::nothrow_t&) noexcept
{
    ReleaseAligned(memory);
}

#endif

namespace calvix::test
{

AllocationCounter::AllocationCounter() : m_start(t_allocations) {}

std::size_t AllocationCounter::Count() const
{
    return t_allocations - m_start;
}

std::ptrdiff_t HeldHeapBlocks()
{
    return g_heldBlocks;
}

AllocationFailure::AllocationFailure(std::size_t from, std::size_t times) : m_from(from), m_times(times)
{
    t_failure = this;
}

AllocationFailure::~AllocationFailure()
{
    t_failure = nullptr;
}

bool AllocationFailure::Refuses()
{
    ++m_seen;
    const bool refused = m_seen >= m_from && m_seen - m_from < m_times;
    if (refused)
        ++m_refused;
    return refused;
}

AllocationPause::AllocationPause()
{
    ++t_pauses;
}

AllocationPause::~AllocationPause()
{
    --t_pauses;
}

std::optional<DWORD> PlatformCallsUncounted::Before(const wrappers::Call&)
{
    ++t_pauses;
    return std::nullopt;
}

void PlatformCallsUncounted::After(const wrappers::Call&, long long)
{
    --t_pauses;
}

} // namespace calvix::test
