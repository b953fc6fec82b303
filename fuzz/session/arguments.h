#pragma once

#include "input.h"

#include <calvix/wireless_manage.h>

#include <memory>
#include <string>
#include <vector>

namespace calvix::fuzz::session
{

/// Makes the arguments of a call out of the input: ordinary ones, and those that a caller in trouble would pass (null
/// pointers, names of nothing, numbers at their limits), but no buffer that is smaller than the method is told. Lives as
/// long as the call.
class Arguments
{
public:
    explicit Arguments(Input& input) : m_input(input) {}
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;

    Input& input() { return m_input; }

    const GUID* Adapter();
    /// The names of networks and profiles, now and then another text or null.
    const wchar_t* WideText();
    const char* NarrowText();
    /// A profile document, or something like it.
    const wchar_t* Document();
    DOT11_SSID* Ssid();
    WLAN_CONNECTION_ATTRIBUTES* Connection();
    WLAN_CONNECTION_NOTIFICATION_DATA* Notification();
    std::uint32_t Number();

    /// Null now and then.
    template <typename Value>
    Value* OrNull(Value* value)
    {
        return m_input.OneIn(16) ? nullptr : value;
    }

    /// A new object that lives as long as this.
    template <typename Value>
    Value& New(const Value& value = {})
    {
        auto owned = std::make_shared<Value>(value);
        m_owned.push_back(owned);
        return *owned;
    }

    /// Exactly so many characters on the heap, all of them '#'.
    template <typename Character>
    Character* Room(std::size_t count)
    {
        return New(std::vector<Character>(count, Character{'#'})).data();
    }

    /// A stated capacity, negative ones and 0 among them, and the room that it stands for.
    int Capacity() { return static_cast<int>(m_input.Below(200)) - 2; }
    template <typename Character>
    Character* RoomFor(int capacity)
    {
        return Room<Character>(static_cast<std::size_t>(capacity > 1 ? capacity : 1));
    }

private:
    template <typename Character>
    Character* Text(const std::basic_string<Character>& text);

    Input& m_input;
    std::vector<std::shared_ptr<void>> m_owned;
};

} // namespace calvix::fuzz::session
