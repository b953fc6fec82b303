#include "windows/optional_library.h"

#include "windows/wine_stubs.h"

namespace calvix::windows
{

OptionalLibrary::OptionalLibrary(const wchar_t* fileName, DWORD alsoSearched)
    : module_(::LoadLibraryExW(fileName, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32 | alsoSearched))
{
    if (module_ == nullptr)
        error_ = ::GetLastError();
}

FARPROC OptionalLibrary::Find(const char* exportName, DWORD& error) const
{
    if (module_ == nullptr)
    {
        error = error_;
        return nullptr;
    }
    const FARPROC address = ::GetProcAddress(module_, exportName);
    error = address == nullptr ? ::GetLastError() : ERROR_SUCCESS;
    if (address != nullptr && IsWineStub(address, exportName))
    {
        error = ERROR_CALL_NOT_IMPLEMENTED;
        return nullptr;
    }
    return address;
}

} // namespace calvix::windows
