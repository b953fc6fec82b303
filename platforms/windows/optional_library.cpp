#include "windows/optional_library.h"

#include "windows/wine_stubs.h"

namespace calvix::windows
{

HMODULE OptionalLibrary::Module(DWORD& error) const
{
    HMODULE module = m_module.load(std::memory_order_acquire);
    error = m_error.load(std::memory_order_acquire);
    if (module != nullptr || error != ERROR_SUCCESS)
        return module;
    module = ::LoadLibraryExW(m_fileName, nullptr, m_folders);
    if (module == nullptr)
        error = ::GetLastError();
    m_error.store(error, std::memory_order_release);
    m_module.store(module, std::memory_order_release);
    return module;
}

FARPROC OptionalLibrary::Find(const char* exportName, DWORD& error) const
{
    const HMODULE module = Module(error);
    if (module == nullptr)
        return nullptr;
    const FARPROC address = ::GetProcAddress(module, exportName);
    error = address == nullptr ? ::GetLastError() : ERROR_SUCCESS;
    if (address != nullptr && IsWineStub(address, exportName))
    {
        error = ERROR_CALL_NOT_IMPLEMENTED;
        return nullptr;
    }
    return address;
}

} // namespace calvix::windows
