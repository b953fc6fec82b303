#pragma once

#include <cstdint>
#include <string>

namespace calvix::host
{

/// A platform error number in words: "access denied, 5". An unknown one is only its number.
std::string DescribePlatformError(std::uint32_t error);

/// What to do about it, empty where nothing is known. `operation` is the platform's operation that gave it, if known:
/// the same number has different cures.
std::string AdviseOnPlatformError(std::uint32_t error, const std::string& operation = {});

/// The same where it was not the WLAN service that gave it.
std::string AdviseOnSystemError(std::uint32_t error, const std::string& operation);

} // namespace calvix::host
