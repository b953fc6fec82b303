#pragma once

#include "session/arguments.h"

#include <tuple>
#include <type_traits>
#include <utility>

namespace calvix::fuzz::session
{

/// Make<Parameter>::From(arguments) makes an argument of the kind that a parameter of this type usually is.
template <typename Parameter>
struct Make;

template <typename Output>
struct Make<Output&>
{
    static Output& From(Arguments& arguments) { return arguments.New<Output>(); }
};

template <typename Item>
struct Make<std::vector<Item>*>
{
    static std::vector<Item>* From(Arguments& arguments)
    {
        return arguments.OrNull(&arguments.New<std::vector<Item>>(std::vector<Item>(1)));
    }
};

template <>
struct Make<const GUID*>
{
    static const GUID* From(Arguments& arguments) { return arguments.Adapter(); }
};

template <>
struct Make<const wchar_t*>
{
    static const wchar_t* From(Arguments& arguments) { return arguments.WideText(); }
};

template <>
struct Make<wchar_t*>
{
    static wchar_t* From(Arguments& arguments) { return const_cast<wchar_t*>(arguments.WideText()); }
};

template <>
struct Make<const char*>
{
    static const char* From(Arguments& arguments) { return arguments.NarrowText(); }
};

template <>
struct Make<char*>
{
    static char* From(Arguments& arguments) { return const_cast<char*>(arguments.NarrowText()); }
};

template <>
struct Make<DOT11_SSID*>
{
    static DOT11_SSID* From(Arguments& arguments) { return arguments.OrNull(arguments.Ssid()); }
};

template <>
struct Make<DOT11_SSID&>
{
    static DOT11_SSID& From(Arguments& arguments) { return *arguments.Ssid(); }
};

template <>
struct Make<WLAN_CONNECTION_ATTRIBUTES*>
{
    static WLAN_CONNECTION_ATTRIBUTES* From(Arguments& arguments) { return arguments.OrNull(arguments.Connection()); }
};

template <>
struct Make<WLAN_CONNECTION_NOTIFICATION_DATA*>
{
    static WLAN_CONNECTION_NOTIFICATION_DATA* From(Arguments& arguments)
    {
        return arguments.OrNull(arguments.Notification());
    }
};

template <>
struct Make<_WIFI_TXRX_COUNT*>
{
    static _WIFI_TXRX_COUNT* From(Arguments& arguments) { return arguments.OrNull(&arguments.New<_WIFI_TXRX_COUNT>()); }
};

template <>
struct Make<int>
{
    static int From(Arguments& arguments) { return static_cast<std::int32_t>(arguments.Number()); }
};

template <>
struct Make<unsigned long>
{
    static unsigned long From(Arguments& arguments) { return arguments.Number(); }
};

template <>
struct Make<unsigned long long>
{
    static unsigned long long From(Arguments& arguments) { return arguments.Number(); }
};

} // namespace calvix::fuzz::session
