// Service control records: the SDK's on Windows, the same names elsewhere.
#pragma once

#include <calvix/platform_records.h>

#ifdef _WIN32
#include <winsvc.h>
#else

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

#endif
