#pragma once

#include "operations/operations.h"

#include <cstdint>
#include <functional>
#include <type_traits>
#include <vector>

namespace calvix::test
{

/// Every operation of the platform, with null for all arguments; `call` gives the result as a number.
struct Operation
{
    const char* name;
    operations::Fails fails;
    std::function<long long(platform::Platform&)> call;
};

template <typename Result>
long long AsNumber(Result result)
{
    if constexpr (std::is_pointer_v<Result>)
        return static_cast<long long>(reinterpret_cast<std::intptr_t>(result));
    else
        return static_cast<long long>(result);
}

template <typename Result, typename... Parameters>
long long CallWithNothing(const platform::Operation<Result(Parameters...)>& operation)
{
    if constexpr (std::is_void_v<Result>)
    {
        operation(std::remove_cvref_t<Parameters>{}...);
        return 0;
    }
    else
        return AsNumber(operation(std::remove_cvref_t<Parameters>{}...));
}

inline std::vector<Operation> AllOperations()
{
    std::vector<Operation> all;
    operations::ForEachOperation(
        [&all]<typename Description>(const Description& operation)
        {
            all.push_back({operation.name, operation.fails, [](platform::Platform& platform) {
                               return CallWithNothing(platform.*Description::member);
                           }});
        });
    return all;
}

} // namespace calvix::test
