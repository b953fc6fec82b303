#pragma once

#include "wrappers/handle_numbers.h"
#include "wrappers/interceptor.h"

#include <atomic>
#include <cstdint>
#include <optional>
#include <type_traits>

namespace calvix::wrappers
{

/// Where all calls of an intercepted platform pass. There is one member per kind of operation, because a failure looks
/// different in each; `forward` makes the call, `arguments` are the types of wrappers/argument_texts.h.
class InterceptionPoint
{
public:
    explicit InterceptionPoint(Interceptor& interceptor) : m_interceptor(interceptor) {}

    /// An operation that returns an error number. A failure leaves its outputs alone.
    template <typename Forward, typename... Arguments>
    DWORD ErrorNumber(std::string_view operation, Forward forward, const Arguments&... arguments)
    {
        m_lastError = kNone;
        return Intercept(Describe(operation, arguments...), forward, [](DWORD error) { return error; });
    }

    /// An operation that returns an NTSTATUS, a signed 32-bit number.
    template <typename Forward, typename... Arguments>
    LONG Status(std::string_view operation, Forward forward, const Arguments&... arguments)
    {
        m_lastError = kNone;
        return Intercept(Describe(operation, arguments...), forward,
                         [](DWORD error) { return static_cast<LONG>(static_cast<std::int32_t>(error)); });
    }

    /// An operation that returns `failed` (FALSE, null, no characters ...) and leaves its reason in GetLastError.
    template <typename Forward, typename Result, typename... Arguments>
    Result Reasoned(std::string_view operation, Result failed, Forward forward, const Arguments&... arguments)
    {
        m_lastError = kNone;
        return Intercept(Describe(operation, arguments...), forward,
                         [this, failed](DWORD error)
                         {
                             m_lastError = static_cast<long long>(error);
                             return failed;
                         });
    }

    /// An operation that cannot fail.
    template <typename Forward, typename... Arguments>
    auto Certain(std::string_view operation, Forward forward, const Arguments&... arguments)
    {
        m_lastError = kNone;
        const Call call = Describe(operation, arguments...);
        m_interceptor.Before(call);
        if constexpr (std::is_void_v<decltype(forward())>)
        {
            forward();
            m_interceptor.After(call, 0);
        }
        else
        {
            const auto result = forward();
            m_interceptor.After(call, AsNumber(result));
            return result;
        }
    }

    /// GetLastError: answers for a failure of the interceptor's, which the next call of any other operation ends.
    template <typename Forward>
    DWORD LastError(Forward forward)
    {
        const auto remembered = [this, &forward]
        {
            const long long error = m_lastError;
            return error != kNone ? static_cast<DWORD>(error) : forward();
        };
        return Intercept(Describe("GetLastError"), remembered, [](DWORD error) { return error; });
    }

private:
    static constexpr long long kNone = -1;

    template <typename... Arguments>
    Call Describe(std::string_view operation, const Arguments&... arguments)
    {
        Call call{operation, {}};
        if (m_interceptor.WantsArguments())
        {
            call.arguments.reserve(sizeof...(arguments));
            (call.arguments.push_back({arguments.name, arguments.Text(m_numbers)}), ...);
        }
        return call;
    }

    template <typename Forward, typename Fail>
    auto Intercept(const Call& call, Forward forward, Fail fail) -> decltype(forward())
    {
        const std::optional<DWORD> error = m_interceptor.Before(call);
        const auto result = error ? fail(*error) : forward();
        m_interceptor.After(call, AsNumber(result));
        return result;
    }

    template <typename Result>
    static long long AsNumber(Result result)
    {
        if constexpr (std::is_pointer_v<Result>)
            return result != nullptr ? 1 : 0;
        else
            return static_cast<long long>(result);
    }

    Interceptor& m_interceptor;
    HandleNumbers m_numbers;
    std::atomic<long long> m_lastError{kNone};
};

} // namespace calvix::wrappers
