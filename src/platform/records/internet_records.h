// Internet session records: the SDK's on Windows, the same names elsewhere.
#pragma once

#include <calvix/platform_records.h>

#ifdef _WIN32
#include <wininet.h>
#else

using HINTERNET = LPVOID;

inline constexpr DWORD INTERNET_OPTION_CONNECT_TIMEOUT = 2;
inline constexpr DWORD FLAG_ICC_FORCE_CONNECTION = 0x00000001;

#endif
