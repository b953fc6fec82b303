#pragma once

#include "wrappers/recording/fields.h"

namespace calvix::recording
{

/// What calls of the WLAN service hand out in blocks of its memory. Writing, the block is the service's; reading, it is
/// made, in the layout of this system.

void DescribeList(Fields& fields, WLAN_INTERFACE_INFO_LIST** list);
void DescribeList(Fields& fields, WLAN_AVAILABLE_NETWORK_LIST** list);
void DescribeList(Fields& fields, WLAN_PROFILE_INFO_LIST** list);
void DescribeList(Fields& fields, WLAN_BSS_LIST** list);

void DescribeText(Fields& fields, wchar_t** xml);

/// The answer to a question about an interface. An answer of unknown form is written as bytes, which mean the same
/// only where records have the same layout.
template <typename Opcode>
void DescribeAnswer(Fields& fields, Opcode opcode, DWORD& size, PVOID& data);

/// The argument of WlanSetInterface.
void GiveInterfaceData(Fields& fields, WLAN_INTF_OPCODE opcode, DWORD size, const void* data);

/// A notification. Reading, its data is a block that the caller releases.
void DescribeNews(Fields& fields, WLAN_NOTIFICATION_DATA& news);

} // namespace calvix::recording
