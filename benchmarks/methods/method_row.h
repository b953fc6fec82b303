#pragma once

#include "methods/scene.h"

#include <type_traits>
#include <vector>

namespace calvix::benchmarks
{

using Call = long long (*)(Scene&);
using Preparation = void (*)(Scene&);

/// One method and its hand-written counterpart.
struct MethodRow
{
    const char* signature; ///< as the library exports it
    Call calvix;
    Call direct;
    Preparation once = nullptr;       ///< before the measurement, for both sides
    Preparation everyTime = nullptr;  ///< before every call, untimed
    Preparation onComputer = nullptr; ///< the same on the simulated computer only, where a call has changed something
    const char* note = nullptr;       ///< what the reader of the figures should know
};

/// What a call gave, as a number; text is left in the scene to be compared.
template <typename Result>
long long AsNumber(Scene& scene, Result result)
{
    if constexpr (std::is_pointer_v<Result>)
    {
        scene.out.returned = reinterpret_cast<const char*>(result);
        return result != nullptr;
    }
    else
        return static_cast<long long>(result);
}

template <typename Side, typename Function>
long long Invoke(Side& side, Scene& scene)
{
    if constexpr (std::is_void_v<std::invoke_result_t<Function, Side&, Scene&>>)
    {
        Function{}(side, scene);
        return 0;
    }
    else
        return AsNumber(scene, Function{}(side, scene));
}

struct Preparations
{
    Preparation once = nullptr;
    Preparation everyTime = nullptr;
    Preparation onComputer = nullptr;
    const char* note = nullptr;
};

/// A row for a call that both sides can make: `[](auto& side, Scene& scene) { return side.Method(...); }`.
template <typename Function>
MethodRow Row(const char* signature, Function, const Preparations& preparations = {})
{
    return {signature,
            [](Scene& scene) { return Invoke<CWirelessManage, Function>(*scene.calvix, scene); },
            [](Scene& scene) { return Invoke<HandWritten, Function>(*scene.direct, scene); },
            preparations.once,
            preparations.everyTime,
            preparations.onComputer,
            preparations.note};
}

/// The simulated computer has time to finish what was asked for.
void Settle(Scene& scene);

using Rows = std::vector<MethodRow>;

Rows FrameRows();
Rows AdapterRows();
Rows ConversionRows();
Rows RadioRows();
Rows InventoryRows();
Rows ProfileRows();
Rows ConnectionRows();
Rows AutomaticRows();
Rows ComputerRows();

/// All of them.
Rows AllRows();

/// The methods that the library exports without a row, and the rows without a method; empty when all is well.
std::vector<std::string> Uncovered(const Rows& rows, const char* exportsFile);

} // namespace calvix::benchmarks
