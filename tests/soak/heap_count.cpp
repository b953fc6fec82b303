#include "soak/heap_count.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace
{

std::atomic<std::int64_t> g_liveBlocks{0};

void* Counted(void* memory)
{
    if (memory == nullptr)
        throw std::bad_alloc();
    g_liveBlocks.fetch_add(1, std::memory_order_relaxed);
    return memory;
}

void Release(void* memory) noexcept
{
    if (memory == nullptr)
        return;
    g_liveBlocks.fetch_sub(1, std::memory_order_relaxed);
    std::free(memory);
}

} // namespace

std::uint64_t calvix::test::soak::LiveHeapBlocks()
{
    return static_cast<std::uint64_t>(g_liveBlocks.load());
}

// The other forms of the standard library end in these, but a sanitizer brings its own for those that are not replaced,
// and compares the pairs.
void* operator new(std::size_t size)
{
    return Counted(std::malloc(size != 0 ? size : 1));
}

void* operator new[](std::size_t size)
{
    return operator new(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    void* const memory = std::malloc(size != 0 ? size : 1);
    if (memory != nullptr)
        g_liveBlocks.fetch_add(1, std::memory_order_relaxed);
    return memory;
}

void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept
{
    return operator new(size, tag);
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
