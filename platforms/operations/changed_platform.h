#pragma once

#include "operations/bound.h"
#include "platform/platform.h"

#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace calvix::operations
{

/// A platform that answers as another one, except where its owner changes it:
///
///     changed.After<&WlanService::WlanGetNetworkBssList>(
///         [](DWORD error, HANDLE, const GUID*, const DOT11_SSID*, DOT11_BSS_TYPE, BOOL, PVOID, WLAN_BSS_LIST** list)
///         {
///             if (error == 0)
///                 (*list)->dwNumberOfItems = 0;
///         });
///
/// A change begins with the next call. It must not be made while another thread uses the platform.
class ChangedPlatform
{
public:
    explicit ChangedPlatform(const platform::Platform& platform) : m_platform(platform) {}
    ChangedPlatform(const ChangedPlatform&) = delete;
    ChangedPlatform& operator=(const ChangedPlatform&) = delete;

    platform::Platform& platform() { return m_platform; }

    /// `answer(arguments...)` answers in the place of the operation.
    template <auto operation, typename Answer>
    void Instead(Answer answer)
    {
        using Operation = std::remove_cvref_t<decltype(m_platform.*operation)>;
        auto kept = std::make_shared<Answer>(std::move(answer));
        m_platform.*operation = operations::CallsOf<Operation>(*kept);
        m_answers.push_back(std::move(kept));
    }

    /// `look(arguments...)` is called before the operation.
    template <auto operation, typename Look>
    void Before(Look look)
    {
        Instead<operation>(
            [look = std::move(look), call = m_platform.*operation](auto... arguments)
            {
                look(arguments...);
                return call(arguments...);
            });
    }

    /// `change(result, arguments...)` is called after the operation and may give another result.
    template <auto operation, typename Change>
    void After(Change change)
    {
        Instead<operation>(
            [change = std::move(change), call = m_platform.*operation](auto... arguments)
            {
                const auto result = call(arguments...);
                if constexpr (std::is_void_v<decltype(change(result, arguments...))>)
                {
                    change(result, arguments...);
                    return result;
                }
                else
                    return static_cast<decltype(call(arguments...))>(change(result, arguments...));
            });
    }

    /// The operation as it is now.
    template <auto operation>
    auto Now() const
    {
        return m_platform.*operation;
    }

private:
    platform::Platform m_platform;
    std::vector<std::shared_ptr<void>> m_answers;
};

} // namespace calvix::operations
