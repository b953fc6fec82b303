// The functions of the WLAN API that the simulated computer does not support: they exist, so that a program linked
// with them starts, and say so. No header is included that declares them, and none of them looks at its arguments: on 64
// bits it is the caller who takes those away.

#define CALVIX_NOT_SUPPORTED(name)                                                                                     \
    extern "C" unsigned long name()                                                                                    \
    {                                                                                                                  \
        constexpr unsigned long notSupported = 50; /* ERROR_NOT_SUPPORTED */                                           \
        return notSupported;                                                                                           \
    }

// Newer forms of functions that are there.
CALVIX_NOT_SUPPORTED(WlanConnect2)
CALVIX_NOT_SUPPORTED(WlanGetAvailableNetworkList2)

// Networks that are permitted or denied.
CALVIX_NOT_SUPPORTED(WlanGetFilterList)
CALVIX_NOT_SUPPORTED(WlanSetFilterList)

// Credentials for 802.1X, and notices before a connection is made.
CALVIX_NOT_SUPPORTED(WlanExtractPsdIEDataList)
CALVIX_NOT_SUPPORTED(WlanSetProfileEapUserData)
CALVIX_NOT_SUPPORTED(WlanSetProfileEapXmlUserData)
CALVIX_NOT_SUPPORTED(WlanSetPsdIEDataList)

// Hosted networks and virtual stations.
CALVIX_NOT_SUPPORTED(WlanHostedNetworkForceStart)
CALVIX_NOT_SUPPORTED(WlanHostedNetworkForceStop)
CALVIX_NOT_SUPPORTED(WlanHostedNetworkInitSettings)
CALVIX_NOT_SUPPORTED(WlanHostedNetworkQueryProperty)
CALVIX_NOT_SUPPORTED(WlanHostedNetworkQuerySecondaryKey)
CALVIX_NOT_SUPPORTED(WlanHostedNetworkQueryStatus)
CALVIX_NOT_SUPPORTED(WlanHostedNetworkRefreshSecuritySettings)
CALVIX_NOT_SUPPORTED(WlanHostedNetworkSetProperty)
CALVIX_NOT_SUPPORTED(WlanHostedNetworkSetSecondaryKey)
CALVIX_NOT_SUPPORTED(WlanHostedNetworkStartUsing)
CALVIX_NOT_SUPPORTED(WlanHostedNetworkStopUsing)
CALVIX_NOT_SUPPORTED(WlanRegisterVirtualStationNotification)

// Device services.
CALVIX_NOT_SUPPORTED(WlanDeviceServiceCommand)
CALVIX_NOT_SUPPORTED(WlanGetSupportedDeviceServices)
CALVIX_NOT_SUPPORTED(WlanRegisterDeviceServiceNotification)

// Wi-Fi Direct.
CALVIX_NOT_SUPPORTED(WFDCancelOpenSession)
CALVIX_NOT_SUPPORTED(WFDCloseHandle)
CALVIX_NOT_SUPPORTED(WFDCloseSession)
CALVIX_NOT_SUPPORTED(WFDOpenHandle)
CALVIX_NOT_SUPPORTED(WFDOpenLegacySession)
CALVIX_NOT_SUPPORTED(WFDStartOpenSession)
CALVIX_NOT_SUPPORTED(WFDUpdateDeviceVisibility)
