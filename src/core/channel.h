#pragma once

#include <cstdint>

namespace calvix
{

/// Channel number of a centre frequency, by the library's own rule (see CWirelessManage::GetChannel).
std::uint32_t ChannelOfFrequency(unsigned long frequency);

} // namespace calvix
