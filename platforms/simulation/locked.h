#pragma once

#include "operations/bound.h"

#include <mutex>

namespace calvix::simulation
{

/// A facility that shares something with others, for use from several threads: each operation is done under the
/// machine's mutex.
template <typename Facility>
struct Locked
{
    std::mutex& mutex;
    Facility facility;
};

template <typename Member>
struct LockedFunction;

template <typename C, typename R, typename... Parameters>
struct LockedFunction<R (C::*)(Parameters...)>
{
    using Class = C;
    using Operation = platform::Operation<R(Parameters...)>;

    template <auto member>
    static R Call(void* object, Parameters... arguments)
    {
        auto& locked = *static_cast<Locked<Class>*>(object);
        const std::lock_guard lock(locked.mutex);
        return (locked.facility.*member)(arguments...);
    }
};

/// The operation that a member function does under the mutex; see operations::CallsTo.
template <auto member, typename Function = LockedFunction<decltype(member)>>
typename Function::Operation LockedCallsTo(Locked<typename Function::Class>& locked)
{
    return {&Function::template Call<member>, &locked};
}

} // namespace calvix::simulation
