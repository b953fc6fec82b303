#include "simulation/blocks.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>

#ifdef CALVIX_ADDRESS_SANITIZER
#include <sanitizer/asan_interface.h>
#endif

namespace calvix::simulation
{

namespace
{

constexpr unsigned char freedPattern = 0xdd;
constexpr std::size_t mostFreedBlocks = 4096;
constexpr std::size_t mostFreedBytes = std::size_t{16} * 1024 * 1024;

// The sanitizer stops the program at the very read or write of a freed block; without it a write shows later, by
// the pattern.
void Forbid([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t size)
{
#ifdef CALVIX_ADDRESS_SANITIZER
    __asan_poison_memory_region(memory, size);
#endif
}

void Permit([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t size)
{
#ifdef CALVIX_ADDRESS_SANITIZER
    __asan_unpoison_memory_region(memory, size);
#endif
}

bool HoldsPattern(const void* memory, std::size_t size)
{
    const auto* const bytes = static_cast<const unsigned char*>(memory);
    return bytes[0] == freedPattern && std::memcmp(bytes, bytes + 1, size - 1) == 0;
}

} // namespace

Blocks::Blocks(std::vector<std::string>& defects) : m_defects(defects) {}

Blocks::~Blocks()
{
    while (!m_freed.empty())
        ReleaseOldest();
    for (const auto& live : m_live)
        std::free(live.first);
}

void* Blocks::Allocate(std::size_t size, const char* what)
{
    const std::size_t atLeastOne = std::max<std::size_t>(size, 1);
    void* const memory = std::calloc(1, atLeastOne);
    if (memory == nullptr)
        throw std::bad_alloc();
    m_live.emplace(memory, Block{atLeastOne, what});
    return memory;
}

void Blocks::Free(void* block)
{
    if (block == nullptr)
        return;
    const auto found = m_live.find(block);
    if (found == m_live.end())
    {
        const auto freed = m_freedNames.find(block);
        m_defects.push_back(freed != m_freedNames.end() ? std::string("double free of ") + freed->second
                                                        : std::string("free of a foreign pointer"));
        return;
    }
    std::memset(block, freedPattern, found->second.size);
    Forbid(block, found->second.size);
    m_freed.push_back({block, found->second});
    m_freedBytes += found->second.size;
    m_freedNames.emplace(block, found->second.what);
    m_live.erase(found);
    while (m_freed.size() > 1 && (m_freed.size() > mostFreedBlocks || m_freedBytes > mostFreedBytes))
        ReleaseOldest();
}

void Blocks::CheckFreed()
{
    for (const FreedBlock& freed : m_freed)
        CheckFreed(freed);
}

void Blocks::CheckFreed(const FreedBlock& freed)
{
    Permit(freed.memory, freed.block.size);
    if (!HoldsPattern(freed.memory, freed.block.size))
    {
        m_defects.push_back(std::string("write into freed ") + freed.block.what);
        std::memset(freed.memory, freedPattern, freed.block.size);
    }
    Forbid(freed.memory, freed.block.size);
}

void Blocks::ReleaseOldest()
{
    const FreedBlock oldest = m_freed.front();
    CheckFreed(oldest);
    Permit(oldest.memory, oldest.block.size);
    m_freed.pop_front();
    m_freedNames.erase(oldest.memory);
    m_freedBytes -= oldest.block.size;
    std::free(oldest.memory);
}

} // namespace calvix::simulation
