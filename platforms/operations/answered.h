#pragma once

#include "operations/operations.h"

namespace calvix::operations
{

/// The operation that an object answers with its function template `Answer(description, arguments...)`.
template <const auto& facility, std::size_t index, typename Object, typename Operation>
struct AnsweredOperation;

template <const auto& facility, std::size_t index, typename Object, typename R, typename... Parameters>
struct AnsweredOperation<facility, index, Object, platform::Operation<R(Parameters...)>>
{
    static R Call(void* object, Parameters... arguments)
    {
        return static_cast<Object*>(object)->Answer(At<index>(facility), arguments...);
    }
};

template <typename Facility, const auto& descriptions, typename Object>
Facility AnsweredFacility(Object& object)
{
    using Descriptions = std::remove_cvref_t<decltype(descriptions)>;
    constexpr std::size_t count = Descriptions::size;
    static_assert(sizeof(Facility) == count * sizeof(platform::Operation<void()>),
                  "every operation of a facility has a description");
    const auto answered = [&object]<std::size_t index>(std::integral_constant<std::size_t, index>)
    {
        using Description = std::remove_cvref_t<decltype(At<index>(descriptions))>;
        using Operation = std::remove_cvref_t<decltype(std::declval<Facility&>().*Description::member)>;
        return Operation(&AnsweredOperation<descriptions, index, Object, Operation>::Call, &object);
    };
    return [&]<std::size_t... index>(std::index_sequence<index...>)
    {
        return Facility{answered(std::integral_constant<std::size_t, index>())...};
    }
    (std::make_index_sequence<count>());
}

/// A platform whose operations are all answered by one function template of an object, which outlives it:
///
///     template <typename Description, typename... Arguments>
///     typename Description::Result Answer(const Description& operation, Arguments... arguments);
///
/// This is how to intercept a platform without a line for each operation.
template <typename Object>
platform::Platform AnsweredBy(Object& object)
{
    return {AnsweredFacility<platform::WlanService, kWlanService>(object),
            AnsweredFacility<platform::ServiceControl, kServiceControl>(object),
            AnsweredFacility<platform::Power, kPower>(object),
            AnsweredFacility<platform::Security, kSecurity>(object),
            AnsweredFacility<platform::Processes, kProcesses>(object),
            AnsweredFacility<platform::Internet, kInternet>(object),
            AnsweredFacility<platform::Text, kText>(object),
            AnsweredFacility<platform::Clock, kClock>(object),
            AnsweredFacility<platform::DebuggerOutput, kDebuggerOutput>(object),
            AnsweredFacility<platform::LastError, kLastError>(object)};
}

} // namespace calvix::operations
