#include "simulation/reason_texts.h"

#include <calvix/platform_records.h>

#include <algorithm>
#include <iterator>

namespace calvix::simulation
{

namespace
{

struct ReasonEntry
{
    DWORD code;
    const wchar_t* text;
};

constexpr ReasonEntry reasons[] = {
    {WLAN_REASON_CODE_SUCCESS, L"The operation succeeded."},
    {WLAN_REASON_CODE_UNKNOWN, L"The reason is not known."},

    // Auto-configuration
    {WLAN_REASON_CODE_NETWORK_NOT_COMPATIBLE, L"The adapter cannot work with this network."},
    {WLAN_REASON_CODE_PROFILE_NOT_COMPATIBLE, L"The profile does not fit this network."},
    {WLAN_REASON_CODE_NO_AUTO_CONNECTION, L"The profile does not ask for automatic connections."},
    {WLAN_REASON_CODE_NOT_VISIBLE, L"The network is not in sight."},
    {WLAN_REASON_CODE_GP_DENIED, L"Group policy forbids connecting to this network."},
    {WLAN_REASON_CODE_USER_DENIED, L"The user has forbidden connecting to this network."},
    {WLAN_REASON_CODE_BSS_TYPE_NOT_ALLOWED, L"Networks of this type are not allowed on this computer."},
    {WLAN_REASON_CODE_IN_FAILED_LIST, L"Connecting by this profile failed before, so it is passed over."},
    {WLAN_REASON_CODE_IN_BLOCKED_LIST, L"Connecting by this profile failed too often, so it is blocked for a while."},
    {WLAN_REASON_CODE_SSID_LIST_TOO_LONG, L"The profile lists too many network names."},
    {WLAN_REASON_CODE_CONNECT_CALL_FAIL, L"The adapter refused the request to connect."},
    {WLAN_REASON_CODE_SCAN_CALL_FAIL, L"The adapter could not look for networks."},
    {WLAN_REASON_CODE_NETWORK_NOT_AVAILABLE, L"The network is not available."},
    {WLAN_REASON_CODE_PROFILE_CHANGED_OR_DELETED, L"The profile was changed or deleted while it was in use."},
    {WLAN_REASON_CODE_KEY_MISMATCH, L"The key in the profile is not that of the network."},
    {WLAN_REASON_CODE_USER_NOT_RESPOND, L"The user did not answer a question in time."},
    {WLAN_REASON_CODE_AP_PROFILE_NOT_ALLOWED_FOR_CLIENT,
     L"A profile for running an access point cannot be used to connect."},
    {WLAN_REASON_CODE_AP_PROFILE_NOT_ALLOWED, L"A profile for running an access point cannot be used here."},
    {WLAN_REASON_CODE_HOTSPOT2_PROFILE_DENIED, L"The hotspot profile is not permitted."},

    // Media-specific module
    {WLAN_REASON_CODE_UNSUPPORTED_SECURITY_SET_BY_OS,
     L"The operating system does not support the security that the network asks for."},
    {WLAN_REASON_CODE_UNSUPPORTED_SECURITY_SET,
     L"The adapter does not support the security that the network asks for."},
    {WLAN_REASON_CODE_BSS_TYPE_UNMATCH, L"The network is of another type than the profile says."},
    {WLAN_REASON_CODE_PHY_TYPE_UNMATCH, L"The adapter and the network have no kind of radio in common."},
    {WLAN_REASON_CODE_DATARATE_UNMATCH, L"The adapter and the network have no data rate in common."},
    {WLAN_REASON_CODE_USER_CANCELLED, L"The attempt was cancelled."},
    {WLAN_REASON_CODE_ASSOCIATION_FAILURE, L"The access point did not admit the adapter."},
    {WLAN_REASON_CODE_ASSOCIATION_TIMEOUT, L"The access point did not answer in time."},
    {WLAN_REASON_CODE_PRE_SECURITY_FAILURE, L"Security could not be prepared before associating."},
    {WLAN_REASON_CODE_START_SECURITY_FAILURE, L"Security could not be started after associating."},
    {WLAN_REASON_CODE_SECURITY_FAILURE, L"Security could not be agreed on with the access point."},
    {WLAN_REASON_CODE_SECURITY_TIMEOUT, L"Agreeing on security with the access point took too long."},
    {WLAN_REASON_CODE_ROAMING_FAILURE, L"The adapter could not move to another access point."},
    {WLAN_REASON_CODE_ROAMING_SECURITY_FAILURE,
     L"Security could not be agreed on when moving to another access point."},
    {WLAN_REASON_CODE_ADHOC_SECURITY_FAILURE, L"Security could not be set up in the ad hoc network."},
    {WLAN_REASON_CODE_DRIVER_DISCONNECTED, L"The adapter's driver ended the connection."},
    {WLAN_REASON_CODE_DRIVER_OPERATION_FAILURE, L"The adapter's driver failed."},
    {WLAN_REASON_CODE_IHV_NOT_AVAILABLE, L"The service of the adapter's maker is not there."},
    {WLAN_REASON_CODE_IHV_NOT_RESPONDING, L"The service of the adapter's maker does not answer."},
    {WLAN_REASON_CODE_DISCONNECT_TIMEOUT, L"Ending the connection took the driver too long."},
    {WLAN_REASON_CODE_INTERNAL_FAILURE, L"The service failed for a reason inside itself."},
    {WLAN_REASON_CODE_UI_REQUEST_TIMEOUT, L"A question to the user was not answered in time."},
    {WLAN_REASON_CODE_TOO_MANY_SECURITY_ATTEMPTS, L"Agreeing on security was tried too often."},
    {WLAN_REASON_CODE_AP_STARTING_FAILURE, L"The access point on this computer could not be started."},
    {WLAN_REASON_CODE_NO_VISIBLE_AP, L"No access point of the network is in reach."},

    // Security: the profile
    {WLAN_REASON_CODE_MSMSEC_PROFILE_INVALID_KEY_INDEX, L"The key index in the profile is not valid."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_PSK_PRESENT,
     L"The profile holds a pre-shared key that its security has no use for."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_KEY_LENGTH, L"The key in the profile has the wrong length."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_PSK_LENGTH, L"The passphrase in the profile is too short or too long."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_NO_AUTH_CIPHER_SPECIFIED,
     L"The profile does not say how to authenticate and encrypt."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_TOO_MANY_AUTH_CIPHER_SPECIFIED,
     L"The profile gives too many ways to authenticate and encrypt."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_DUPLICATE_AUTH_CIPHER,
     L"The profile gives a way to authenticate and encrypt twice."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_RAWDATA_INVALID, L"The 802.1X part of the profile cannot be read."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_INVALID_AUTH_CIPHER,
     L"This authentication and this encryption do not go together."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_ONEX_DISABLED,
     L"The profile's security needs 802.1X, which the profile switches off."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_ONEX_ENABLED, L"The profile switches 802.1X on, which its security cannot use."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_INVALID_PMKCACHE_MODE, L"The profile's setting for cached keys is not valid."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_INVALID_PMKCACHE_SIZE, L"The profile's number of cached keys is out of range."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_INVALID_PMKCACHE_TTL, L"The profile's lifetime of cached keys is out of range."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_INVALID_PREAUTH_MODE,
     L"The profile's setting for authenticating in advance is not valid."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_INVALID_PREAUTH_THROTTLE,
     L"The profile's limit for authenticating in advance is out of range."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_PREAUTH_ONLY_ENABLED,
     L"The profile authenticates in advance without caching keys."},
    {WLAN_REASON_CODE_MSMSEC_CAPABILITY_NETWORK, L"The network cannot do what the profile's security asks for."},
    {WLAN_REASON_CODE_MSMSEC_CAPABILITY_NIC, L"The adapter cannot do what the profile's security asks for."},
    {WLAN_REASON_CODE_MSMSEC_CAPABILITY_PROFILE, L"The profile cannot do what the network's security asks for."},
    {WLAN_REASON_CODE_MSMSEC_CAPABILITY_DISCOVERY, L"The network's security could not be made out."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_PASSPHRASE_CHAR, L"The passphrase has a character that it may not have."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_KEYMATERIAL_CHAR, L"The key has a character that it may not have."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_WRONG_KEYTYPE, L"The profile's security needs the other type of key."},
    {WLAN_REASON_CODE_MSMSEC_MIXED_CELL, L"The network mixes secured and open access points."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_AUTH_TIMERS_INVALID, L"The profile's authentication times are not valid."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_INVALID_GKEY_INTV, L"The profile's group key interval is not valid."},
    {WLAN_REASON_CODE_MSMSEC_TRANSITION_NETWORK, L"The network is changing from one kind of security to another."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_KEY_UNMAPPED_CHAR, L"The key has a character that cannot be converted."},
    {WLAN_REASON_CODE_MSMSEC_CAPABILITY_PROFILE_AUTH, L"The network does not offer the profile's authentication."},
    {WLAN_REASON_CODE_MSMSEC_CAPABILITY_PROFILE_CIPHER, L"The network does not offer the profile's encryption."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_SAFE_MODE,
     L"The profile asks for safe mode and for something that safe mode excludes."},
    {WLAN_REASON_CODE_MSMSEC_CAPABILITY_PROFILE_SAFE_MODE_NIC,
     L"The profile asks for safe mode, which the adapter does not support."},
    {WLAN_REASON_CODE_MSMSEC_CAPABILITY_PROFILE_SAFE_MODE_NW,
     L"The profile asks for safe mode, which the network does not support."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_UNSUPPORTED_AUTH, L"The profile's authentication is not supported."},
    {WLAN_REASON_CODE_MSMSEC_PROFILE_UNSUPPORTED_CIPHER, L"The profile's encryption is not supported."},
    {WLAN_REASON_CODE_MSMSEC_CAPABILITY_MFP_NW_NIC,
     L"The network protects management frames, which the adapter cannot do."},

    // Security: the handshake
    {WLAN_REASON_CODE_MSMSEC_UI_REQUEST_FAILURE, L"The user could not be asked for what authenticating needs."},
    {WLAN_REASON_CODE_MSMSEC_AUTH_START_TIMEOUT, L"The network did not start to authenticate in time."},
    {WLAN_REASON_CODE_MSMSEC_AUTH_SUCCESS_TIMEOUT, L"Authenticating was not finished in time."},
    {WLAN_REASON_CODE_MSMSEC_KEY_START_TIMEOUT, L"The access point did not start to agree on keys in time."},
    {WLAN_REASON_CODE_MSMSEC_KEY_SUCCESS_TIMEOUT, L"Agreeing on keys was not finished in time."},
    {WLAN_REASON_CODE_MSMSEC_M3_MISSING_KEY_DATA, L"The third message of the key handshake has no key data."},
    {WLAN_REASON_CODE_MSMSEC_M3_MISSING_IE, L"The third message of the key handshake does not name the security."},
    {WLAN_REASON_CODE_MSMSEC_M3_MISSING_GRP_KEY, L"The third message of the key handshake has no group key."},
    {WLAN_REASON_CODE_MSMSEC_PR_IE_MATCHING, L"The security named in the handshake is not that of the beacons."},
    {WLAN_REASON_CODE_MSMSEC_SEC_IE_MATCHING,
     L"The second security named in the handshake is not that of the beacons."},
    {WLAN_REASON_CODE_MSMSEC_NO_PAIRWISE_KEY, L"There is no pairwise key to check a message with."},
    {WLAN_REASON_CODE_MSMSEC_G1_MISSING_KEY_DATA, L"The first message of the group key handshake has no key data."},
    {WLAN_REASON_CODE_MSMSEC_G1_MISSING_GRP_KEY, L"The first message of the group key handshake has no group key."},
    {WLAN_REASON_CODE_MSMSEC_PEER_INDICATED_INSECURE, L"The other side reset a message that should have been secured."},
    {WLAN_REASON_CODE_MSMSEC_NO_AUTHENTICATOR, L"There is nobody to authenticate with."},
    {WLAN_REASON_CODE_MSMSEC_NIC_FAILURE, L"The adapter could not take over the security settings."},
    {WLAN_REASON_CODE_MSMSEC_CANCELLED, L"Authenticating was cancelled."},
    {WLAN_REASON_CODE_MSMSEC_KEY_FORMAT, L"The key is not in the form that was expected."},
    {WLAN_REASON_CODE_MSMSEC_DOWNGRADE_DETECTED, L"The other side offered weaker security than before."},
    {WLAN_REASON_CODE_MSMSEC_PSK_MISMATCH_SUSPECTED, L"The passphrase is probably wrong."},
    {WLAN_REASON_CODE_MSMSEC_FORCED_FAILURE, L"The connection was refused because it was not secure."},
    {WLAN_REASON_CODE_MSMSEC_M3_TOO_MANY_RSNIE,
     L"The third message of the key handshake names its security too often."},
    {WLAN_REASON_CODE_MSMSEC_M2_MISSING_KEY_DATA, L"The second message of the key handshake has no key data."},
    {WLAN_REASON_CODE_MSMSEC_M2_MISSING_IE, L"The second message of the key handshake does not name the security."},
    {WLAN_REASON_CODE_MSMSEC_AUTH_WCN_COMPLETED, L"Authenticating gave way to the network's own setting-up."},
    {WLAN_REASON_CODE_MSMSEC_M3_MISSING_MGMT_GRP_KEY,
     L"The third message of the key handshake has no group key for management frames."},
    {WLAN_REASON_CODE_MSMSEC_G1_MISSING_MGMT_GRP_KEY,
     L"The first message of the group key handshake has no group key for management frames."},

    // Profile text
    {WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA, L"The profile is not in the form required."},
    {WLAN_REASON_CODE_PROFILE_MISSING, L"There is no profile."},
    {WLAN_REASON_CODE_INVALID_PROFILE_NAME, L"The profile's name is not valid."},
    {WLAN_REASON_CODE_INVALID_PROFILE_TYPE, L"The profile's connection type is not valid."},
    {WLAN_REASON_CODE_INVALID_PHY_TYPE, L"The profile's kind of radio is not valid."},
    {WLAN_REASON_CODE_MSM_SECURITY_MISSING, L"The profile has no security settings."},
    {WLAN_REASON_CODE_IHV_SECURITY_NOT_SUPPORTED,
     L"The adapter does not support security settings of its maker's own."},
    {WLAN_REASON_CODE_IHV_OUI_MISMATCH, L"The profile is meant for adapters of another maker."},
    {WLAN_REASON_CODE_IHV_OUI_MISSING, L"The profile does not say which maker's adapters its settings are for."},
    {WLAN_REASON_CODE_IHV_SETTINGS_MISSING, L"The profile has no settings for the adapter's maker."},
    {WLAN_REASON_CODE_CONFLICT_SECURITY, L"The profile's security settings contradict each other."},
    {WLAN_REASON_CODE_SECURITY_MISSING, L"The profile has no security at all."},
    {WLAN_REASON_CODE_INVALID_BSS_TYPE, L"The profile's network type is not valid."},
    {WLAN_REASON_CODE_INVALID_ADHOC_CONNECTION_MODE, L"Ad hoc networks cannot be joined automatically."},
    {WLAN_REASON_CODE_NON_BROADCAST_SET_FOR_ADHOC, L"Ad hoc networks cannot be hidden."},
    {WLAN_REASON_CODE_AUTO_SWITCH_SET_FOR_ADHOC, L"Ad hoc networks cannot be left automatically for another network."},
    {WLAN_REASON_CODE_AUTO_SWITCH_SET_FOR_MANUAL_CONNECTION,
     L"A network that is joined by hand cannot be left automatically for another."},
    {WLAN_REASON_CODE_IHV_SECURITY_ONEX_MISSING, L"The profile has no 802.1X settings for the maker's own security."},
    {WLAN_REASON_CODE_PROFILE_SSID_INVALID, L"The network's name in the profile is not valid."},
    {WLAN_REASON_CODE_TOO_MANY_SSID, L"The profile gives more network names than one."},
    {WLAN_REASON_CODE_IHV_CONNECTIVITY_NOT_SUPPORTED,
     L"The adapter does not support connection settings of its maker's own."},
    {WLAN_REASON_CODE_BAD_MAX_NUMBER_OF_CLIENTS_FOR_AP, L"The number of clients of the access point is out of range."},
    {WLAN_REASON_CODE_INVALID_CHANNEL, L"The channel is not valid."},
    {WLAN_REASON_CODE_OPERATION_MODE_NOT_SUPPORTED, L"The adapter does not support this mode of operation."},
    {WLAN_REASON_CODE_AUTO_AP_PROFILE_NOT_ALLOWED, L"An access point cannot be started automatically by a profile."},
    {WLAN_REASON_CODE_AUTO_CONNECTION_NOT_ALLOWED, L"This profile may not be used to connect automatically."},
    {WLAN_REASON_CODE_HOTSPOT2_PROFILE_NOT_ALLOWED, L"Hotspot profiles are not allowed here."},
};

} // namespace

std::wstring_view ReasonText(DWORD reasonCode)
{
    const auto* const known = std::find_if(std::begin(reasons), std::end(reasons),
                                           [reasonCode](const ReasonEntry& entry) { return entry.code == reasonCode; });
    return known != std::end(reasons) ? known->text : L"The service has no text for this reason.";
}

} // namespace calvix::simulation
