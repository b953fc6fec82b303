#pragma once

#include "explain/result_codes.h"

#include <stdexcept>
#include <string>

namespace calvix::test
{

/// The code of the first cause of its kind in a method's table, which a test compares with the header. For tests that are
/// about something else than the code.
template <typename IsCause>
int CodeWhere(const std::string& method, IsCause isCause)
{
    const host::MethodResults* const results = host::FindMethod(method);
    for (const host::CodeRow& row : results != nullptr ? results->codes : std::span<const host::CodeRow>())
        if (isCause(row.cause))
            return row.code;
    throw std::logic_error(method + " has no code for this cause");
}

inline int CodeOf(const std::string& method, host::Cause cause)
{
    return CodeWhere(method, [cause](host::Cause other) { return other == cause; });
}

/// The same for a platform operation that is refused.
inline int CodeOf(const std::string& method, const std::string& operation)
{
    return CodeWhere(method,
                     [&operation](host::Cause cause)
                     {
                         const char* const refused = host::Describe(cause).operation;
                         return refused != nullptr && refused == operation;
                     });
}

} // namespace calvix::test
