#pragma once

#include "platform/records/internet_records.h"

namespace calvix::platform
{

/// The internet reachability probe.
class Internet
{
public:
    virtual ~Internet() = default;

    virtual BOOL InternetSetOptionA(HINTERNET internet, DWORD option, PVOID buffer, DWORD bufferSize) = 0;
    virtual BOOL InternetCheckConnectionA(const char* url, DWORD flags, DWORD reserved) = 0;
};

} // namespace calvix::platform
