#pragma once

#include "operations/roles.h"

#include <mutex>
#include <utility>
#include <vector>

namespace calvix::wrappers
{

using operations::HandleFamily;

/// Small numbers in place of handle values, in the order in which a family's handles are first passed to an
/// operation, so that descriptions do not differ from run to run.
class HandleNumbers
{
public:
    int NumberOf(HandleFamily family, const void* handle);

private:
    std::mutex m_mutex;
    std::vector<std::pair<HandleFamily, const void*>> m_known;
};

} // namespace calvix::wrappers
