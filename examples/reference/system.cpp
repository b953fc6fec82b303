// The reference's examples: power, privileges and processes.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace reference::system_examples
{

void Privilege(CWirelessManage& manager)
{
    //! [GetPrivileges]
    if (manager.GetPrivileges() == 0)
        std::printf("the platform did not take the request\n");
    //! [GetPrivileges]
}

void NamedPrivilege(CWirelessManage& manager)
{
    //! [EnablePriviledge]
    if (!manager.EnablePriviledge("SeShutdownPrivilege"))
        std::printf("this account does not hold the privilege\n");
    //! [EnablePriviledge]
}

void Sleep(CWirelessManage& manager)
{
    //! [ForceComputerSleep]
    if (manager.GetPrivileges() == 1 && manager.ForceComputerSleep() == 0)
        std::printf("the computer stays awake\n");
    //! [ForceComputerSleep]
}

void StayAwake(CWirelessManage& manager)
{
    //! [SetPowerScheme]
    if (manager.SetPowerScheme() == 0)
        std::printf("an idle computer stays awake until ResetPowerScheme\n");
    //! [SetPowerScheme]
}

void SleepAgain(CWirelessManage& manager)
{
    //! [ResetPowerScheme]
    if (const long code = manager.ResetPowerScheme(); code != 0)
        std::printf("the policy is not back (ResetPowerScheme: %ld)\n", code);
    //! [ResetPowerScheme]
}

void SaveEnergy(CWirelessManage& manager)
{
    //! [GetPowerScheme]
    // Only where the system lists no power scheme: elsewhere this call does not return.
    if (const long code = manager.GetPowerScheme(); code != 0)
        std::printf("no such scheme (GetPowerScheme: %ld)\n", code);
    //! [GetPowerScheme]
}

void ModernStandby(CWirelessManage& manager)
{
    //! [IsSurpportAoAc]
    std::printf("Modern Standby: %s\n", manager.IsSurpportAoAc() == 1 ? "yes" : "no");
    //! [IsSurpportAoAc]
}

void LastWake(CWirelessManage& manager)
{
    //! [GetLastWakeTime]
    constexpr unsigned long long kTicksPerSecond = 10'000'000;
    std::printf("woke %llu s after the start\n", manager.GetLastWakeTime() / kTicksPerSecond);
    //! [GetLastWakeTime]
}

void LastSleep(CWirelessManage& manager)
{
    //! [GetLastSleepTime]
    if (manager.GetLastSleepTime() == 0)
        std::printf("has not slept since the start, or it cannot be told\n");
    //! [GetLastSleepTime]
}

void Policy(CWirelessManage& manager)
{
    //! [GetSystemPowerPolicy]
    if (manager.GetSystemPowerPolicy() == 0)
        std::printf("the policy on battery can be read\n");
    //! [GetSystemPowerPolicy]
}

void WokeByItself(CWirelessManage& manager)
{
    //! [IsPowerHibernateAllowed]
    if (manager.IsPowerHibernateAllowed() != 0)
        std::printf("woken by a timer or a device, not by a person\n");
    //! [IsPowerHibernateAllowed]
}

void Emulated(CWirelessManage& manager)
{
    //! [IsWow64]
    if (manager.IsWow64() != 0)
        std::printf("a 32-bit process on a 64-bit system\n");
    //! [IsWow64]
}

void End(CWirelessManage& manager, unsigned long processId)
{
    //! [CloseProcess]
    manager.CloseProcess(processId); // at once, and without a word
    //! [CloseProcess]
}

void RunCommand(CWirelessManage& manager)
{
    //! [CreateProcRunCmd]
    char commandLine[] = "ipconfig /renew"; // an array, as the platform may write to it
    manager.CreateProcRunCmd(commandLine);
    //! [CreateProcRunCmd]
}

void RunBeside(CWirelessManage& manager)
{
    //! [CreateProcRunExe]
    char program[] = "helper.exe";
    if (manager.CreateProcRunExe(program) == 0)
        std::printf("not started: is it beside this program?\n");
    //! [CreateProcRunExe]
}

void Folder(CWirelessManage& manager)
{
    //! [GetAppPath]
    const std::string settings = std::string(manager.GetAppPath()) + "settings.ini";
    std::printf("%s\n", settings.c_str());
    //! [GetAppPath]
}

void Online(CWirelessManage& manager)
{
    //! [OpenUrl]
    std::printf("%s\n", manager.OpenUrl() == 0 ? "online" : "not reached");
    //! [OpenUrl]
}

} // namespace reference::system_examples
