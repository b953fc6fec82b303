// Records of processes, tokens, services, time, text and the internet: the SDK's on Windows, the same names elsewhere.
#pragma once

#include <calvix/platform_records.h>

#ifdef _WIN32
#include <wininet.h>
#include <winsvc.h>
#else

struct SECURITY_ATTRIBUTES
{
    DWORD nLength;
    LPVOID lpSecurityDescriptor;
    BOOL bInheritHandle;
};
using LPSECURITY_ATTRIBUTES = SECURITY_ATTRIBUTES*;

struct STARTUPINFOA
{
    DWORD cb;
    LPSTR lpReserved;
    LPSTR lpDesktop;
    LPSTR lpTitle;
    DWORD dwX;
    DWORD dwY;
    DWORD dwXSize;
    DWORD dwYSize;
    DWORD dwXCountChars;
    DWORD dwYCountChars;
    DWORD dwFillAttribute;
    DWORD dwFlags;
    WORD wShowWindow;
    WORD cbReserved2;
    LPBYTE lpReserved2;
    HANDLE hStdInput;
    HANDLE hStdOutput;
    HANDLE hStdError;
};
using LPSTARTUPINFOA = STARTUPINFOA*;

struct PROCESS_INFORMATION
{
    HANDLE hProcess;
    HANDLE hThread;
    DWORD dwProcessId;
    DWORD dwThreadId;
};
using LPPROCESS_INFORMATION = PROCESS_INFORMATION*;

inline constexpr DWORD PROCESS_TERMINATE = 0x0001;
inline constexpr DWORD PROCESS_QUERY_INFORMATION = 0x0400;

// Thirty-two bits wide on the platform, whatever DWORD is here.
inline constexpr DWORD INFINITE = 0xFFFFFFFF;
inline constexpr DWORD WAIT_OBJECT_0 = 0;
inline constexpr DWORD WAIT_TIMEOUT = 258;
inline constexpr DWORD WAIT_FAILED = 0xFFFFFFFF;

struct LUID
{
    DWORD LowPart;
    LONG HighPart;
};

struct LUID_AND_ATTRIBUTES
{
    LUID Luid;
    DWORD Attributes;
};

struct TOKEN_PRIVILEGES
{
    DWORD PrivilegeCount;
    LUID_AND_ATTRIBUTES Privileges[1];
};

inline constexpr DWORD TOKEN_QUERY = 0x0008;
inline constexpr DWORD TOKEN_ADJUST_PRIVILEGES = 0x0020;

inline constexpr DWORD SE_PRIVILEGE_ENABLED = 0x00000002;

using SC_HANDLE = struct SC_HANDLE__*;

struct SERVICE_STATUS
{
    DWORD dwServiceType;
    DWORD dwCurrentState;
    DWORD dwControlsAccepted;
    DWORD dwWin32ExitCode;
    DWORD dwServiceSpecificExitCode;
    DWORD dwCheckPoint;
    DWORD dwWaitHint;
};
using LPSERVICE_STATUS = SERVICE_STATUS*;

inline constexpr DWORD SC_MANAGER_CONNECT = 0x0001;
inline constexpr DWORD SC_MANAGER_ALL_ACCESS = 0xF003F;
inline constexpr DWORD SERVICE_QUERY_STATUS = 0x0004;
inline constexpr DWORD SERVICE_START = 0x0010;
inline constexpr DWORD SERVICE_ALL_ACCESS = 0xF01FF;

inline constexpr DWORD SERVICE_WIN32_OWN_PROCESS = 0x00000010;
inline constexpr DWORD SERVICE_WIN32_SHARE_PROCESS = 0x00000020;

inline constexpr DWORD SERVICE_STOPPED = 1;
inline constexpr DWORD SERVICE_RUNNING = 4;

// 100-nanosecond units since 1601-01-01, in two 32-bit halves however wide DWORD is.
struct FILETIME
{
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
};
using LPFILETIME = FILETIME*;

struct SYSTEMTIME
{
    WORD wYear;
    WORD wMonth;
    WORD wDayOfWeek;
    WORD wDay;
    WORD wHour;
    WORD wMinute;
    WORD wSecond;
    WORD wMilliseconds;
};
using LPSYSTEMTIME = SYSTEMTIME*;

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

using HINTERNET = LPVOID;

inline constexpr DWORD INTERNET_OPTION_CONNECT_TIMEOUT = 2;
inline constexpr DWORD FLAG_ICC_FORCE_CONNECTION = 0x00000001;

#endif
