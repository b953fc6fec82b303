#pragma once

#include "platform/operation.h"

namespace calvix::operations
{

template <typename Member>
struct MemberFunction;

template <typename C, typename R, typename... Parameters>
struct MemberFunction<R (C::*)(Parameters...)>
{
    using Class = C;
    using Operation = platform::Operation<R(Parameters...)>;

    template <auto member>
    static R Call(void* object, Parameters... arguments)
    {
        return (static_cast<Class*>(object)->*member)(arguments...);
    }
};

/// The operation that a member function does: CallsTo<&SimulatedPower::IsPwrSuspendAllowed>(power). The object outlives
/// the operation.
template <auto member, typename Function = MemberFunction<decltype(member)>>
typename Function::Operation CallsTo(typename Function::Class& object)
{
    return {&Function::template Call<member>, &object};
}

/// The operation that a function object does, which outlives it.
template <typename Operation, typename Callable>
struct CallableOperation;

template <typename R, typename... Parameters, typename Callable>
struct CallableOperation<platform::Operation<R(Parameters...)>, Callable>
{
    static R Call(void* callable, Parameters... arguments) { return (*static_cast<Callable*>(callable))(arguments...); }
};

template <typename Operation, typename Callable>
Operation CallsOf(Callable& callable)
{
    return {&CallableOperation<Operation, Callable>::Call, &callable};
}

} // namespace calvix::operations
