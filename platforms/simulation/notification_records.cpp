#include "simulation/notification_records.h"

#include "simulation/service_records.h"

#include <algorithm>

namespace calvix::simulation
{

namespace
{

/// What the records of both modules have in common.
template <typename Record>
Record MakeRecord(const ConnectionRequest& request, DWORD reason)
{
    const ProfileDocument& profile = request.profile->document;
    Record record{};
    record.wlanConnectionMode = request.mode;
    CopyText(profile.name, record.strProfileName);
    record.dot11Ssid = MakeSsid(profile.ssid);
    record.dot11BssType = profile.bssType;
    record.bSecurityEnabled = IsSecured(profile.security) ? TRUE : FALSE;
    record.wlanReasonCode = reason;
    return record;
}

} // namespace

Bytes ConnectionRecord(const ConnectionRequest& request, DWORD reason)
{
    return RecordBytes(MakeRecord<WLAN_CONNECTION_NOTIFICATION_DATA>(request, reason));
}

Bytes MediaRecord(const ConnectionRequest& request, const MacAddress& bssid, DWORD reason)
{
    auto record = MakeRecord<WLAN_MSM_NOTIFICATION_DATA>(request, reason);
    std::copy(bssid.begin(), bssid.end(), record.dot11MacAddr);
    return RecordBytes(record);
}

} // namespace calvix::simulation
