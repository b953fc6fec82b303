#pragma once

#include <calvix/wireless_manage.h>

#include <string>

namespace calvix::host
{

/// Why a connection was not made, for people, and what to do about it. Empty for a reason that nothing is known about.
struct ReasonAdvice
{
    std::string meaning;
    std::string advice;
};

ReasonAdvice AdviseOnReason(DWORD reasonCode);

/// What the service says about the reason, through the library.
std::string ReasonInServiceWords(CWirelessManage& manager, DWORD reasonCode);

} // namespace calvix::host
