#pragma once

#include "support/test_worlds.h"

#include <calvix/wireless_manage.h>

#include <functional>
#include <string>
#include <vector>

namespace calvix::test
{

/// A method that reads records of the service, called with ordinary arguments.
struct Reader
{
    const char* method;
    std::function<long long(CWirelessManage&)> call;
};

/// One of them for each way in which methods read such records.
const std::vector<Reader>& EveryReader();

} // namespace calvix::test
