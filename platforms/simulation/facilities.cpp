#include "simulation/facilities.h"

#include "operations/bound.h"

namespace calvix::simulation
{

using operations::CallsTo;

namespace
{

platform::WlanService WlanServiceOf(Facilities& computer)
{
    return {
        .WlanOpenHandle = CallsTo<&SimulatedWlanService::WlanOpenHandle>(computer.wlan),
        .WlanCloseHandle = CallsTo<&SimulatedWlanService::WlanCloseHandle>(computer.wlan),
        .WlanEnumInterfaces = CallsTo<&SimulatedWlanService::WlanEnumInterfaces>(computer.wlan),
        .WlanScan = CallsTo<&SimulatedWlanService::WlanScan>(computer.wlan),
        .WlanGetAvailableNetworkList = CallsTo<&SimulatedWlanService::WlanGetAvailableNetworkList>(computer.wlan),
        .WlanGetNetworkBssList = CallsTo<&SimulatedWlanService::WlanGetNetworkBssList>(computer.wlan),
        .WlanQueryInterface = CallsTo<&SimulatedWlanService::WlanQueryInterface>(computer.wlan),
        .WlanSetInterface = CallsTo<&SimulatedWlanService::WlanSetInterface>(computer.wlan),
        .WlanQueryAutoConfigParameter = CallsTo<&SimulatedWlanService::WlanQueryAutoConfigParameter>(computer.wlan),
        .WlanGetProfileList = CallsTo<&SimulatedWlanService::WlanGetProfileList>(computer.wlan),
        .WlanGetProfile = CallsTo<&SimulatedWlanService::WlanGetProfile>(computer.wlan),
        .WlanSetProfile = CallsTo<&SimulatedWlanService::WlanSetProfile>(computer.wlan),
        .WlanDeleteProfile = CallsTo<&SimulatedWlanService::WlanDeleteProfile>(computer.wlan),
        .WlanSetProfilePosition = CallsTo<&SimulatedWlanService::WlanSetProfilePosition>(computer.wlan),
        .WlanConnect = CallsTo<&SimulatedWlanService::WlanConnect>(computer.wlan),
        .WlanDisconnect = CallsTo<&SimulatedWlanService::WlanDisconnect>(computer.wlan),
        .WlanRegisterNotification = CallsTo<&SimulatedWlanService::WlanRegisterNotification>(computer.wlan),
        .WlanIhvControl = CallsTo<&SimulatedWlanService::WlanIhvControl>(computer.wlan),
        .WlanSetSecuritySettings = CallsTo<&SimulatedWlanService::WlanSetSecuritySettings>(computer.wlan),
        .WlanReasonCodeToString = CallsTo<&SimulatedWlanService::WlanReasonCodeToString>(computer.wlan),
        .WlanFreeMemory = CallsTo<&SimulatedWlanService::WlanFreeMemory>(computer.wlan),
    };
}

platform::ServiceControl ServiceControlOf(Facilities& computer)
{
    return {
        .OpenSCManagerA = CallsTo<&SimulatedServiceControl::OpenSCManagerA>(computer.services),
        .OpenServiceA = CallsTo<&SimulatedServiceControl::OpenServiceA>(computer.services),
        .QueryServiceStatus = CallsTo<&SimulatedServiceControl::QueryServiceStatus>(computer.services),
        .StartServiceA = CallsTo<&SimulatedServiceControl::StartServiceA>(computer.services),
        .CloseServiceHandle = CallsTo<&SimulatedServiceControl::CloseServiceHandle>(computer.services),
    };
}

platform::Power PowerOf(Facilities& computer)
{
    return {
        .CallNtPowerInformation = CallsTo<&SimulatedPower::CallNtPowerInformation>(computer.power),
        .GetActivePwrScheme = CallsTo<&SimulatedPower::GetActivePwrScheme>(computer.power),
        .ReadPwrScheme = CallsTo<&SimulatedPower::ReadPwrScheme>(computer.power),
        .WritePwrScheme = CallsTo<&SimulatedPower::WritePwrScheme>(computer.power),
        .SetActivePwrScheme = CallsTo<&SimulatedPower::SetActivePwrScheme>(computer.power),
        .PowerEnumerate = CallsTo<&SimulatedPower::PowerEnumerate>(computer.power),
        .PowerReadFriendlyName = CallsTo<&SimulatedPower::PowerReadFriendlyName>(computer.power),
        .PowerGetActiveScheme = CallsTo<&SimulatedPower::PowerGetActiveScheme>(computer.power),
        .PowerDuplicateScheme = CallsTo<&SimulatedPower::PowerDuplicateScheme>(computer.power),
        .PowerWriteFriendlyName = CallsTo<&SimulatedPower::PowerWriteFriendlyName>(computer.power),
        .PowerWriteACValueIndex = CallsTo<&SimulatedPower::PowerWriteACValueIndex>(computer.power),
        .PowerSetActiveScheme = CallsTo<&SimulatedPower::PowerSetActiveScheme>(computer.power),
        .IsPwrSuspendAllowed = CallsTo<&SimulatedPower::IsPwrSuspendAllowed>(computer.power),
        .IsPwrHibernateAllowed = CallsTo<&SimulatedPower::IsPwrHibernateAllowed>(computer.power),
        .IsPwrShutdownAllowed = CallsTo<&SimulatedPower::IsPwrShutdownAllowed>(computer.power),
        .SetSuspendState = CallsTo<&SimulatedPower::SetSuspendState>(computer.power),
        .IsSystemResumeAutomatic = CallsTo<&SimulatedPower::IsSystemResumeAutomatic>(computer.power),
        .LocalFree = CallsTo<&SimulatedPower::LocalFree>(computer.power),
    };
}

platform::Security SecurityOf(Facilities& computer)
{
    return {
        .OpenProcessToken = CallsTo<&SimulatedSecurity::OpenProcessToken>(computer.security),
        .LookupPrivilegeValueA = CallsTo<&SimulatedSecurity::LookupPrivilegeValueA>(computer.security),
        .AdjustTokenPrivileges = CallsTo<&SimulatedSecurity::AdjustTokenPrivileges>(computer.security),
    };
}

platform::Processes ProcessesOf(Facilities& computer)
{
    return {
        .GetCurrentProcess = CallsTo<&SimulatedProcesses::GetCurrentProcess>(computer.processes),
        .CreateProcessA = CallsTo<&SimulatedProcesses::CreateProcessA>(computer.processes),
        .WaitForSingleObject = CallsTo<&SimulatedProcesses::WaitForSingleObject>(computer.processes),
        .OpenProcess = CallsTo<&SimulatedProcesses::OpenProcess>(computer.processes),
        .TerminateProcess = CallsTo<&SimulatedProcesses::TerminateProcess>(computer.processes),
        .CloseHandle = CallsTo<&SimulatedProcesses::CloseHandle>(computer.processes),
        .GetModuleFileNameA = CallsTo<&SimulatedProcesses::GetModuleFileNameA>(computer.processes),
        .GetModuleHandleA = CallsTo<&SimulatedProcesses::GetModuleHandleA>(computer.processes),
        .GetProcAddress = CallsTo<&SimulatedProcesses::GetProcAddress>(computer.processes),
    };
}

platform::Internet InternetOf(Facilities& computer)
{
    return {
        .InternetSetOptionA = CallsTo<&SimulatedInternet::InternetSetOptionA>(computer.internet),
        .InternetCheckConnectionA = CallsTo<&SimulatedInternet::InternetCheckConnectionA>(computer.internet),
    };
}

platform::Text TextOf(Facilities& computer)
{
    return {
        .MultiByteToWideChar = CallsTo<&SimulatedText::MultiByteToWideChar>(computer.text),
        .WideCharToMultiByte = CallsTo<&SimulatedText::WideCharToMultiByte>(computer.text),
        .StringFromGUID2 = CallsTo<&SimulatedText::StringFromGUID2>(computer.text),
    };
}

platform::Clock ClockOf(Facilities& computer)
{
    return {
        .Sleep = CallsTo<&SimulatedClock::Sleep>(computer.clock),
        .FileTimeToSystemTime = CallsTo<&SimulatedClock::FileTimeToSystemTime>(computer.clock),
    };
}

platform::DebuggerOutput DebuggerOutputOf(Facilities& computer)
{
    return {
        .OutputDebugStringA = CallsTo<&SimulatedDebuggerOutput::OutputDebugStringA>(computer.debugger),
    };
}

platform::LastError LastErrorOf(Facilities& computer)
{
    return {
        .GetLastError = CallsTo<&LastErrorCell::GetLastError>(computer.machine.lastError),
    };
}

} // namespace

Facilities::Facilities(const Scenario& scenario) : machine(scenario) {}

platform::Platform Facilities::Operations()
{
    return {WlanServiceOf(*this), ServiceControlOf(*this), PowerOf(*this), SecurityOf(*this),       ProcessesOf(*this),
            InternetOf(*this),    TextOf(*this),           ClockOf(*this), DebuggerOutputOf(*this), LastErrorOf(*this)};
}

} // namespace calvix::simulation
