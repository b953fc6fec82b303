#pragma once

#include "operations/answered.h"
#include "wrappers/recording/given_arguments.h"
#include "wrappers/recording/handed_out.h"
#include "wrappers/recording/tape.h"

namespace calvix::recording
{

/// A call of one operation on its way through a tape.
template <typename Description, typename... Arguments>
class TapedOperation final : public TapedCall
{
public:
    using Result = typename Description::Result;

    TapedOperation(const Description& operation, Tape& tape, platform::Platform* inner, Arguments&... arguments)
        : TapedCall(operation.name), m_operation(operation), m_tape(tape), m_inner(inner), m_values(arguments...)
    {
    }

    Result Pass()
    {
        if constexpr (std::is_same_v<typename Description::Facility, platform::DebuggerOutput>)
            m_tape.Remark(*this, operations::At<0>(m_values));
        else if (!m_tape.Pass(*this))
            m_result = NoAnswerOf();
        if constexpr (!std::is_void_v<Result>)
            return m_result;
    }

    void Give(Fields& arguments) override
    {
        operations::ForEachArgument(m_operation, m_values,
                                    [&](const auto& role, const auto& argument, const auto& place)
                                    { recording::Give(arguments, role, argument, place); });
    }

    void Forward() override
    {
        operations::ForEachArgument(m_operation, m_values,
                                    [this](const auto& role, auto& argument, const auto& place)
                                    { Prepare(m_tape, role, argument, place); });
        const auto call = [this](Arguments&... arguments) { return (m_inner->*Description::member)(arguments...); };
        if constexpr (std::is_void_v<Result>)
            operations::Apply(call, m_values);
        else
            m_result = operations::Apply(call, m_values);
    }

    void Describe(Fields& results) override
    {
        if constexpr (!std::is_void_v<Result>)
            DescribeResult(results, m_result, m_values, m_inner);
        const CallOnTape<Held> call{results, m_tape, HasFailed(), m_result, *this};
        operations::ForEachArgument(m_operation, m_values,
                                    [&](const auto& role, auto& argument, const auto& place)
                                    { recording::Describe(call, role, argument, place); });
    }

private:
    using Held = std::conditional_t<std::is_void_v<Result>, int, Result>;

    Held NoAnswerOf() const { return NoAnswer<Held>(m_operation.fails); }

    bool HasFailed() const { return operations::HasFailed(m_operation.fails, operations::AsNumber(m_result)); }

    const Description& m_operation;
    Tape& m_tape;
    platform::Platform* m_inner;
    operations::Row<Arguments&...> m_values;
    Held m_result = NoAnswerOf();
};

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
        return TapedOperation<Description, Arguments...>(operation, m_tape, m_inner, arguments...).Pass();
    }

private:
    Tape& m_tape;
    platform::Platform* m_inner;
};

} // namespace calvix::recording
