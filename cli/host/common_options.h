#pragma once

#include <string>

namespace calvix::host
{

/// The options that every command has.
struct CommonOptions
{
    bool json = false;
    bool trace = false;
    std::string color = "auto"; ///< "always", "never", or as the terminal is
    bool noColor = false;       ///< the same as "never"
    std::string adapter;        ///< GUID, number or description; empty: the first adapter
    std::string scenario;
    std::string save;
    std::string record;
    bool anonymise = false;
    std::string replay;
};

} // namespace calvix::host
