#pragma once

#include "simulation/adapter.h"
#include "simulation/scenario.h"

#include <calvix/platform_records.h>

#include <cstdint>

namespace calvix::simulation
{

/// The bytes of a record that goes with a notification.
template <typename Record>
Bytes RecordBytes(const Record& record)
{
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(&record);
    return Bytes(bytes, bytes + sizeof(record));
}

/// The data of the auto-configuration module about a connection: its fixed part, without the profile's text.
Bytes ConnectionRecord(const ConnectionRequest& request, DWORD reason);

/// The data of the media-specific module. `bssid`: the access point.
Bytes MediaRecord(const ConnectionRequest& request, const MacAddress& bssid, DWORD reason);

} // namespace calvix::simulation
