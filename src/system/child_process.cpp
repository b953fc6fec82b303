#include <calvix/wireless_manage.h>

#include "core/out_of_memory.h"
#include "system/object_handle.h"

#include <string>

using namespace calvix;
using namespace calvix::platform;

namespace
{

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

void CWirelessManage::CloseProcess(unsigned long processId)
{
    // Deliberate: no step is checked. A handle that could not be opened is passed on, and the platform refuses it.
    const HANDLE process = processes().OpenProcess(PROCESS_TERMINATE, TRUE, processId);
    processes().TerminateProcess(process, 0);
    processes().CloseHandle(process);
}

void CWirelessManage::CreateProcRunCmd(char* commandLine)
{
    // Deliberate: that nothing was started is not told.
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
