#pragma once

#include "platform/platform.h"
#include "wrappers/handle_numbers.h"
#include "wrappers/interceptor.h"

#include <atomic>

namespace calvix::wrappers
{

/// A provider that forwards every call to `inner` and lets an interceptor see it and fail it. Both stay the caller's
/// and outlive this object. Calls nothing but the interceptor, and allocates nothing unless that wants arguments.
///
/// How a failure shows depends on the operation: one that returns an error number (or an NTSTATUS) returns it; one that
/// returns FALSE, null or no characters does that, and GetLastError answers with the error until any other operation is
/// called. Outputs stay as they were. GetCurrentProcess and the operations without a result cannot fail.
class InterceptedPlatform final : public platform::Platform
{
public:
    InterceptedPlatform(platform::Platform& inner, Interceptor& interceptor);
    InterceptedPlatform(const InterceptedPlatform&) = delete;
    InterceptedPlatform& operator=(const InterceptedPlatform&) = delete;

    /// Where each of the operations arrives.
    template <typename Description, typename... Arguments>
    typename Description::Result Answer(const Description& operation, Arguments... arguments);

private:
    template <typename Description, typename... Arguments>
    Call CallOf(const Description& operation, const Arguments&... arguments);

    template <typename Description, typename... Arguments>
    typename Description::Result Forward(const Description& operation, Arguments... arguments);

    template <typename Result, typename Description>
    Result Fail(const Description& operation, DWORD error);

    platform::Platform& m_inner;
    Interceptor& m_interceptor;
    HandleNumbers m_numbers;
    std::atomic<long long> m_lastError; ///< what a failure left, or kNone
};

} // namespace calvix::wrappers
