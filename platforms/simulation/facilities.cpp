#include "simulation/facilities.h"

namespace calvix::simulation
{

namespace
{

platform::WlanService WlanServiceOf(SimulatedWlanService& wlan)
{
    return {
        .WlanOpenHandle = CallsTo<&SimulatedWlanService::WlanOpenHandle>(wlan),
        .WlanCloseHandle = CallsTo<&SimulatedWlanService::WlanCloseHandle>(wlan),
        .WlanEnumInterfaces = CallsTo<&SimulatedWlanService::WlanEnumInterfaces>(wlan),
        .WlanScan = CallsTo<&SimulatedWlanService::WlanScan>(wlan),
        .WlanGetAvailableNetworkList = CallsTo<&SimulatedWlanService::WlanGetAvailableNetworkList>(wlan),
        .WlanGetNetworkBssList = CallsTo<&SimulatedWlanService::WlanGetNetworkBssList>(wlan),
        .WlanQueryInterface = CallsTo<&SimulatedWlanService::WlanQueryInterface>(wlan),
        .WlanSetInterface = CallsTo<&SimulatedWlanService::WlanSetInterface>(wlan),
        .WlanQueryAutoConfigParameter = CallsTo<&SimulatedWlanService::WlanQueryAutoConfigParameter>(wlan),
        .WlanGetProfileList = CallsTo<&SimulatedWlanService::WlanGetProfileList>(wlan),
        .WlanGetProfile = CallsTo<&SimulatedWlanService::WlanGetProfile>(wlan),
        .WlanSetProfile = CallsTo<&SimulatedWlanService::WlanSetProfile>(wlan),
        .WlanDeleteProfile = CallsTo<&SimulatedWlanService::WlanDeleteProfile>(wlan),
        .WlanSetProfilePosition = CallsTo<&SimulatedWlanService::WlanSetProfilePosition>(wlan),
        .WlanConnect = CallsTo<&SimulatedWlanService::WlanConnect>(wlan),
        .WlanDisconnect = CallsTo<&SimulatedWlanService::WlanDisconnect>(wlan),
        .WlanRegisterNotification = CallsTo<&SimulatedWlanService::WlanRegisterNotification>(wlan),
        .WlanIhvControl = CallsTo<&SimulatedWlanService::WlanIhvControl>(wlan),
        .WlanSetSecuritySettings = CallsTo<&SimulatedWlanService::WlanSetSecuritySettings>(wlan),
        .WlanReasonCodeToString = CallsTo<&SimulatedWlanService::WlanReasonCodeToString>(wlan),
        .WlanFreeMemory = CallsTo<&SimulatedWlanService::WlanFreeMemory>(wlan),
    };
}

} // namespace

Facilities::Facilities(const Scenario& scenario) : machine(scenario) {}

platform::Platform Facilities::Operations()
{
    return {
        WlanServiceOf(wlan),
        MakeServiceControl(machine, parts),
        MakePower(machine, parts),
        MakeSecurity(machine, parts),
        MakeProcesses(machine, parts),
        MakeInternet(machine, parts),
        MakeText(machine, parts),
        MakeClock(machine, parts),
        MakeDebuggerOutput(machine, parts),
        {.GetLastError = CallsTo<&LastErrorCell::GetLastError>(machine.lastError)},
    };
}

} // namespace calvix::simulation
