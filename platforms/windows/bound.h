#pragma once

#include "platform/operation.h"
#include "windows/optional_library.h"

#include <algorithm>
#include <cstddef>

namespace calvix::windows
{

template <std::size_t size>
struct Name
{
    consteval Name(const char (&itsText)[size]) { std::copy_n(itsText, size, text); }
    char text[size];
};

template <const OptionalLibrary& library, typename Function, Name name>
inline constinit const OptionalExport<Function> kExport{library, name.text};

/// The operation that an export of an optional library does. `Function` is the SDK's prototype.
template <const OptionalLibrary& library, typename Function, Name name>
struct Exported
{
    template <typename Result, typename... Parameters>
    constexpr operator platform::Operation<Result(Parameters...)>() const
    {
        return {&Call<Result, Parameters...>, nullptr};
    }

    template <typename Result, typename... Parameters>
    static Result Call(void*, Parameters... arguments)
    {
        return kExport<library, Function, name>(arguments...);
    }
};

/// The operation that an imported function does, given as the function object that calls it.
template <typename Function>
struct Imported
{
    constexpr explicit Imported(Function) {}

    template <typename Result, typename... Parameters>
    constexpr operator platform::Operation<Result(Parameters...)>() const
    {
        return {&Call<Result, Parameters...>, nullptr};
    }

    template <typename Result, typename... Parameters>
    static Result Call(void*, Parameters... arguments)
    {
        return static_cast<Result>(Function{}(arguments...));
    }
};

} // namespace calvix::windows
