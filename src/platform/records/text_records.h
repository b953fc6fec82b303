// Code pages and conversion flags: the SDK's on Windows, the same names elsewhere.
#pragma once

#include <calvix/platform_records.h>

#ifndef _WIN32

inline constexpr UINT CP_ACP = 0;
inline constexpr UINT CP_OEMCP = 1;
inline constexpr UINT CP_UTF8 = 65001;

inline constexpr DWORD MB_PRECOMPOSED = 0x00000001;
inline constexpr DWORD MB_COMPOSITE = 0x00000002;
inline constexpr DWORD MB_USEGLYPHCHARS = 0x00000004;
inline constexpr DWORD MB_ERR_INVALID_CHARS = 0x00000008;

inline constexpr DWORD WC_ERR_INVALID_CHARS = 0x00000080;
inline constexpr DWORD WC_COMPOSITECHECK = 0x00000200;
inline constexpr DWORD WC_NO_BEST_FIT_CHARS = 0x00000400;

#endif
