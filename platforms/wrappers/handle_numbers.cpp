#include "wrappers/handle_numbers.h"

#include <algorithm>

namespace calvix::wrappers
{

int HandleNumbers::NumberOf(HandleFamily family, const void* handle)
{
    const std::lock_guard lock(m_mutex);
    if (std::find(m_known.begin(), m_known.end(), std::pair(family, handle)) == m_known.end())
        m_known.emplace_back(family, handle);
    int number = 0;
    for (const auto& [knownFamily, knownHandle] : m_known)
    {
        number += knownFamily == family ? 1 : 0;
        if (knownFamily == family && knownHandle == handle)
            break;
    }
    return number;
}

} // namespace calvix::wrappers
