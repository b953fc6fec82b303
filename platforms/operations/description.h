#pragma once

#include "operations/roles.h"
#include "operations/row.h"

#include <cstddef>
#include <type_traits>
#include <utility>

namespace calvix::operations
{

/// What can be known about an operation without knowing its parameters.
struct Facts
{
    const char* name;
    Facility facility;
    Fails fails;
    bool tellsNames; ///< whether names of networks and adapters may come up in a call
};

template <typename Member>
struct MemberOperation;

template <typename F, typename R, typename... P>
struct MemberOperation<platform::Operation<R(P...)> F::*>
{
    using Facility = F;
    using Result = R;
    static constexpr std::size_t parameterCount = sizeof...(P);
};

/// All that is known about an operation: its name, how it fails, and the role of each parameter.
template <auto operation, typename... Roles>
struct Description : Facts
{
    using Facility = typename MemberOperation<decltype(operation)>::Facility;
    using Result = typename MemberOperation<decltype(operation)>::Result;
    static constexpr auto member = operation;

    /// The parameter of a role that only one of them has.
    template <typename Role>
    static constexpr std::size_t IndexOf()
    {
        constexpr bool isIt[] = {std::is_same_v<Roles, Role>...};
        std::size_t index = 0;
        while (!isIt[index])
            ++index;
        return index;
    }

    Row<Roles...> roles;
};

/// The facility that an operation belongs to, by the class that has it.
struct Facilities
{
    static constexpr Facility Of(const platform::WlanService*) { return Facility::wlan; }
    static constexpr Facility Of(const platform::ServiceControl*) { return Facility::services; }
    static constexpr Facility Of(const platform::Power*) { return Facility::power; }
    static constexpr Facility Of(const platform::Security*) { return Facility::security; }
    static constexpr Facility Of(const platform::Processes*) { return Facility::processes; }
    static constexpr Facility Of(const platform::Internet*) { return Facility::internet; }
    static constexpr Facility Of(const platform::Text*) { return Facility::text; }
    static constexpr Facility Of(const platform::Clock*) { return Facility::clock; }
    static constexpr Facility Of(const platform::DebuggerOutput*) { return Facility::debugger; }
    static constexpr Facility Of(const platform::LastError*) { return Facility::errors; }
};

template <auto operation, typename... Roles>
constexpr Description<operation, Roles...> Describe(const char* name, Fails fails, Roles... roles)
{
    using Member = MemberOperation<decltype(operation)>;
    static_assert(sizeof...(Roles) == Member::parameterCount, "a description has one role for each parameter");
    constexpr auto facility = Facilities::Of(static_cast<const typename Member::Facility*>(nullptr));
    return {{name, facility, fails, (Roles::tellsNames || ... || false)}, Row<Roles...>(roles...)};
}

/// The place of an argument for those that do not look at the other arguments, one type for all calls.
struct AnyPlace
{
};

/// A call's arguments, as seen from one of them.
template <typename Operation, std::size_t index, typename... Values>
class Place : public AnyPlace
{
public:
    explicit Place(const Row<Values&...>& values) : m_values(values) {}

    /// The argument before or after, or further away.
    template <int offset>
    auto& Neighbour() const
    {
        return At<static_cast<std::size_t>(static_cast<int>(index) + offset)>(m_values);
    }

    /// The argument of a role that only one of them has.
    template <typename Role>
    auto& Of() const
    {
        return At<Operation::template IndexOf<Role>()>(m_values);
    }

private:
    const Row<Values&...>& m_values;
};

/// Calls `visit(role, argument, place)` for every argument of a call, in their order.
template <auto operation, typename... Roles, typename... Values, typename Visit>
void ForEachArgument(const Description<operation, Roles...>& description, const Row<Values&...>& values, Visit visit)
{
    [&]<std::size_t... index>(std::index_sequence<index...>)
    {
        (visit(At<index>(description.roles), At<index>(values),
               Place<Description<operation, Roles...>, index, Values...>(values)),
         ...);
    }
    (std::index_sequence_for<Values...>{});
}

} // namespace calvix::operations
