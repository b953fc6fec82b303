#pragma once

// What the library hands over that the call log does not tell, seen on its way to the computer.
//
//     WatchedComputer watched;
//     watched.watchedPower.written = [](UINT scheme, const POWER_POLICY& policy) { ... };

#include "support/forwarding_platform.h"
#include "wrappers/intercepted_power.h"
#include "wrappers/intercepted_processes.h"

#include <functional>
#include <optional>

namespace calvix::test
{

class WatchingPower final : public wrappers::InterceptedPower
{
public:
    using InterceptedPower::InterceptedPower;

    std::function<void(UINT, const POWER_POLICY&)> written;
    std::function<void(UINT, const POWER_POLICY&)> activated;
    /// The number that a scheme has once it is written.
    std::optional<UINT> numberOnceWritten;
    std::function<void(const UCHAR*, DWORD)> named;
    /// Edits what was read.
    std::function<void(POWER_POLICY&)> read;
    /// Sees what stands where the GUID of the copy is to go.
    std::function<void(const GUID*)> duplicated;
    /// Sees the buffer of a question before it is asked, and may answer it; a status other than 0 is the answer.
    std::function<NTSTATUS(PVOID, ULONG)> queried;

    BOOLEAN ReadPwrScheme(UINT schemeId, POWER_POLICY* policy) override
    {
        const BOOLEAN done = InterceptedPower::ReadPwrScheme(schemeId, policy);
        if (done && read)
            read(*policy);
        return done;
    }

    BOOLEAN
    WritePwrScheme(UINT* schemeId, const wchar_t* name, const wchar_t* description, POWER_POLICY* policy) override
    {
        if (written)
            written(*schemeId, *policy);
        const BOOLEAN done = InterceptedPower::WritePwrScheme(schemeId, name, description, policy);
        *schemeId = numberOnceWritten.value_or(*schemeId);
        return done;
    }

    BOOLEAN SetActivePwrScheme(UINT schemeId, GLOBAL_POWER_POLICY* globalPolicy, POWER_POLICY* policy) override
    {
        if (activated)
            activated(schemeId, *policy);
        return InterceptedPower::SetActivePwrScheme(schemeId, globalPolicy, policy);
    }

    DWORD PowerDuplicateScheme(HKEY root, const GUID* source, GUID** duplicate) override
    {
        if (duplicated)
            duplicated(*duplicate);
        return InterceptedPower::PowerDuplicateScheme(root, source, duplicate);
    }

    DWORD PowerWriteFriendlyName(HKEY root,
                                 const GUID* scheme,
                                 const GUID* subgroup,
                                 const GUID* setting,
                                 UCHAR* buffer,
                                 DWORD bufferSize) override
    {
        if (named)
            named(buffer, bufferSize);
        return InterceptedPower::PowerWriteFriendlyName(root, scheme, subgroup, setting, buffer, bufferSize);
    }

    NTSTATUS CallNtPowerInformation(
        POWER_INFORMATION_LEVEL level, PVOID input, ULONG inputSize, PVOID output, ULONG outputSize) override
    {
        const NTSTATUS status = queried ? queried(output, outputSize) : 0;
        if (status != 0)
            return status;
        return InterceptedPower::CallNtPowerInformation(level, input, inputSize, output, outputSize);
    }
};

class WatchingProcesses final : public wrappers::InterceptedProcesses
{
public:
    using InterceptedProcesses::InterceptedProcesses;

    std::function<void(const STARTUPINFOA&, const PROCESS_INFORMATION&)> started;
    /// What GetModuleFileNameA answers in place of the computer.
    std::function<DWORD(char*, DWORD)> moduleFileName;
    /// What GetProcAddress answers in place of the computer.
    FARPROC procedure = nullptr;

    BOOL CreateProcessA(const char* application,
                        char* commandLine,
                        SECURITY_ATTRIBUTES* processAttributes,
                        SECURITY_ATTRIBUTES* threadAttributes,
                        BOOL inheritHandles,
                        DWORD creationFlags,
                        PVOID environment,
                        const char* currentDirectory,
                        STARTUPINFOA* startup,
                        PROCESS_INFORMATION* information) override
    {
        if (started)
            started(*startup, *information);
        return InterceptedProcesses::CreateProcessA(application, commandLine, processAttributes, threadAttributes,
                                                    inheritHandles, creationFlags, environment, currentDirectory,
                                                    startup, information);
    }

    DWORD GetModuleFileNameA(HMODULE module, char* fileName, DWORD size) override
    {
        if (moduleFileName)
            return moduleFileName(fileName, size);
        return InterceptedProcesses::GetModuleFileNameA(module, fileName, size);
    }

    FARPROC GetProcAddress(HMODULE module, const char* name) override
    {
        return procedure != nullptr ? procedure : InterceptedProcesses::GetProcAddress(module, name);
    }
};

/// Stands before the provider in use for as long as it lives.
class WatchedComputer final : public ForwardingPlatform
{
public:
    platform::Power& power() override { return watchedPower; }
    platform::Processes& processes() override { return watchedProcesses; }

private:
    wrappers::Interceptor m_seesNothing;
    wrappers::InterceptionPoint m_point{m_seesNothing};

public:
    WatchingPower watchedPower{inner().power(), m_point};
    WatchingProcesses watchedProcesses{inner().processes(), m_point};
};

} // namespace calvix::test
