#include "wrappers/intercepted_platform.h"

#include "operations/answered.h"
#include "wrappers/argument_texts.h"

#include <optional>
#include <type_traits>

namespace calvix::wrappers
{

namespace
{

constexpr long long kNone = -1;

template <typename Description>
constexpr bool isLastError = std::is_same_v<typename Description::Facility, platform::LastError>;

} // namespace

InterceptedPlatform::InterceptedPlatform(platform::Platform& inner, Interceptor& interceptor)
    : Platform(operations::AnsweredBy(*this)), m_inner(inner), m_interceptor(interceptor), m_lastError(kNone)
{
}

template <typename Description, typename... Arguments>
typename Description::Result InterceptedPlatform::Answer(const Description& operation, Arguments... arguments)
{
    using Result = typename Description::Result;
    const Call call = CallOf(operation, arguments...);
    const std::optional<DWORD> error = m_interceptor.Before(call);
    if constexpr (std::is_void_v<Result>)
    {
        m_lastError = kNone;
        (m_inner.*Description::member)(arguments...);
        m_interceptor.After(call, 0);
    }
    else
    {
        const Result result = error && operation.fails != operations::Fails::never ? Fail<Result>(operation, *error)
                                                                                   : Forward(operation, arguments...);
        m_interceptor.After(call, operations::AsNumber(result));
        return result;
    }
}

template <typename Description, typename... Arguments>
Call InterceptedPlatform::CallOf(const Description& operation, const Arguments&... arguments)
{
    Call call{operation.name, {}, &operation};
    if (!m_interceptor.WantsArguments())
        return call;
    call.arguments.reserve(sizeof...(arguments));
    operations::ForEachArgument(
        operation, operations::Row<const Arguments&...>(arguments...),
        [&](const auto& role, const auto& argument, const auto& place) {
            call.arguments.push_back({role.name, ArgumentText(role, argument, place, m_numbers)});
        });
    return call;
}

template <typename Description, typename... Arguments>
typename Description::Result InterceptedPlatform::Forward(const Description&, Arguments... arguments)
{
    const long long error = m_lastError;
    if constexpr (isLastError<Description>)
    {
        if (error != kNone)
            return static_cast<DWORD>(error);
    }
    else
        m_lastError = kNone;
    return (m_inner.*Description::member)(arguments...);
}

template <typename Result, typename Description>
Result InterceptedPlatform::Fail(const Description& operation, DWORD error)
{
    if constexpr (!isLastError<Description>)
        m_lastError = operations::ReturnsError(operation.fails) ? kNone : static_cast<long long>(error);
    return operations::FailedResult<Result>(operation.fails, error);
}

} // namespace calvix::wrappers
