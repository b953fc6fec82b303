#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <unordered_map>
#include <vector>

namespace calvix::simulation
{

/// An allocator that knows its blocks. A block is exactly as large as asked for. A freed block is filled with a
/// pattern and kept for a while, so that writes into it are found; releasing it twice, or releasing what is not a
/// block, is noted as a defect and otherwise has no effect.
class Blocks
{
public:
    /// `defects` receives one line for each misuse; it outlives this object.
    explicit Blocks(std::vector<std::string>& defects);
    ~Blocks();
    Blocks(const Blocks&) = delete;
    Blocks& operator=(const Blocks&) = delete;

    /// A zeroed block of `size` bytes, at least one, aligned for any record. `what` names it in defects and is kept
    /// as a pointer: pass a literal.
    void* Allocate(std::size_t size, const char* what);

    /// Releases a block. Null is ignored, as free() does.
    void Free(void* block);

    std::size_t CountLive() const { return m_live.size(); }

    /// Looks for writes into the freed blocks that are still kept; each is noted once.
    void CheckFreed();

private:
    struct Block
    {
        std::size_t size;
        const char* what;
    };
    struct FreedBlock
    {
        void* memory;
        Block block;
    };

    void CheckFreed(const FreedBlock& freed);
    void ReleaseOldest();

    std::vector<std::string>& m_defects;
    std::unordered_map<void*, Block> m_live;
    std::unordered_map<void*, const char*> m_freedNames;
    std::deque<FreedBlock> m_freed;
    std::size_t m_freedBytes = 0;
};

} // namespace calvix::simulation
