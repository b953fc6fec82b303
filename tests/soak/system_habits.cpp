// Everything beside Wi-Fi. What would change a real computer is for simulated ones.

#include "soak/host.h"

namespace calvix::test::soak
{

namespace
{

void RunCommand(Host& host)
{
    std::string commandLine = "survey.exe --all";
    host.Manager().CreateProcRunCmd(commandLine.data());
}

void RunProgram(Host& host)
{
    std::string program = "survey.exe";
    host.Manager().CreateProcRunExe(program.data());
}

void AskPower(Host& host)
{
    CWirelessManage& manager = host.Manager();
    manager.IsSurpportAoAc();
    manager.GetLastWakeTime();
    manager.GetLastSleepTime();
    manager.GetSystemPowerPolicy();
    manager.IsPowerHibernateAllowed();
}

} // namespace

std::vector<Habit> SystemHabits()
{
    constexpr Needs simulated = Needs::simulatedComputer;
    return {
        {"GetPrivileges", 1, [](Host& h) { h.Manager().GetPrivileges(); }},
        {"EnablePriviledge", 1, [](Host& h) { h.Manager().EnablePriviledge("SeShutdownPrivilege"); }},
        {"IsSurpportAoAc and the like", 1, AskPower},
        {"IsWow64", 1, [](Host& h) { h.Manager().IsWow64(); }},
        {"GetAppPath", 1, [](Host& h) { h.Manager().GetAppPath(); }},
        {"CheckAutoConfig", 1, [](Host& h) { h.Manager().CheckAutoConfig(); }, simulated},
        {"ForceComputerSleep", 1, [](Host& h) { h.Manager().ForceComputerSleep(); }, simulated},
        {"SetPowerScheme", 1, [](Host& h) { h.Manager().SetPowerScheme(); }, simulated},
        {"ResetPowerScheme", 1, [](Host& h) { h.Manager().ResetPowerScheme(); }, simulated},
        {"GetPowerScheme", 1, [](Host& h) { h.Manager().GetPowerScheme(); }, simulated},
        {"CreateProcRunCmd", 1, RunCommand, simulated},
        {"CreateProcRunExe", 1, RunProgram, simulated},
        {"CloseProcess", 1, [](Host& h) { h.Manager().CloseProcess(h.Below(5000)); }, simulated},
        {"OpenUrl", 1, [](Host& h) { h.Manager().OpenUrl(); }, simulated},
    };
}

} // namespace calvix::test::soak
