#pragma once

#include <cstdint>

namespace calvix::test::soak
{

/// Blocks that `new` gave out and nobody has given back yet, in the whole process.
std::uint64_t LiveHeapBlocks();

} // namespace calvix::test::soak
