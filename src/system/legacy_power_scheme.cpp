#include <calvix/wireless_manage.h>

#include "platform/platform.h"

using calvix::platform::power;

namespace
{

/// The scheme that is active now, on a computer that can sleep. 0; -1 it cannot, -2 the scheme cannot be told.
long FindActiveScheme(UINT& schemeId)
{
    if (!power().IsPwrSuspendAllowed())
        return -1;
    return power().GetActivePwrScheme(&schemeId) ? 0 : -2;
}

/// Gives a scheme another policy and makes it active, so that the policy is in force. 0 or the caller's codes.
long PutInForce(UINT schemeId, POWER_POLICY& policy, long writingFailed, long activatingFailed)
{
    if (!power().WritePwrScheme(&schemeId, nullptr, nullptr, &policy))
        return writingFailed;
    return power().SetActivePwrScheme(schemeId, nullptr, &policy) ? 0 : activatingFailed;
}

} // namespace

long CWirelessManage::SetPowerScheme()
{
    UINT schemeId = 0;
    POWER_POLICY policy{};
    if (const long code = FindActiveScheme(schemeId); code != 0)
        return code;
    if (!power().ReadPwrScheme(schemeId, &policy))
        return -3;
    // Deliberate: an earlier save is overwritten, so a second call remembers the policy that the first one made.
    m_SavedPowerPolicy = policy;
    policy.user.IdleTimeoutAc = 0;
    policy.user.IdleTimeoutDc = 0;
    return PutInForce(schemeId, policy, -4, -5);
}

long CWirelessManage::ResetPowerScheme()
{
    UINT schemeId = 0;
    // Deliberate: what was never saved is written, too, as a policy of zeros, and to whichever scheme is active now.
    POWER_POLICY saved = m_SavedPowerPolicy;
    if (const long code = FindActiveScheme(schemeId); code != 0)
        return code;
    return PutInForce(schemeId, saved, -3, -4);
}
