#pragma once

#include "operations/records.h"
#include "wrappers/recording/fields.h"

namespace calvix::recording
{

/// The records of the platform, field by field. What a record only repeats (sizes, offsets) is left out and made up
/// again by who reads it.

void Describe(Fields fields, WLAN_INTERFACE_INFO& info);
void Describe(Fields fields, WLAN_AVAILABLE_NETWORK& network);
/// Without the information elements.
void Describe(Fields fields, WLAN_BSS_ENTRY& entry);
void Describe(Fields fields, WLAN_PROFILE_INFO& profile);
void Describe(Fields fields, WLAN_CONNECTION_ATTRIBUTES& attributes);
void Describe(Fields fields, WLAN_PHY_RADIO_STATE& phy);
void Describe(Fields fields, WLAN_RADIO_STATE& radio);
/// Without the counters of the PHYs, which are a list of their own.
void Describe(Fields fields, WLAN_STATISTICS& statistics);
void Describe(Fields fields, WLAN_PHY_FRAME_STATISTICS& counters);
void Describe(Fields fields, WLAN_MSM_NOTIFICATION_DATA& data);
/// Without the profile's text.
void Describe(Fields fields, WLAN_CONNECTION_NOTIFICATION_DATA& data);
void Describe(Fields fields, DOT11_SSID& ssid);

void Describe(Fields fields, POWER_POLICY& policy);
void Describe(Fields fields, SYSTEM_POWER_CAPABILITIES& capabilities);
void Describe(Fields fields, SYSTEM_POWER_POLICY& policy);

void Describe(Fields fields, operations::Long& number);
/// Single numbers in place of a record.
template <typename Number>
requires std::is_integral_v<Number> || std::is_enum_v<Number>
void Describe(Fields fields, Number& number)
{
    fields.Number("value", number);
}

} // namespace calvix::recording
