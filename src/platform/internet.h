#pragma once

#include "platform/operation.h"
#include "platform/records/system_records.h"

namespace calvix::platform
{

/// The internet reachability probe.
struct Internet
{
    Operation<BOOL(HINTERNET internet, DWORD option, PVOID buffer, DWORD bufferSize)> InternetSetOptionA;
    Operation<BOOL(const char* url, DWORD flags, DWORD reserved)> InternetCheckConnectionA;
};

} // namespace calvix::platform
