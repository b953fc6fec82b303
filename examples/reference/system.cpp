// The reference's examples: power, privileges and processes.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace reference
{

void GetPrivileges(CWirelessManage& manager)
{
    if (manager.GetPrivileges() == 0)
        std::printf("the platform did not take the request\n");
}

void EnablePriviledge(CWirelessManage& manager)
{
    if (!manager.EnablePriviledge("SeShutdownPrivilege"))
        std::printf("this account does not hold the privilege\n");
}

void ForceComputerSleep(CWirelessManage& manager)
{
    if (manager.GetPrivileges() == 1 && manager.ForceComputerSleep() == 0)
        std::printf("the computer stays awake\n");
}

void SetPowerScheme(CWirelessManage& manager)
{
    if (manager.SetPowerScheme() == 0)
        std::printf("an idle computer stays awake until ResetPowerScheme\n");
}

void ResetPowerScheme(CWirelessManage& manager)
{
    if (const long code = manager.ResetPowerScheme(); code != 0)
        std::printf("the policy is not back (ResetPowerScheme: %ld)\n", code);
}

void GetPowerScheme(CWirelessManage& manager)
{
    // Only where the system lists no power scheme: elsewhere this call does not return.
    if (const long code = manager.GetPowerScheme(); code != 0)
        std::printf("no such scheme (GetPowerScheme: %ld)\n", code);
}

void IsSurpportAoAc(CWirelessManage& manager)
{
    std::printf("Modern Standby: %s\n", manager.IsSurpportAoAc() == 1 ? "yes" : "no");
}

void GetLastWakeTime(CWirelessManage& manager)
{
    constexpr unsigned long long kTicksPerSecond = 10'000'000;
    std::printf("woke %llu s after the start\n", manager.GetLastWakeTime() / kTicksPerSecond);
}

void GetLastSleepTime(CWirelessManage& manager)
{
    if (manager.GetLastSleepTime() == 0)
        std::printf("has not slept since the start, or it cannot be told\n");
}

void GetSystemPowerPolicy(CWirelessManage& manager)
{
    if (manager.GetSystemPowerPolicy() == 0)
        std::printf("the policy on battery can be read\n");
}

void IsPowerHibernateAllowed(CWirelessManage& manager)
{
    if (manager.IsPowerHibernateAllowed() != 0)
        std::printf("woken by a timer or a device, not by a person\n");
}

void IsWow64(CWirelessManage& manager)
{
    if (manager.IsWow64() != 0)
        std::printf("a 32-bit process on a 64-bit system\n");
}

void CloseProcess(CWirelessManage& manager, unsigned long processId)
{
    manager.CloseProcess(processId); // at once, and without a word
}

void CreateProcRunCmd(CWirelessManage& manager)
{
    char commandLine[] = "ipconfig /renew"; // an array, as the platform may write to it
    manager.CreateProcRunCmd(commandLine);
}

void CreateProcRunExe(CWirelessManage& manager)
{
    char program[] = "helper.exe";
    if (manager.CreateProcRunExe(program) == 0)
        std::printf("not started: is it beside this program?\n");
}

void GetAppPath(CWirelessManage& manager)
{
    const std::string settings = std::string(manager.GetAppPath()) + "settings.ini";
    std::printf("%s\n", settings.c_str());
}

void OpenUrl(CWirelessManage& manager)
{
    std::printf("%s\n", manager.OpenUrl() == 0 ? "online" : "not reached");
}

} // namespace reference
