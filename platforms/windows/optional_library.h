#pragma once

#include <calvix/platform_records.h>

#include <type_traits>

namespace calvix::windows
{

/// A DLL that a computer may lack. It is looked for in the system's folder when the object is made, never in the current
/// folder or along PATH, where anybody may have put another. It stays loaded as long as the process lives: its threads may
/// be inside it.
class OptionalLibrary
{
public:
    /// `alsoSearched` adds folders, LOAD_LIBRARY_SEARCH_APPLICATION_DIR say, which comes before the system's.
    explicit OptionalLibrary(const wchar_t* fileName, DWORD alsoSearched = 0);

    /// The export's address, or null with the reason in `error` [out]: ERROR_PROC_NOT_FOUND, what kept the library from
    /// being loaded (ERROR_MOD_NOT_FOUND when there is none), or ERROR_CALL_NOT_IMPLEMENTED for what Wine exports
    /// without having written it.
    FARPROC Find(const char* exportName, DWORD& error) const;

private:
    HMODULE module_ = nullptr;
    DWORD error_ = ERROR_SUCCESS;
};

/// The outcome of a call that could not be made, in the way in which operations of this result type fail.
template <typename Result>
Result FailedCall(DWORD error);

template <>
inline DWORD FailedCall<DWORD>(DWORD error)
{
    return error;
}

/// The status that stands for a platform error number.
template <>
inline LONG FailedCall<LONG>(DWORD error)
{
    constexpr DWORD kStatusOfErrorNumber = 0xC0070000;
    return static_cast<LONG>(kStatusOfErrorNumber | error);
}

template <>
inline BOOL FailedCall<BOOL>(DWORD error)
{
    ::SetLastError(error);
    return FALSE;
}

template <>
inline BOOLEAN FailedCall<BOOLEAN>(DWORD error)
{
    ::SetLastError(error);
    return FALSE;
}

/// Only releasing gives no result; what could not be called has handed out nothing to release.
template <>
inline void FailedCall<void>(DWORD)
{
}

/// One export of an optional library, of the function pointer type `Function`; calling a missing one is a failed call.
template <typename Function>
class OptionalExport
{
public:
    OptionalExport(const OptionalLibrary& library, const char* name)
        // A detour through void(*)() tells the compiler that the change of the function's type is meant.
        : function_(reinterpret_cast<Function>(reinterpret_cast<void (*)()>(library.Find(name, error_))))
    {
    }

    template <typename... Arguments>
    auto operator()(Arguments... arguments) const -> std::invoke_result_t<Function, Arguments...>
    {
        if (function_ == nullptr)
            return FailedCall<std::invoke_result_t<Function, Arguments...>>(error_);
        return function_(arguments...);
    }

private:
    DWORD error_ = ERROR_SUCCESS;
    Function function_;
};

} // namespace calvix::windows
