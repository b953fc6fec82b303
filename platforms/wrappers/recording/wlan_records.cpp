#include "wrappers/recording/records.h"

#include <algorithm>

namespace calvix::recording
{

namespace
{

/// An array of numbers of which the first `count` are used.
template <typename Integer, std::size_t Size>
void DescribeNumbers(Fields& fields, const char* name, Integer (&numbers)[Size], std::size_t count)
{
    const std::size_t told = fields.Count(name, (std::min)(count, Size));
    if (told > Size)
        throw Damage(name, "is too long");
    for (std::size_t i = 0; i < told; ++i)
        Describe(fields.Element(name, i), numbers[i]);
}

void Describe(Fields fields, WLAN_ASSOCIATION_ATTRIBUTES& association)
{
    fields.Ssid("dot11Ssid", association.dot11Ssid);
    fields.Number("dot11BssType", association.dot11BssType);
    fields.Address("dot11Bssid", association.dot11Bssid);
    fields.Number("dot11PhyType", association.dot11PhyType);
    fields.Number("uDot11PhyIndex", association.uDot11PhyIndex);
    fields.Number("wlanSignalQuality", association.wlanSignalQuality);
    fields.Number("ulRxRate", association.ulRxRate);
    fields.Number("ulTxRate", association.ulTxRate);
}

void Describe(Fields fields, WLAN_SECURITY_ATTRIBUTES& security)
{
    fields.Number("bSecurityEnabled", security.bSecurityEnabled);
    fields.Number("bOneXEnabled", security.bOneXEnabled);
    fields.Number("dot11AuthAlgorithm", security.dot11AuthAlgorithm);
    fields.Number("dot11CipherAlgorithm", security.dot11CipherAlgorithm);
}

void Describe(Fields fields, WLAN_MAC_FRAME_STATISTICS& counters)
{
    fields.Number("ullTransmittedFrameCount", counters.ullTransmittedFrameCount);
    fields.Number("ullReceivedFrameCount", counters.ullReceivedFrameCount);
    fields.Number("ullWEPExcludedCount", counters.ullWEPExcludedCount);
    fields.Number("ullTKIPLocalMICFailures", counters.ullTKIPLocalMICFailures);
    fields.Number("ullTKIPReplays", counters.ullTKIPReplays);
    fields.Number("ullTKIPICVErrorCount", counters.ullTKIPICVErrorCount);
    fields.Number("ullCCMPReplays", counters.ullCCMPReplays);
    fields.Number("ullCCMPDecryptErrors", counters.ullCCMPDecryptErrors);
    fields.Number("ullWEPUndecryptableCount", counters.ullWEPUndecryptableCount);
    fields.Number("ullWEPICVErrorCount", counters.ullWEPICVErrorCount);
    fields.Number("ullDecryptSuccessCount", counters.ullDecryptSuccessCount);
    fields.Number("ullDecryptFailureCount", counters.ullDecryptFailureCount);
}

/// What the notifications of both modules begin with.
template <typename Data>
void DescribeConnectionNews(Fields& fields, Data& data)
{
    fields.Number("wlanConnectionMode", data.wlanConnectionMode);
    fields.Name("strProfileName", data.strProfileName);
    fields.Ssid("dot11Ssid", data.dot11Ssid);
    fields.Number("dot11BssType", data.dot11BssType);
    fields.Number("bSecurityEnabled", data.bSecurityEnabled);
    fields.Number("wlanReasonCode", data.wlanReasonCode);
}

} // namespace

void Describe(Fields fields, DOT11_SSID& ssid)
{
    fields.Ssid("ssid", ssid);
}

void Describe(Fields fields, operations::Long& number)
{
    fields.Number("value", number.value);
}

void Describe(Fields fields, WLAN_INTERFACE_INFO& info)
{
    fields.AdapterGuid("InterfaceGuid", info.InterfaceGuid);
    fields.Description("strInterfaceDescription", info.strInterfaceDescription);
    fields.Number("isState", info.isState);
}

void Describe(Fields fields, WLAN_AVAILABLE_NETWORK& network)
{
    fields.Name("strProfileName", network.strProfileName);
    fields.Ssid("dot11Ssid", network.dot11Ssid);
    fields.Number("dot11BssType", network.dot11BssType);
    fields.Number("uNumberOfBssids", network.uNumberOfBssids);
    fields.Number("bNetworkConnectable", network.bNetworkConnectable);
    fields.Number("wlanNotConnectableReason", network.wlanNotConnectableReason);
    fields.Number("uNumberOfPhyTypes", network.uNumberOfPhyTypes);
    DescribeNumbers(fields, "dot11PhyTypes", network.dot11PhyTypes, network.uNumberOfPhyTypes);
    fields.Number("bMorePhyTypes", network.bMorePhyTypes);
    fields.Number("wlanSignalQuality", network.wlanSignalQuality);
    fields.Number("bSecurityEnabled", network.bSecurityEnabled);
    fields.Number("dot11DefaultAuthAlgorithm", network.dot11DefaultAuthAlgorithm);
    fields.Number("dot11DefaultCipherAlgorithm", network.dot11DefaultCipherAlgorithm);
    fields.Number("dwFlags", network.dwFlags);
}

void Describe(Fields fields, WLAN_BSS_ENTRY& entry)
{
    fields.Ssid("dot11Ssid", entry.dot11Ssid);
    fields.Number("uPhyId", entry.uPhyId);
    fields.Address("dot11Bssid", entry.dot11Bssid);
    fields.Number("dot11BssType", entry.dot11BssType);
    fields.Number("dot11BssPhyType", entry.dot11BssPhyType);
    fields.Number("lRssi", entry.lRssi);
    fields.Number("uLinkQuality", entry.uLinkQuality);
    fields.Number("bInRegDomain", entry.bInRegDomain);
    fields.Number("usBeaconPeriod", entry.usBeaconPeriod);
    fields.Number("ullTimestamp", entry.ullTimestamp);
    fields.Number("ullHostTimestamp", entry.ullHostTimestamp);
    fields.Number("usCapabilityInformation", entry.usCapabilityInformation);
    fields.Number("ulChCenterFrequency", entry.ulChCenterFrequency);
    // The length of the rates is in bytes.
    fields.Number("uRateSetLength", entry.wlanRateSet.uRateSetLength);
    DescribeNumbers(fields, "usRateSet", entry.wlanRateSet.usRateSet,
                    entry.wlanRateSet.uRateSetLength / sizeof(entry.wlanRateSet.usRateSet[0]));
}

void Describe(Fields fields, WLAN_PROFILE_INFO& profile)
{
    fields.Name("strProfileName", profile.strProfileName);
    fields.Number("dwFlags", profile.dwFlags);
}

void Describe(Fields fields, WLAN_CONNECTION_ATTRIBUTES& attributes)
{
    fields.Number("isState", attributes.isState);
    fields.Number("wlanConnectionMode", attributes.wlanConnectionMode);
    fields.Name("strProfileName", attributes.strProfileName);
    Describe(fields.Object("wlanAssociationAttributes"), attributes.wlanAssociationAttributes);
    Describe(fields.Object("wlanSecurityAttributes"), attributes.wlanSecurityAttributes);
}

void Describe(Fields fields, WLAN_PHY_RADIO_STATE& phy)
{
    fields.Number("dwPhyIndex", phy.dwPhyIndex);
    fields.Number("dot11SoftwareRadioState", phy.dot11SoftwareRadioState);
    fields.Number("dot11HardwareRadioState", phy.dot11HardwareRadioState);
}

void Describe(Fields fields, WLAN_RADIO_STATE& radio)
{
    fields.Number("dwNumberOfPhys", radio.dwNumberOfPhys);
    DescribeNumbers(fields, "PhyRadioState", radio.PhyRadioState, radio.dwNumberOfPhys);
}

void Describe(Fields fields, WLAN_PHY_FRAME_STATISTICS& counters)
{
    fields.Number("ullTransmittedFrameCount", counters.ullTransmittedFrameCount);
    fields.Number("ullMulticastTransmittedFrameCount", counters.ullMulticastTransmittedFrameCount);
    fields.Number("ullFailedCount", counters.ullFailedCount);
    fields.Number("ullRetryCount", counters.ullRetryCount);
    fields.Number("ullMultipleRetryCount", counters.ullMultipleRetryCount);
    fields.Number("ullMaxTXLifetimeExceededCount", counters.ullMaxTXLifetimeExceededCount);
    fields.Number("ullTransmittedFragmentCount", counters.ullTransmittedFragmentCount);
    fields.Number("ullRTSSuccessCount", counters.ullRTSSuccessCount);
    fields.Number("ullRTSFailureCount", counters.ullRTSFailureCount);
    fields.Number("ullACKFailureCount", counters.ullACKFailureCount);
    fields.Number("ullReceivedFrameCount", counters.ullReceivedFrameCount);
    fields.Number("ullMulticastReceivedFrameCount", counters.ullMulticastReceivedFrameCount);
    fields.Number("ullPromiscuousReceivedFrameCount", counters.ullPromiscuousReceivedFrameCount);
    fields.Number("ullMaxRXLifetimeExceededCount", counters.ullMaxRXLifetimeExceededCount);
    fields.Number("ullFrameDuplicateCount", counters.ullFrameDuplicateCount);
    fields.Number("ullReceivedFragmentCount", counters.ullReceivedFragmentCount);
    fields.Number("ullPromiscuousReceivedFragmentCount", counters.ullPromiscuousReceivedFragmentCount);
    fields.Number("ullFCSErrorCount", counters.ullFCSErrorCount);
}

void Describe(Fields fields, WLAN_STATISTICS& statistics)
{
    fields.Number("ullFourWayHandshakeFailures", statistics.ullFourWayHandshakeFailures);
    fields.Number("ullTKIPCounterMeasuresInvoked", statistics.ullTKIPCounterMeasuresInvoked);
    Describe(fields.Object("MacUcastCounters"), statistics.MacUcastCounters);
    Describe(fields.Object("MacMcastCounters"), statistics.MacMcastCounters);
}

void Describe(Fields fields, WLAN_MSM_NOTIFICATION_DATA& data)
{
    DescribeConnectionNews(fields, data);
    fields.Address("dot11MacAddr", data.dot11MacAddr);
    fields.Number("bFirstPeer", data.bFirstPeer);
    fields.Number("bLastPeer", data.bLastPeer);
}

void Describe(Fields fields, WLAN_CONNECTION_NOTIFICATION_DATA& data)
{
    DescribeConnectionNews(fields, data);
    fields.Number("dwFlags", data.dwFlags);
}

} // namespace calvix::recording
