#pragma once

#include <string>

namespace calvix::test::soak
{

/// The world as a scenario file's text: two adapters, a network whose access points take turns being near, one that is off
/// the air every night, strangers, and each day like the one before.
std::string WorldText(unsigned days);

/// A profile of one of that world's networks, as a program stores it. `automatic` is its connection mode.
std::wstring ProfileText(const std::wstring& name, bool automatic);

/// The networks that profiles are stored for.
inline constexpr const wchar_t* kOwnNetworks[] = {L"Soak Home", L"Soak Office", L"Soak Cafe", L"Soak Attic"};

} // namespace calvix::test::soak
