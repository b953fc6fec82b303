#pragma once

#include "support/library_test.h"

#include <string>
#include <vector>

namespace calvix::test
{

/// Profiles of the connection requests so far, in order.
inline std::vector<std::string> RequestedProfiles(const LibraryTest& test)
{
    constexpr std::string_view opening = "profile=\"";
    std::vector<std::string> profiles;
    for (std::size_t number = 1; number <= test.callCount("WlanConnect"); ++number)
    {
        const std::string text(test.call("WlanConnect", number)["parameters"]);
        const std::size_t start = text.find(opening) + opening.size();
        profiles.push_back(text.substr(start, text.find('"', start) - start));
    }
    return profiles;
}

inline constexpr const char* kConnectFailed = "WlanConnect failed with error: %u";

} // namespace calvix::test
