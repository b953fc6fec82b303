#include <calvix/wireless_manage.h>

#include "core/memory.h"
#include "platform/platform.h"

#include <cstring>
#include <string>

using namespace calvix;
using namespace calvix::platform;

namespace
{

/// Owner of a token, process or thread handle. Closed with CloseHandle at the end of its scope.
class ObjectHandle
{
public:
    explicit ObjectHandle(HANDLE handle = nullptr) : m_handle(handle) {}
    ObjectHandle(const ObjectHandle&) = delete;
    ObjectHandle& operator=(const ObjectHandle&) = delete;
    ~ObjectHandle()
    {
        if (m_handle != nullptr)
            processes().CloseHandle(m_handle);
    }

    /// Where an operation stores its result; for an owner that holds nothing yet.
    HANDLE* Receive() { return &m_handle; }

    HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle;
};

/// The calling process's token; when it cannot be opened, GetLastError has the reason.
bool OpenOwnToken(ObjectHandle& token)
{
    return security().OpenProcessToken(processes().GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY,
                                       token.Receive()) != FALSE;
}

/// Describes the enabling of one privilege. Whether there is one of this name.
bool DescribeEnabling(const char* privilegeName, TOKEN_PRIVILEGES& privileges)
{
    privileges.PrivilegeCount = 1;
    privileges.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    return privilegeName != nullptr &&
           security().LookupPrivilegeValueA(nullptr, privilegeName, &privileges.Privileges[0].Luid) != FALSE;
}

/// Starts a program and waits until it has ended, however long that takes. Whether it was started.
bool RunToItsEnd(const char* application, char* commandLine)
{
    STARTUPINFOA startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION information{};
    if (!processes().CreateProcessA(application, commandLine, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                                    &information))
        return false;
    const ObjectHandle thread(information.hThread);
    const ObjectHandle process(information.hProcess);
    processes().WaitForSingleObject(process.get(), INFINITE);
    return true;
}

} // namespace

int CWirelessManage::GetPrivileges()
{
    ObjectHandle token;
    // Deliberate: where there are no tokens, nothing keeps the computer from being shut down.
    if (!OpenOwnToken(token))
        return errors().GetLastError() == ERROR_CALL_NOT_IMPLEMENTED ? 1 : 0;
    TOKEN_PRIVILEGES privileges{};
    if (!DescribeEnabling("SeShutdownPrivilege", privileges))
        return 0;
    TOKEN_PRIVILEGES previous{};
    DWORD returnLength = 0;
    // Deliberate: the last error is not checked, which would show that the account does not hold the privilege.
    return security().AdjustTokenPrivileges(token.get(), FALSE, &privileges, sizeof(previous), &previous,
                                            &returnLength) != FALSE
               ? 1
               : 0;
}

bool CWirelessManage::EnablePriviledge(const char* privilegeName)
{
    ObjectHandle token;
    TOKEN_PRIVILEGES privileges{};
    // Deliberate: only a failed adjustment is a failure; a missing token or an unknown name counts as enabled.
    if (!OpenOwnToken(token) || !DescribeEnabling(privilegeName, privileges))
        return true;
    // The platform reports success for a partial adjustment; only the last error shows the difference.
    security().AdjustTokenPrivileges(token.get(), FALSE, &privileges, 0, nullptr, nullptr);
    return errors().GetLastError() == 0;
}

void CWirelessManage::CloseProcess(unsigned long processId)
{
    // Deliberate: no step is checked. A handle that could not be opened is passed on, and the platform refuses it.
    const HANDLE process = processes().OpenProcess(PROCESS_TERMINATE, TRUE, processId);
    processes().TerminateProcess(process, 0);
    processes().CloseHandle(process);
}

void CWirelessManage::CreateProcRunCmd(char* commandLine)
{
    // Deliberate: a failed start is not reported.
    if (commandLine != nullptr)
        RunToItsEnd(nullptr, commandLine);
}

int CWirelessManage::CreateProcRunExe(char* fileName)
{
    if (fileName == nullptr)
        return 0;
    std::string path;
    if (OutOfMemoryIn([&] { path.append(GetAppPath()).append(fileName); }))
        return 0;
    return RunToItsEnd(path.c_str(), nullptr) ? 1 : 0;
}

char* CWirelessManage::GetAppPath()
{
    m_szAppPath[0] = '\0';
    processes().GetModuleFileNameA(nullptr, m_szAppPath, sizeof(m_szAppPath));
    // Old systems do not terminate a path that they cut.
    m_szAppPath[sizeof(m_szAppPath) - 1] = '\0';
    char* const lastBackslash = std::strrchr(m_szAppPath, '\\');
    *(lastBackslash != nullptr ? lastBackslash + 1 : m_szAppPath) = '\0';
    return m_szAppPath;
}

int CWirelessManage::IsWow64()
{
    using IsWow64ProcessFunction = BOOL(WINAPI*)(HANDLE, BOOL*);
    const FARPROC address = processes().GetProcAddress(processes().GetModuleHandleA("kernel32"), "IsWow64Process");
    if (address == nullptr)
        return 0;
    // The cast through void(*)() shows the compiler that the change of the function's type is intended.
    const auto isWow64Process = reinterpret_cast<IsWow64ProcessFunction>(reinterpret_cast<void (*)()>(address));
    BOOL emulated = FALSE;
    // Deliberate: the result of the call is not checked; after a failure the 0 remains.
    isWow64Process(processes().GetCurrentProcess(), &emulated);
    return emulated;
}
