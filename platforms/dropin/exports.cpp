// The functions of the WLAN API that the simulated computer answers, one row each: who answers, how many parameters the
// platform's prototype has, and the name. The types follow from the prototype, so that a wrong number does not compile.
// The list of exports is made from these rows and from those of not_supported.cpp.

#include "dropin/visible_service.h"
#include "simulation/wlan_service.h"

#include <calvix/wlan_functions.h>

#include <exception>
#include <new>
#include <tuple>
#include <type_traits>

namespace
{

using calvix::platform::Operation;
using calvix::platform::WlanService;
using calvix::simulation::SimulatedWlanService;

template <typename Function>
struct Prototype;

template <typename R, typename... Parameters>
struct Prototype<R(WINAPI*)(Parameters...)>
{
    using Result = R;
    template <std::size_t index>
    using Parameter = std::tuple_element_t<index, std::tuple<Parameters...>>;
};

template <typename Result>
Result Failed(DWORD error)
{
    if constexpr (std::is_same_v<Result, DWORD>)
        return error;
    else
        return Result();
}

// Nothing may be thrown into a program that was not written in C++.
template <typename Result, typename Answer>
Result AskService(const Answer& answer) noexcept
{
    try
    {
        calvix::dropin::VisibleService visible;
        const DWORD error = calvix::dropin::FindVisibleService(visible);
        return error == ERROR_SUCCESS ? answer(visible) : Failed<Result>(error);
    }
    catch (const std::bad_alloc&)
    {
        return Failed<Result>(ERROR_NOT_ENOUGH_MEMORY);
    }
    catch (const std::exception&)
    {
        return Failed<Result>(ERROR_INTERNAL_ERROR);
    }
}

// The casts are for prototypes of SDKs that declare a pointer to a pointer as a plain one.

template <typename Result, typename... Parameters, typename... Arguments>
Result Ask(Operation<Result(Parameters...)> WlanService::*operation, Arguments... arguments) noexcept
{
    return AskService<Result>([&](const auto& visible)
                              { return (visible.operations->*operation)(static_cast<Parameters>(arguments)...); });
}

template <typename Result, typename... Parameters, typename... Arguments>
Result Ask(Result (SimulatedWlanService::*function)(Parameters...), Arguments... arguments) noexcept
{
    return AskService<Result>([&](const auto& visible)
                              { return (visible.service->*function)(static_cast<Parameters>(arguments)...); });
}

} // namespace

// clang-format off

#define CALVIX_PARAMETER(name, index) Prototype<decltype(&::name)>::Parameter<index> argument##index
#define CALVIX_PARAMETERS_1(name) CALVIX_PARAMETER(name, 0)
#define CALVIX_PARAMETERS_2(name) CALVIX_PARAMETERS_1(name), CALVIX_PARAMETER(name, 1)
#define CALVIX_PARAMETERS_3(name) CALVIX_PARAMETERS_2(name), CALVIX_PARAMETER(name, 2)
#define CALVIX_PARAMETERS_4(name) CALVIX_PARAMETERS_3(name), CALVIX_PARAMETER(name, 3)
#define CALVIX_PARAMETERS_5(name) CALVIX_PARAMETERS_4(name), CALVIX_PARAMETER(name, 4)
#define CALVIX_PARAMETERS_6(name) CALVIX_PARAMETERS_5(name), CALVIX_PARAMETER(name, 5)
#define CALVIX_PARAMETERS_7(name) CALVIX_PARAMETERS_6(name), CALVIX_PARAMETER(name, 6)
#define CALVIX_PARAMETERS_8(name) CALVIX_PARAMETERS_7(name), CALVIX_PARAMETER(name, 7)
#define CALVIX_ARGUMENTS_1 argument0
#define CALVIX_ARGUMENTS_2 CALVIX_ARGUMENTS_1, argument1
#define CALVIX_ARGUMENTS_3 CALVIX_ARGUMENTS_2, argument2
#define CALVIX_ARGUMENTS_4 CALVIX_ARGUMENTS_3, argument3
#define CALVIX_ARGUMENTS_5 CALVIX_ARGUMENTS_4, argument4
#define CALVIX_ARGUMENTS_6 CALVIX_ARGUMENTS_5, argument5
#define CALVIX_ARGUMENTS_7 CALVIX_ARGUMENTS_6, argument6
#define CALVIX_ARGUMENTS_8 CALVIX_ARGUMENTS_7, argument7
#define CALVIX_EXPORT(service, count, name)                                                                            \
    extern "C" Prototype<decltype(&::name)>::Result WINAPI name(CALVIX_PARAMETERS_##count(name))                       \
    {                                                                                                                  \
        return Ask(&service::name, CALVIX_ARGUMENTS_##count);                                                          \
    }

CALVIX_EXPORT(WlanService, 2, WlanCloseHandle)
CALVIX_EXPORT(WlanService, 4, WlanConnect)
CALVIX_EXPORT(WlanService, 4, WlanDeleteProfile)
CALVIX_EXPORT(WlanService, 3, WlanDisconnect)
CALVIX_EXPORT(WlanService, 3, WlanEnumInterfaces)
CALVIX_EXPORT(WlanService, 1, WlanFreeMemory)
CALVIX_EXPORT(WlanService, 5, WlanGetAvailableNetworkList)
CALVIX_EXPORT(WlanService, 7, WlanGetNetworkBssList)
CALVIX_EXPORT(WlanService, 7, WlanGetProfile)
CALVIX_EXPORT(WlanService, 4, WlanGetProfileList)
CALVIX_EXPORT(WlanService, 8, WlanIhvControl)
CALVIX_EXPORT(WlanService, 4, WlanOpenHandle)
CALVIX_EXPORT(WlanService, 6, WlanQueryAutoConfigParameter)
CALVIX_EXPORT(WlanService, 7, WlanQueryInterface)
CALVIX_EXPORT(WlanService, 4, WlanReasonCodeToString)
CALVIX_EXPORT(WlanService, 7, WlanRegisterNotification)
CALVIX_EXPORT(WlanService, 5, WlanScan)
CALVIX_EXPORT(WlanService, 6, WlanSetInterface)
CALVIX_EXPORT(WlanService, 8, WlanSetProfile)
CALVIX_EXPORT(WlanService, 5, WlanSetProfilePosition)
CALVIX_EXPORT(WlanService, 3, WlanSetSecuritySettings)

CALVIX_EXPORT(SimulatedWlanService, 1, WlanAllocateMemory)
CALVIX_EXPORT(SimulatedWlanService, 4, WlanGetInterfaceCapability)
CALVIX_EXPORT(SimulatedWlanService, 6, WlanGetProfileCustomUserData)
CALVIX_EXPORT(SimulatedWlanService, 5, WlanGetSecuritySettings)
CALVIX_EXPORT(SimulatedWlanService, 5, WlanRenameProfile)
CALVIX_EXPORT(SimulatedWlanService, 7, WlanSaveTemporaryProfile)
CALVIX_EXPORT(SimulatedWlanService, 5, WlanSetAutoConfigParameter)
CALVIX_EXPORT(SimulatedWlanService, 6, WlanSetProfileCustomUserData)
CALVIX_EXPORT(SimulatedWlanService, 5, WlanSetProfileList)
