#pragma once

// Arguments that the call log does not show, seen on their way to the computer.
//
//     WatchedComputer watched;
//     watched.watchedPower.written = [](UINT scheme, const POWER_POLICY& policy) { ... };

#include "support/changed_platform.h"

#include <functional>
#include <optional>

namespace calvix::test
{

struct PowerWatch
{
    std::function<void(UINT, const POWER_POLICY&)> written;
    std::function<void(UINT, const POWER_POLICY&)> activated;
    /// The number that a scheme has once it is written.
    std::optional<UINT> numberOnceWritten;
    std::function<void(const UCHAR*, DWORD)> named;
    /// Edits what was read.
    std::function<void(POWER_POLICY&)> read;
    /// Sees the memory that receives the GUID of the copy.
    std::function<void(const GUID*)> duplicated;
    /// Sees the buffer of a question before it is asked, and may answer it; a status other than 0 is the answer.
    std::function<NTSTATUS(PVOID, ULONG)> queried;
};

struct ProcessWatch
{
    std::function<void(const STARTUPINFOA&, const PROCESS_INFORMATION&)> started;
    /// What GetModuleFileNameA answers in place of the computer.
    std::function<DWORD(char*, DWORD)> moduleFileName;
    /// What GetProcAddress answers in place of the computer.
    FARPROC procedure = nullptr;
};

class WatchedComputer final : public ChangedPlatform
{
public:
    WatchedComputer()
    {
        WatchPower();
        WatchProcesses();
    }

    PowerWatch watchedPower;
    ProcessWatch watchedProcesses;

private:
    void WatchPower()
    {
        After<&Power::ReadPwrScheme>(
            [&watch = watchedPower](BOOLEAN done, UINT, POWER_POLICY* policy)
            {
                if (done && watch.read)
                    watch.read(*policy);
            });
        Before<&Power::WritePwrScheme>(
            [&watch = watchedPower](UINT* scheme, const wchar_t*, const wchar_t*, POWER_POLICY* policy)
            {
                if (watch.written)
                    watch.written(*scheme, *policy);
            });
        After<&Power::WritePwrScheme>(
            [&watch = watchedPower](BOOLEAN, UINT* scheme, const wchar_t*, const wchar_t*, POWER_POLICY*)
            { *scheme = watch.numberOnceWritten.value_or(*scheme); });
        Before<&Power::SetActivePwrScheme>(
            [&watch = watchedPower](UINT scheme, GLOBAL_POWER_POLICY*, POWER_POLICY* policy)
            {
                if (watch.activated)
                    watch.activated(scheme, *policy);
            });
        Before<&Power::PowerDuplicateScheme>(
            [&watch = watchedPower](HKEY, const GUID*, GUID** duplicate)
            {
                if (watch.duplicated)
                    watch.duplicated(*duplicate);
            });
        Before<&Power::PowerWriteFriendlyName>(
            [&watch = watchedPower](HKEY, const GUID*, const GUID*, const GUID*, UCHAR* buffer, DWORD bufferSize)
            {
                if (watch.named)
                    watch.named(buffer, bufferSize);
            });
        Instead<&Power::CallNtPowerInformation>(
            [&watch = watchedPower, ask = Now<&Power::CallNtPowerInformation>()](
                POWER_INFORMATION_LEVEL level, PVOID input, ULONG inputSize, PVOID output, ULONG outputSize)
            {
                const NTSTATUS status = watch.queried ? watch.queried(output, outputSize) : 0;
                return status != 0 ? status : ask(level, input, inputSize, output, outputSize);
            });
    }

    void WatchProcesses()
    {
        Before<&Processes::CreateProcessA>(
            [&watch = watchedProcesses](const char*, char*, SECURITY_ATTRIBUTES*, SECURITY_ATTRIBUTES*, BOOL, DWORD,
                                        PVOID, const char*, STARTUPINFOA* startup, PROCESS_INFORMATION* information)
            {
                if (watch.started)
                    watch.started(*startup, *information);
            });
        Instead<&Processes::GetModuleFileNameA>(
            [&watch = watchedProcesses, ask = Now<&Processes::GetModuleFileNameA>()](HMODULE module, char* fileName,
                                                                                     DWORD size)
            { return watch.moduleFileName ? watch.moduleFileName(fileName, size) : ask(module, fileName, size); });
        After<&Processes::GetProcAddress>([&watch = watchedProcesses](FARPROC found, HMODULE, const char*)
                                          { return watch.procedure != nullptr ? watch.procedure : found; });
    }
};

} // namespace calvix::test
