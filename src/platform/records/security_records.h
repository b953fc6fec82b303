// Token and privilege records: the SDK's on Windows, the same names elsewhere.
#pragma once

#include <calvix/platform_records.h>

#ifndef _WIN32

struct LUID
{
    DWORD LowPart;
    LONG HighPart;
};
using PLUID = LUID*;

struct LUID_AND_ATTRIBUTES
{
    LUID Luid;
    DWORD Attributes;
};
using PLUID_AND_ATTRIBUTES = LUID_AND_ATTRIBUTES*;

struct TOKEN_PRIVILEGES
{
    DWORD PrivilegeCount;
    LUID_AND_ATTRIBUTES Privileges[1];
};
using PTOKEN_PRIVILEGES = TOKEN_PRIVILEGES*;

inline constexpr DWORD TOKEN_ASSIGN_PRIMARY = 0x0001;
inline constexpr DWORD TOKEN_DUPLICATE = 0x0002;
inline constexpr DWORD TOKEN_IMPERSONATE = 0x0004;
inline constexpr DWORD TOKEN_QUERY = 0x0008;
inline constexpr DWORD TOKEN_ADJUST_PRIVILEGES = 0x0020;

inline constexpr DWORD SE_PRIVILEGE_ENABLED_BY_DEFAULT = 0x00000001;
inline constexpr DWORD SE_PRIVILEGE_ENABLED = 0x00000002;

#endif
