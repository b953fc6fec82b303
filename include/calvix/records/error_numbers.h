// The error numbers that the WLAN API and the library's other platform operations answer with, for builds without the
// Windows SDK.
#pragma once

#include <calvix/records/windows_types.h>

inline constexpr DWORD ERROR_SUCCESS = 0;
inline constexpr DWORD ERROR_FILE_NOT_FOUND = 2;
inline constexpr DWORD ERROR_ACCESS_DENIED = 5;
inline constexpr DWORD ERROR_INVALID_HANDLE = 6;
inline constexpr DWORD ERROR_NOT_ENOUGH_MEMORY = 8;
inline constexpr DWORD ERROR_INVALID_DATA = 13;
inline constexpr DWORD ERROR_BAD_LENGTH = 24;
inline constexpr DWORD ERROR_GEN_FAILURE = 31;
inline constexpr DWORD ERROR_NOT_SUPPORTED = 50;
inline constexpr DWORD ERROR_INVALID_PARAMETER = 87;
inline constexpr DWORD ERROR_CALL_NOT_IMPLEMENTED = 120;
inline constexpr DWORD ERROR_INSUFFICIENT_BUFFER = 122;
inline constexpr DWORD ERROR_MOD_NOT_FOUND = 126;
inline constexpr DWORD ERROR_PROC_NOT_FOUND = 127;
inline constexpr DWORD ERROR_BUSY = 170;
inline constexpr DWORD ERROR_ALREADY_EXISTS = 183;
inline constexpr DWORD ERROR_MORE_DATA = 234;
inline constexpr DWORD ERROR_NO_MORE_ITEMS = 259;
inline constexpr DWORD ERROR_INVALID_FLAGS = 1004;
inline constexpr DWORD ERROR_SERVICE_ALREADY_RUNNING = 1056;
inline constexpr DWORD ERROR_SERVICE_DISABLED = 1058;
inline constexpr DWORD ERROR_SERVICE_DOES_NOT_EXIST = 1060;
inline constexpr DWORD ERROR_SERVICE_NOT_ACTIVE = 1062;
inline constexpr DWORD ERROR_NO_UNICODE_TRANSLATION = 1113;
inline constexpr DWORD ERROR_NOT_FOUND = 1168;
inline constexpr DWORD ERROR_NO_MATCH = 1169;
inline constexpr DWORD ERROR_BAD_PROFILE = 1206;
inline constexpr DWORD ERROR_REMOTE_SESSION_LIMIT_EXCEEDED = 1220;
inline constexpr DWORD ERROR_SHUTDOWN_IN_PROGRESS = 1115;
inline constexpr DWORD ERROR_CANCELLED = 1223;
inline constexpr DWORD ERROR_NOT_ALL_ASSIGNED = 1300;
inline constexpr DWORD ERROR_NO_SUCH_PRIVILEGE = 1313;
inline constexpr DWORD ERROR_PRIVILEGE_NOT_HELD = 1314;
inline constexpr DWORD ERROR_INTERNAL_ERROR = 1359;
inline constexpr DWORD ERROR_INVALID_STATE = 5023;

inline constexpr DWORD ERROR_NDIS_DOT11_POWER_STATE_INVALID = 0x80342002;
