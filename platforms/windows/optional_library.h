#pragma once

#include <calvix/platform_records.h>

#include <atomic>
#include <type_traits>

namespace calvix::windows
{

/// A DLL that a computer may lack. It is looked for once, at the first use, in the system's folder, never in the current
/// folder or along PATH, where anybody may have put another. It stays loaded as long as the process lives: its threads may
/// be inside it.
class OptionalLibrary
{
public:
    /// `alsoSearched` adds folders, LOAD_LIBRARY_SEARCH_APPLICATION_DIR say, which comes before the system's.
    constexpr explicit OptionalLibrary(const wchar_t* fileName, DWORD alsoSearched = 0)
        : m_fileName(fileName), m_folders(LOAD_LIBRARY_SEARCH_SYSTEM32 | alsoSearched)
    {
    }

    /// The export's address, or null with the reason in `error` [out]: ERROR_PROC_NOT_FOUND, what kept the library from
    /// being loaded (ERROR_MOD_NOT_FOUND when there is none), or ERROR_CALL_NOT_IMPLEMENTED for what Wine exports
    /// without having written it.
    FARPROC Find(const char* exportName, DWORD& error) const;

private:
    HMODULE Module(DWORD& error) const;

    // Two threads may both be the first; they find the same.
    const wchar_t* m_fileName;
    DWORD m_folders;
    mutable std::atomic<HMODULE> m_module{nullptr};
    mutable std::atomic<DWORD> m_error{ERROR_SUCCESS};
};

/// The outcome of a call that could not be made, in the way in which operations of this result type fail.
template <typename Result>
Result FailedCall(DWORD error)
{
    constexpr DWORD kStatusOfErrorNumber = 0xC0070000;
    if constexpr (std::is_same_v<Result, DWORD>)
        return error;
    else if constexpr (std::is_same_v<Result, LONG>)
        return static_cast<LONG>(kStatusOfErrorNumber | error);
    // Only releasing gives no result; what could not be called has handed out nothing to release.
    else if constexpr (!std::is_void_v<Result>)
    {
        static_assert(std::is_same_v<Result, BOOL> || std::is_same_v<Result, BOOLEAN>);
        ::SetLastError(error);
        return FALSE;
    }
}

/// For inputs whose const the SDK's prototypes lose: "const PDOT11_SSID" is a constant pointer, not a pointer to something
/// constant. The system only reads them.
template <typename Parameter, typename Argument>
Parameter AsSdkParameter(Argument& argument)
{
    if constexpr (std::is_convertible_v<Argument, Parameter>)
        return argument;
    else
        return const_cast<Parameter>(argument);
}

/// One export of an optional library, of the function pointer type `Function`; calling a missing one is a failed call.
template <typename Function>
class OptionalExport;

template <typename Result, typename... Parameters>
class OptionalExport<Result(WINAPI*)(Parameters...)>
{
public:
    constexpr OptionalExport(const OptionalLibrary& library, const char* name) : m_library(library), m_name(name) {}

    template <typename... Arguments>
    Result operator()(Arguments... arguments) const
    {
        DWORD error = ERROR_SUCCESS;
        const Function function = Find(error);
        return function != nullptr ? function(AsSdkParameter<Parameters>(arguments)...) : FailedCall<Result>(error);
    }

private:
    using Function = Result(WINAPI*)(Parameters...);

    Function Find(DWORD& error) const
    {
        FARPROC address = m_address.load(std::memory_order_acquire);
        if (address == nullptr)
        {
            address = m_library.Find(m_name, error);
            m_address.store(address, std::memory_order_release);
        }
        // The cast through void(*)() shows the compiler that the change of the function's type is intended.
        return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(address));
    }

    const OptionalLibrary& m_library;
    const char* m_name;
    mutable std::atomic<FARPROC> m_address{nullptr};
};

} // namespace calvix::windows
