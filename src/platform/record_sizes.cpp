// The record sizes that callers are compiled against, checked where they are fixed: on 64-bit Windows. An
// SDK whose records differ from the service's own would corrupt what the service hands back.

#include <calvix/platform_records.h>

#include "platform/records/power_records.h"
#include "platform/records/system_records.h"

static_assert(sizeof(GUID) == 16);

#ifdef _WIN64
static_assert(sizeof(WLAN_CONNECTION_ATTRIBUTES) == 604);
static_assert(sizeof(WLAN_RADIO_STATE) == 772);
static_assert(sizeof(WLAN_STATISTICS) == 368);
static_assert(sizeof(WLAN_CONNECTION_NOTIFICATION_DATA) == 572);
static_assert(sizeof(DOT11_BSSID_LIST) == 20);
static_assert(sizeof(POWER_POLICY) == 144);
static_assert(sizeof(SYSTEM_POWER_POLICY) == 232);
static_assert(sizeof(SYSTEM_POWER_CAPABILITIES) == 76);
static_assert(sizeof(STARTUPINFOA) == 104);
static_assert(calvix::aoAcOffset == 20);
#endif
