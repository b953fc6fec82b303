#include "explain/reason_words.h"
#include <calvix/platform_records.h>

#include "output/code_page.h"

#include <algorithm>
#include <iterator>

namespace calvix::host
{

namespace
{

struct Row
{
    DWORD code;
    const char* meaning;
    const char* advice;
};

constexpr const char* kWrongKey = "the passphrase in the profile is most likely wrong";
constexpr const char* kCorrectKey = "store the profile again with the right passphrase";
constexpr const char* kOutOfRange = "the network is not in view, or has just left it";
constexpr const char* kComeCloser = "go closer, scan, and try again";
constexpr const char* kNoReply = "the access point does not reply";
constexpr const char* kTryElsewhere = "try again; go closer, or use another access point; restart the access point";
constexpr const char* kNoAgreement = "the access point and the adapter could not agree on security";
constexpr const char* kCheckSecurity =
    "check the profile's authentication, encryption and passphrase against the access point's";
constexpr const char* kDriver = "the adapter's driver ended the attempt";
constexpr const char* kRestartRadio = "restart the radio (calvix radio restart), or update the driver";

constexpr Row kReasons[] = {
    {WLAN_REASON_CODE_KEY_MISMATCH, kWrongKey, kCorrectKey},
    {WLAN_REASON_CODE_MSMSEC_PSK_MISMATCH_SUSPECTED, kWrongKey, kCorrectKey},
    {WLAN_REASON_CODE_MSMSEC_KEY_FORMAT, "the passphrase has a form that the network cannot use", kCorrectKey},
    {WLAN_REASON_CODE_NOT_VISIBLE, kOutOfRange, kComeCloser},
    {WLAN_REASON_CODE_NETWORK_NOT_AVAILABLE, kOutOfRange, kComeCloser},
    {WLAN_REASON_CODE_NO_VISIBLE_AP, kOutOfRange, kComeCloser},
    {WLAN_REASON_CODE_ASSOCIATION_TIMEOUT, kNoReply, kTryElsewhere},
    {WLAN_REASON_CODE_ASSOCIATION_FAILURE, "the access point rejected the adapter",
     "it may be full or accept only known addresses: ask its administrator"},
    {WLAN_REASON_CODE_PRE_SECURITY_FAILURE, kNoAgreement, kCheckSecurity},
    {WLAN_REASON_CODE_START_SECURITY_FAILURE, kNoAgreement, kCheckSecurity},
    {WLAN_REASON_CODE_SECURITY_FAILURE, kNoAgreement, kCheckSecurity},
    {WLAN_REASON_CODE_SECURITY_TIMEOUT, kNoAgreement, kCheckSecurity},
    {WLAN_REASON_CODE_TOO_MANY_SECURITY_ATTEMPTS, kNoAgreement, kCheckSecurity},
    {WLAN_REASON_CODE_ROAMING_FAILURE, "the move to the other access point failed", kComeCloser},
    {WLAN_REASON_CODE_ROAMING_SECURITY_FAILURE, "the move to the other access point failed", kCheckSecurity},
    {WLAN_REASON_CODE_DRIVER_DISCONNECTED, kDriver, kRestartRadio},
    {WLAN_REASON_CODE_DRIVER_OPERATION_FAILURE, kDriver, kRestartRadio},
    {WLAN_REASON_CODE_USER_CANCELLED, "the attempt was cancelled for another one, or by a user", "try again"},
    {WLAN_REASON_CODE_PROFILE_CHANGED_OR_DELETED, "the profile was changed or deleted during the attempt", "try again"},
    {WLAN_REASON_CODE_GP_DENIED, "a group policy forbids this network", "ask the administrator"},
    {WLAN_REASON_CODE_USER_DENIED, "the network is on the computer's list of blocked networks",
     "remove it from the list (netsh wlan show filters)"},
    {WLAN_REASON_CODE_NETWORK_NOT_COMPATIBLE, "the adapter cannot work with this network",
     "use an adapter that supports its band and its security"},
    {WLAN_REASON_CODE_PROFILE_NOT_COMPATIBLE, "the profile does not fit the network", kCheckSecurity},
};

} // namespace

ReasonAdvice AdviseOnReason(DWORD reasonCode)
{
    const auto row = std::find_if(std::begin(kReasons), std::end(kReasons),
                                  [reasonCode](const Row& candidate) { return candidate.code == reasonCode; });
    return row != std::end(kReasons) ? ReasonAdvice{row->meaning, row->advice} : ReasonAdvice{};
}

std::string ReasonInServiceWords(CWirelessManage& manager, DWORD reasonCode)
{
    char text[512] = {};
    if (!manager.ReasonCode2String(reasonCode, text, static_cast<int>(sizeof(text))) || text[0] == '\0')
        return "no text for reason code " + std::to_string(reasonCode);
    return FromActiveCodePage(text);
}

} // namespace calvix::host
