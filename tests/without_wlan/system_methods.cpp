// These need no wireless and answer as Wine's other libraries do: programs may have the privileges, no computer can be
// suspended, there is no store of power schemes, and nothing is known of sleeping. The network is not asked: there is no
// wininet.dll.

#include "without_wlan/method_case.h"

#include <cstdint>

namespace calvix::test::every_method
{

namespace
{

MethodCase Anywhere(const char* declaration, std::string (*call)(CWirelessManage&), const Answer& answer)
{
    return {declaration, call, answer, answer};
}

std::string OwnFolder()
{
    char path[MAX_PATH] = {};
    ::GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string text = path;
    return text.substr(0, text.rfind('\\') + 1);
}

/// The program waits to be ended: its first thread never starts.
std::string EndProgram(CWirelessManage& manager)
{
    STARTUPINFOA startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION program{};
    const std::string path = OwnFolder() + "calvix_idle_program.exe";
    if (!::CreateProcessA(path.c_str(), nullptr, nullptr, nullptr, FALSE, CREATE_SUSPENDED, nullptr, nullptr, &startup,
                          &program))
        return "no program to end";
    manager.CloseProcess(program.dwProcessId);
    constexpr DWORD kAgainstHangs = 600'000;
    const bool ended = ::WaitForSingleObject(program.hProcess, kAgainstHangs) == WAIT_OBJECT_0;
    ::CloseHandle(program.hThread);
    ::CloseHandle(program.hProcess);
    return ended ? "ended" : "still there";
}

std::string RunCommand(CWirelessManage& manager)
{
    std::string commandLine = "\"" + OwnFolder() + "calvix_idle_program.exe\"";
    manager.CreateProcRunCmd(commandLine.data());
    std::string noProgram = "calvix-no-such-program.exe";
    manager.CreateProcRunCmd(noProgram.data());
    return kReturned;
}

std::string RunPrograms(CWirelessManage& manager)
{
    std::string program = "calvix_idle_program.exe";
    std::string noProgram = "calvix-no-such-program.exe";
    const int started = manager.CreateProcRunExe(program.data());
    return Said(started) + Said(manager.CreateProcRunExe(noProgram.data()));
}

} // namespace

std::vector<MethodCase> SystemMethods()
{
    using Manager = CWirelessManage;
    constexpr long long kNotImplemented = static_cast<std::int32_t>(0xC0000002); // the NTSTATUS
    return {
        Anywhere(
            "GetPrivileges()", [](Manager& m) { return Said(m.GetPrivileges()); }, Is(1)),
        Anywhere(
            "EnablePriviledge(char const*)",
            [](Manager& m) { return Said(m.EnablePriviledge("CalvixNoSuchPrivilege")); }, Is(1)),
        Anywhere(
            "ForceComputerSleep()", [](Manager& m) { return Said(m.ForceComputerSleep()); }, Is(1)),
        Anywhere(
            "SetPowerScheme()", [](Manager& m) { return Said(m.SetPowerScheme()); }, Is(-1)),
        Anywhere(
            "ResetPowerScheme()", [](Manager& m) { return Said(m.ResetPowerScheme()); }, Is(-1)),
        Anywhere(
            "GetPowerScheme()", [](Manager& m) { return Said(m.GetPowerScheme()); }, Is(-1)),
        Anywhere(
            "GetSystemPowerPolicy()", [](Manager& m) { return Said(m.GetSystemPowerPolicy()); }, Is(kNotImplemented)),
        Anywhere(
            "IsSurpportAoAc()", [](Manager& m) { return Said(m.IsSurpportAoAc()); }, Is(0)),
        Anywhere(
            "IsPowerHibernateAllowed()", [](Manager& m) { return Said(m.IsPowerHibernateAllowed()); }, Is(0)),
        Anywhere(
            "GetLastWakeTime()", [](Manager& m) { return Said(m.GetLastWakeTime()); }, Is(0)),
        Anywhere(
            "GetLastSleepTime()", [](Manager& m) { return Said(m.GetLastSleepTime()); }, Is(0)),
        Anywhere(
            "IsWow64()", [](Manager& m) { return Said(m.IsWow64()); }, Is(0)),
        Anywhere("CloseProcess(unsigned long)", EndProgram, testing::StrEq("ended")),
        Anywhere("CreateProcRunCmd(char*)", RunCommand, testing::StrEq(kReturned)),
        Anywhere("CreateProcRunExe(char*)", RunPrograms, testing::StrEq("10")),
        Anywhere(
            "GetAppPath()", [](Manager& m) { return Said(m.GetAppPath()); }, testing::StrEq(OwnFolder())),
        Anywhere(
            "OpenUrl()", [](Manager& m) { return Said(m.OpenUrl()); }, Is(-1)),
    };
}

} // namespace calvix::test::every_method
