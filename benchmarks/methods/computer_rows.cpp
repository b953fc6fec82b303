#include "methods/method_row.h"

namespace calvix::benchmarks
{

namespace
{

/// A process for the next call to end.
void StartProcess(Scene& scene)
{
    STARTUPINFOA startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION information{};
    platform::Processes& processes = scene.computer->processes();
    processes.CreateProcessA(nullptr, scene.command, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                             &information);
    processes.CloseHandle(information.hProcess);
    processes.CloseHandle(information.hThread);
    scene.processId = information.dwProcessId;
}

} // namespace

Rows ComputerRows()
{
    return {
        Row("GetPrivileges()", [](auto& side, Scene&) { return side.GetPrivileges(); }),
        Row("EnablePriviledge(char const*)",
            [](auto& side, Scene&) { return side.EnablePriviledge("SeShutdownPrivilege"); }),
        Row("ForceComputerSleep()", [](auto& side, Scene&) { return side.ForceComputerSleep(); },
            {.note = "the computer's sleep takes no time in either service"}),
        Row("SetPowerScheme()", [](auto& side, Scene&) { return side.SetPowerScheme(); }),
        Row("ResetPowerScheme()", [](auto& side, Scene&) { return side.ResetPowerScheme(); }),
        Row("GetPowerScheme()", [](auto& side, Scene&) { return side.GetPowerScheme(); },
            {.note =
                 "in both services listing the schemes fails at once, since it does not return otherwise; each call "
                 "adds a scheme to the computer's"}),
        Row("IsSurpportAoAc()", [](auto& side, Scene&) { return side.IsSurpportAoAc(); }),
        Row("GetLastWakeTime()", [](auto& side, Scene&) { return side.GetLastWakeTime(); }),
        Row("GetLastSleepTime()", [](auto& side, Scene&) { return side.GetLastSleepTime(); }),
        Row("GetSystemPowerPolicy()", [](auto& side, Scene&) { return side.GetSystemPowerPolicy(); }),
        Row("IsPowerHibernateAllowed()", [](auto& side, Scene&) { return side.IsPowerHibernateAllowed(); }),
        Row("IsWow64()", [](auto& side, Scene&) { return side.IsWow64(); }),
        Row("CloseProcess(unsigned long)", [](auto& side, Scene& s) { side.CloseProcess(s.processId); },
            {.onComputer = StartProcess}),
        Row("CreateProcRunCmd(char*)", [](auto& side, Scene& s) { side.CreateProcRunCmd(s.command); }),
        Row("CreateProcRunExe(char*)", [](auto& side, Scene& s) { return side.CreateProcRunExe(s.command); }),
        Row("GetAppPath()", [](auto& side, Scene&) { return side.GetAppPath(); }),
        Row("OpenUrl()", [](auto& side, Scene&) { return side.OpenUrl(); }),
    };
}

} // namespace calvix::benchmarks
