#pragma once

#include "result_codes.h"

#include <stdexcept>
#include <string>

namespace calvix::test
{

/// The code that a cause has in a method, by the table that the header is compared with. For tests that are about
/// something else than the code.
inline int CodeOf(const std::string& method, host::Cause cause)
{
    const host::MethodResults* const results = host::FindMethod(method);
    for (const host::CodeRow& row : results != nullptr ? results->codes : std::span<const host::CodeRow>())
    {
        if (row.cause == cause)
            return row.code;
    }
    throw std::logic_error(method + " has no code for this cause");
}

} // namespace calvix::test
