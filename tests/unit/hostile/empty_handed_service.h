#pragma once

#include "operations/operations.h"
#include "support/changed_platform.h"

#include <string_view>

namespace calvix::test
{

/// The WLAN service in use, but the named operation reports success and hands out nothing.
class EmptyHandedAnswers final : public ChangedPlatform
{
public:
    explicit EmptyHandedAnswers(std::string_view name)
    {
        operations::ForEachOperation([&]<auto operation, typename... Roles>(
            const operations::Description<operation, Roles...>& description) {
            if (description.name == name)
                Empty<operation, std::is_base_of_v<operations::BlockOut, Roles>...>();
        });
    }

private:
    /// One of the parameters is the place for a block.
    template <auto operation, bool... isBlock>
    void Empty()
    {
        if constexpr ((isBlock || ...))
        {
            After<operation>(
                [free = Now<&WlanService::WlanFreeMemory>()](DWORD error, auto... arguments)
                {
                    if (error == 0)
                        (TakeBack<isBlock>(free, arguments), ...);
                });
        }
    }

    template <bool isBlock, typename Free, typename Argument>
    static void TakeBack(const Free& free, Argument argument)
    {
        if constexpr (isBlock)
        {
            free(*argument);
            *argument = nullptr;
        }
    }
};

} // namespace calvix::test
