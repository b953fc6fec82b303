#include "wrappers/recording/holdings.h"

#include <calvix/platform_records.h>

#include <cstdint>

namespace calvix::recording
{

using wrappers::HandleFamily;

namespace
{

/// Made-up handles are multiples of this, as real ones often are; the families lie apart.
constexpr std::uintptr_t kHandleStep = 16;
constexpr std::uintptr_t kFamilyStep = 0x1000000;

std::uintptr_t FirstHandle(HandleFamily family)
{
    return (static_cast<std::uintptr_t>(family) + 1) * kFamilyStep;
}

} // namespace

int Holdings::NumberOf(HandleFamily family, const void* handle)
{
    if (handle == nullptr)
        return 0;
    if (handle == INVALID_HANDLE_VALUE)
        return -1;
    if (m_source == Source::platform)
        return m_handles.NumberOf(family, handle);
    return static_cast<int>((reinterpret_cast<std::uintptr_t>(handle) - FirstHandle(family)) / kHandleStep);
}

void* Holdings::HandleOf(HandleFamily family, int number) const
{
    if (number == 0)
        return nullptr;
    if (number < 0)
        return INVALID_HANDLE_VALUE;
    return reinterpret_cast<void*>(FirstHandle(family) + static_cast<std::uintptr_t>(number) * kHandleStep);
}

int Holdings::Keep(const void* block)
{
    const std::lock_guard lock(m_mutex);
    return m_blocks[block] = ++m_lastBlock;
}

void* Holdings::Make(std::size_t size)
{
    auto memory = std::make_unique<Cell[]>(size / sizeof(Cell) + 1);
    void* const block = memory.get();
    {
        const std::lock_guard lock(m_mutex);
        m_made[block] = std::move(memory);
    }
    Keep(block);
    return block;
}

int Holdings::NumberOfBlock(const void* block) const
{
    if (block == nullptr)
        return 0;
    const std::lock_guard lock(m_mutex);
    const auto found = m_blocks.find(block);
    return found != m_blocks.end() ? found->second : -1;
}

void Holdings::Release(const void* block)
{
    const std::lock_guard lock(m_mutex);
    m_blocks.erase(block);
    m_made.erase(block);
}

} // namespace calvix::recording
