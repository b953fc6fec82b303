#pragma once

#include "support/library_test.h"

#include <string>
#include <vector>

namespace calvix::test
{

/// Names of adapter A's profiles, in preference order, as the service lists them now.
inline std::vector<std::wstring> ProfileNames(LibraryTest& test)
{
    WLAN_PROFILE_INFO_LIST* list = nullptr;
    EXPECT_EQ(0u, test.computer().wlan().WlanGetProfileList(ManagerInternals::Client(), &kAdapterA, nullptr, &list));
    std::vector<std::wstring> names;
    for (DWORD i = 0; list != nullptr && i < list->dwNumberOfItems; ++i)
        names.emplace_back(list->ProfileInfo[i].strProfileName);
    test.computer().wlan().WlanFreeMemory(list);
    return names;
}

} // namespace calvix::test
