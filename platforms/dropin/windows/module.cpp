#include "dropin/windows/module.h"

#include <windows.h>

namespace calvix::dropin
{

namespace
{

const char addressInThisModule = 0;

constexpr std::size_t longestPath = 32'768;

using ShutdownQuestion = BOOLEAN(WINAPI*)();

ShutdownQuestion FindShutdownQuestion()
{
    const HMODULE system = ::GetModuleHandleW(L"ntdll.dll");
    const FARPROC address = system != nullptr ? ::GetProcAddress(system, "RtlDllShutdownInProgress") : nullptr;
    // The cast through void(*)() shows the compiler that the change of the function's type is intended.
    return reinterpret_cast<ShutdownQuestion>(reinterpret_cast<void (*)()>(address));
}

} // namespace

std::wstring PinThisModule()
{
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                         reinterpret_cast<LPCWSTR>(&addressInThisModule), &module);
    std::wstring path(longestPath, L'\0');
    path.resize(::GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size())));
    return path.substr(0, path.find_last_of(L"\\/") + 1);
}

bool ProcessIsEnding()
{
    static const ShutdownQuestion isShutdownInProgress = FindShutdownQuestion();
    return isShutdownInProgress != nullptr && isShutdownInProgress() != FALSE;
}

} // namespace calvix::dropin
