#pragma once

#include "operations/answered.h"
#include "wrappers/recording/given_arguments.h"
#include "wrappers/recording/handed_out.h"
#include "wrappers/recording/tape.h"

namespace calvix::recording
{

/// A platform whose calls all pass a tape. `inner` is where they go while recording, and null in a replay.
class TapedPlatform final : public platform::Platform
{
public:
    TapedPlatform(Tape& tape, platform::Platform* inner)
        : Platform(operations::AnsweredBy(*this)), m_tape(tape), m_inner(inner)
    {
    }
    TapedPlatform(const TapedPlatform&) = delete;
    TapedPlatform& operator=(const TapedPlatform&) = delete;

    /// Where each of the operations arrives.
    template <typename Description, typename... Arguments>
    typename Description::Result Answer(const Description& operation, Arguments... arguments)
    {
        const std::tuple<Arguments&...> values(arguments...);
        const std::function<void(Fields&)> give = [&](Fields& fields)
        {
            operations::ForEachArgument(operation, values,
                                        [&](const auto& role, const auto& argument, const auto& place)
                                        { Give(fields, role, argument, place); });
        };
        const auto call = [&]
        {
            operations::ForEachArgument(operation, values,
                                        [&](const auto& role, auto& argument, const auto& place)
                                        { Prepare(m_tape, role, argument, place); });
            return (m_inner->*Description::member)(arguments...);
        };
        if constexpr (std::is_void_v<typename Description::Result>)
            PassWithoutResult(operation, values, give, call);
        else
            return PassWithResult(operation, values, give, call);
    }

private:
    template <typename Description, typename... Values>
    void PassWithoutResult(const Description& operation,
                           const std::tuple<Values&...>& values,
                           const std::function<void(Fields&)>& give,
                           const std::function<void()>& forward)
    {
        int nothing = 0;
        const std::function<void(Fields&)> results = [&](Fields& fields)
        { DescribeHandedOut(operation, values, fields, nothing, forward); };
        if constexpr (std::is_same_v<typename Description::Facility, platform::DebuggerOutput>)
            m_tape.Remark(operation.name, std::get<0>(values), forward);
        else
            m_tape.Pass({operation.name, give, forward, results});
    }

    template <typename Description, typename... Values, typename Call>
    typename Description::Result PassWithResult(const Description& operation,
                                                const std::tuple<Values&...>& values,
                                                const std::function<void(Fields&)>& give,
                                                const Call& call)
    {
        using Result = typename Description::Result;
        const Result noAnswer = NoAnswer<Result>(operation.fails);
        Result result = noAnswer;
        const std::function<void()> forward = [&] { result = call(); };
        const std::function<void(Fields&)> results = [&](Fields& fields)
        {
            DescribeResult(fields, result, values, m_inner);
            DescribeHandedOut(operation, values, fields, result, call);
        };
        return m_tape.Pass({operation.name, give, forward, results}) ? result : noAnswer;
    }

    template <typename Description, typename... Values, typename Result, typename Call>
    void DescribeHandedOut(const Description& operation,
                           const std::tuple<Values&...>& values,
                           Fields& fields,
                           Result& result,
                           const Call& callAgain)
    {
        const CallOnTape call{fields, m_tape, HasFailed(operation, result), result, callAgain};
        operations::ForEachArgument(operation, values,
                                    [&](const auto& role, auto& argument, const auto& place)
                                    { Describe(call, role, argument, place); });
    }

    template <typename Result>
    static bool HasFailed(const operations::Facts& operation, const Result& result)
    {
        if constexpr (std::is_pointer_v<Result>)
            return operations::HasFailed(operation.fails, result != nullptr ? 1 : 0);
        else
            return operations::HasFailed(operation.fails, static_cast<long long>(result));
    }

    Tape& m_tape;
    platform::Platform* m_inner;
};

} // namespace calvix::recording
