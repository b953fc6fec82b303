#pragma once

#include "wrappers/handle_numbers.h"

#include <cstddef>
#include <map>
#include <memory>
#include <mutex>

namespace calvix::recording
{

/// Handles and blocks of memory that calls hand out and take back. Recordings know them by numbers: handles of each
/// family in the order in which they first come up, blocks in the order in which they are handed out. Any thread may
/// call any member.
class Holdings
{
public:
    enum class Source
    {
        platform, ///< handles and blocks are those of another platform
        recording ///< they are invented here, from the numbers
    };

    explicit Holdings(Source source) : m_source(source) {}

    /// 0 is null, -1 the pseudo handle of the calling process.
    int NumberOf(wrappers::HandleFamily family, const void* handle);
    void* HandleOf(wrappers::HandleFamily family, int number) const;

    /// A block that another platform has handed out.
    int Keep(const void* block);
    /// A new block of zeroes, and its number.
    void* Make(std::size_t size);
    /// 0 is null, -1 a block that was never handed out.
    int NumberOfBlock(const void* block) const;
    /// After this the block is known no more, and gone if it was made here.
    void Release(const void* block);

private:
    struct alignas(std::max_align_t) Cell
    {
        std::byte bytes[sizeof(std::max_align_t)];
    };

    Source m_source;
    wrappers::HandleNumbers m_handles;
    mutable std::mutex m_mutex;
    int m_lastBlock = 0;
    std::map<const void*, int> m_blocks;
    std::map<const void*, std::unique_ptr<Cell[]>> m_made;
};

} // namespace calvix::recording
