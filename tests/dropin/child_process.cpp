#include "dropin/child_process.h"

#include <windows.h>

#include <memory>
#include <optional>

namespace calvix::test
{

namespace
{

constexpr DWORD againstHangs = 600'000;
constexpr UINT exitCodeOfTheEnded = 0xdead;

struct ClosesHandle
{
    void operator()(HANDLE handle) const { ::CloseHandle(handle); }
};
using OwnedHandle = std::unique_ptr<void, ClosesHandle>;

/// What a child writes goes in at one end and is read from the other. Large enough for all that these programs write.
struct Pipe
{
    Pipe()
    {
        SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
        constexpr DWORD capacity = 256 * 1024;
        HANDLE readEnd = nullptr;
        HANDLE writeEnd = nullptr;
        ::CreatePipe(&readEnd, &writeEnd, &inherited, capacity);
        ::SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);
        read.reset(readEnd);
        write.reset(writeEnd);
    }

    std::string ReadAll()
    {
        write.reset();
        std::string text;
        char part[4096];
        DWORD count = 0;
        while (::ReadFile(read.get(), part, sizeof(part), &count, nullptr) != FALSE && count > 0)
            text.append(part, count);
        return text;
    }

    OwnedHandle read;
    OwnedHandle write;
};

class ChangedVariable
{
public:
    ChangedVariable(const std::wstring& name, const std::wstring& value) : m_name(name)
    {
        wchar_t before[1024];
        const DWORD length = ::GetEnvironmentVariableW(name.c_str(), before, 1024);
        if (length > 0 && length < 1024)
            m_before = std::wstring(before, length);
        ::SetEnvironmentVariableW(name.c_str(), value.empty() ? nullptr : value.c_str());
    }
    ~ChangedVariable() { ::SetEnvironmentVariableW(m_name.c_str(), m_before ? m_before->c_str() : nullptr); }
    ChangedVariable(const ChangedVariable&) = delete;
    ChangedVariable& operator=(const ChangedVariable&) = delete;

private:
    std::wstring m_name;
    std::optional<std::wstring> m_before;
};

} // namespace

ProgramEnd RunProgram(const std::wstring& path, const Environment& changes, const std::wstring& arguments)
{
    std::wstring commandLine = L"\"" + path + L"\" " + arguments;
    std::map<std::wstring, ChangedVariable> changed;
    for (const auto& [name, value] : changes)
        changed.try_emplace(name, name, value);
    Pipe output;
    Pipe errors;
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = output.write.get();
    startup.hStdError = errors.write.get();
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(path.c_str(), commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                          &process))
        return {::GetLastError(), "", "not started"};
    const OwnedHandle running(process.hProcess);
    const OwnedHandle thread(process.hThread);
    if (::WaitForSingleObject(running.get(), againstHangs) != WAIT_OBJECT_0)
        ::TerminateProcess(running.get(), exitCodeOfTheEnded);
    ProgramEnd end;
    ::GetExitCodeProcess(running.get(), &end.exitCode);
    end.output = output.ReadAll();
    end.errors = errors.ReadAll();
    return end;
}

} // namespace calvix::test
