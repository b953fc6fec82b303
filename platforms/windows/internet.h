#pragma once

#include "platform/internet.h"

namespace calvix::windows
{

/// The reachability probe of wininet.dll, which is looked for at the first call; without it the probe fails with
/// ERROR_MOD_NOT_FOUND as the last error.
class Internet final : public platform::Internet
{
public:
    BOOL InternetSetOptionA(HINTERNET internet, DWORD option, PVOID buffer, DWORD bufferSize) override;
    BOOL InternetCheckConnectionA(const char* url, DWORD flags, DWORD reserved) override;
};

} // namespace calvix::windows
