#include "measure/allocation_count.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace
{

std::atomic<std::size_t> g_allocations{0};

} // namespace

std::size_t calvix::benchmarks::AllocationCount()
{
    return g_allocations.load(std::memory_order_relaxed);
}

void* operator new(std::size_t size)
{
    g_allocations.fetch_add(1, std::memory_order_relaxed);
    if (void* const block = std::malloc(size != 0 ? size : 1))
        return block;
    throw std::bad_alloc();
}

void operator delete(void* block) noexcept
{
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    std::free(block);
}
