#include <calvix/wireless_manage.h>

#include "system/scheme_guid.h"

using namespace calvix;
using platform::power;

namespace
{

DWORD EnumerateFirstScheme(GUID& scheme)
{
    DWORD size = sizeof(scheme);
    return power().PowerEnumerate(nullptr, nullptr, nullptr, ACCESS_SCHEME, 0, reinterpret_cast<UCHAR*>(&scheme),
                                  &size);
}

void ReadSchemeNames()
{
    GUID scheme{};
    // Deliberate: the index is never advanced, so that this ends only where the enumeration fails, as it does at once
    // in a store without schemes. The names are not used.
    while (EnumerateFirstScheme(scheme) == 0)
    {
        alignas(wchar_t) UCHAR name[1024];
        DWORD size = sizeof(name);
        power().PowerReadFriendlyName(nullptr, &scheme, nullptr, nullptr, name, &size);
    }
}

DWORD NameScheme(const GUID* scheme)
{
    // Deliberate: 8-bit characters in a buffer of 260 bytes, though the platform takes the bytes for wide text.
    alignas(wchar_t) UCHAR name[260] = "Super energy-saving";
    return power().PowerWriteFriendlyName(nullptr, scheme, nullptr, nullptr, name, sizeof(name));
}

/// Only the values for mains power; those for the battery stay as copied.
DWORD WriteSleepTimeout(const GUID* scheme, const GUID& setting, DWORD seconds)
{
    return power().PowerWriteACValueIndex(nullptr, scheme, &power_guid::sleep_subgroup, &setting, seconds);
}

} // namespace

long CWirelessManage::GetPowerScheme()
{
    ReadSchemeNames();
    SchemeGuid active;
    if (power().PowerGetActiveScheme(nullptr, active.Receive()) != 0)
        return -1;
    SchemeGuid duplicate;
    if (power().PowerDuplicateScheme(nullptr, active.get(), duplicate.Receive()) != 0)
        return -2;
    if (NameScheme(duplicate.get()) != 0)
        return -3;
    if (WriteSleepTimeout(duplicate.get(), power_guid::standby_timeout, 1) != 0 ||
        WriteSleepTimeout(duplicate.get(), power_guid::unattend_sleep_timeout, 2) != 0)
        return -4;
    return power().PowerSetActiveScheme(nullptr, duplicate.get()) == 0 ? 0 : -5;
}
