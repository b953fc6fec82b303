#pragma once

#include "platform/last_error.h"

namespace calvix::windows
{

/// The calling thread's last error. Nothing in this provider changes it behind an operation's back.
class LastError final : public platform::LastError
{
public:
    DWORD GetLastError() override;
};

} // namespace calvix::windows
