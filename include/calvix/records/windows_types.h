// The platform's basic types for builds without the Windows SDK. Names and meanings are the platform's,
// hence the global namespace. DWORD, ULONG and LONG keep their published spelling, so that a host's
// `unsigned long` variables and printf formats fit in both worlds; they are 64 bits wide on 64-bit Linux,
// and records that hold them differ in size from those on Windows.
#pragma once

#include <cstddef>
#include <cstdint>

// Calling conventions are part of the published function types; without the SDK there is only one.
#ifndef WINAPI
#define WINAPI
#endif
#ifndef CALLBACK
#define CALLBACK
#endif

using VOID = void;
using CHAR = char;
using UCHAR = unsigned char;
using BYTE = unsigned char;
using BOOLEAN = unsigned char;
using WCHAR = wchar_t;
using SHORT = short;
using USHORT = unsigned short;
using WORD = unsigned short;
using INT = int;
using UINT = unsigned int;
using BOOL = int;
using LONG = long;
using ULONG = unsigned long;
using DWORD = unsigned long;
using LONGLONG = long long;
using ULONGLONG = unsigned long long;
using LONG64 = long long;
using ULONG64 = unsigned long long;
using DWORD64 = unsigned long long;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using ULONG_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using SIZE_T = std::size_t;
using LPARAM = LONG_PTR;
using HRESULT = LONG;
using NTSTATUS = LONG;

using PVOID = void*;
using LPVOID = void*;
using LPCVOID = const void*;
using PCHAR = CHAR*;
using PUCHAR = UCHAR*;
using PBYTE = BYTE*;
using LPBYTE = BYTE*;
using PBOOLEAN = BOOLEAN*;
using PBOOL = BOOL*;
using LPBOOL = BOOL*;
using PWCHAR = WCHAR*;
using PUSHORT = USHORT*;
using LPWORD = WORD*;
using PINT = INT*;
using PUINT = UINT*;
using PLONG = LONG*;
using PULONG = ULONG*;
using PDWORD = DWORD*;
using LPDWORD = DWORD*;
using PULONGLONG = ULONGLONG*;
using LPSTR = char*;
using PSTR = char*;
using LPCSTR = const char*;
using PCSTR = const char*;
using LPWSTR = wchar_t*;
using PWSTR = wchar_t*;
using LPCWSTR = const wchar_t*;
using PCWSTR = const wchar_t*;

using HANDLE = void*;
using PHANDLE = HANDLE*;
using HINSTANCE = struct HINSTANCE__*;
using HMODULE = HINSTANCE;
using FARPROC = INT_PTR (*)();

// A program that also includes a C library with TRUE and FALSE macros keeps that library's.
#ifndef FALSE
inline constexpr BOOL FALSE = 0;
#endif
#ifndef TRUE
inline constexpr BOOL TRUE = 1;
#endif

inline constexpr int MAX_PATH = 260;
inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(-1));

// Sixteen bytes in both worlds: Data1 is published as a long, but a GUID has one size everywhere.
struct GUID
{
    std::uint32_t Data1;
    std::uint16_t Data2;
    std::uint16_t Data3;
    std::uint8_t Data4[8];
};
using LPGUID = GUID*;
using LPCGUID = const GUID*;
using REFGUID = const GUID&;

constexpr bool operator==(const GUID& left, const GUID& right) noexcept
{
    if (left.Data1 != right.Data1 || left.Data2 != right.Data2 || left.Data3 != right.Data3)
        return false;
    for (int i = 0; i < 8; ++i)
        if (left.Data4[i] != right.Data4[i])
            return false;
    return true;
}

constexpr bool operator!=(const GUID& left, const GUID& right) noexcept
{
    return !(left == right);
}

constexpr int IsEqualGUID(const GUID& left, const GUID& right) noexcept
{
    return left == right ? 1 : 0;
}
