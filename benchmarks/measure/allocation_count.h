#pragma once

#include <cstddef>

namespace calvix::benchmarks
{

/// Calls of operator new in this program so far. The blocks of the service come from elsewhere and are not counted.
std::size_t AllocationCount();

} // namespace calvix::benchmarks
