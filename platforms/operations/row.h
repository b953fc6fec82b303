#pragma once

#include <cstddef>
#include <utility>

namespace calvix::operations
{

template <std::size_t index, typename T>
struct Cell
{
    constexpr explicit Cell(T given) : value(given) {}

    T value;
};

template <typename Indices, typename... T>
struct Cells;

template <std::size_t... index, typename... T>
struct Cells<std::index_sequence<index...>, T...> : Cell<index, T>...
{
    constexpr explicit Cells(T... values) : Cell<index, T>(values)... {}
};

/// Values or references side by side, one type each. A std::tuple would do, but for the hundreds that describe the
/// operations and their calls it takes a compiler seconds to choose among the constructors.
template <typename... T>
struct Row : Cells<std::index_sequence_for<T...>, T...>
{
    using Cells<std::index_sequence_for<T...>, T...>::Cells;
    static constexpr std::size_t size = sizeof...(T);
};

template <typename... T>
Row(T...) -> Row<T...>;

/// The value at an index, which tells the compiler its type.
template <std::size_t index, typename T>
constexpr const T& At(const Cell<index, T>& cell)
{
    return cell.value;
}

/// Calls `function` with all values.
template <typename... T, typename Function>
constexpr decltype(auto) Apply(Function&& function, const Row<T...>& row)
{
    return [&]<std::size_t... index>(std::index_sequence<index...>)->decltype(auto)
    {
        return function(At<index>(row)...);
    }
    (std::index_sequence_for<T...>{});
}

} // namespace calvix::operations
