#include <calvix/wireless_manage.h>

#include "core/service_steps.h"

using namespace calvix;

namespace
{

constexpr const char* kSetFailed = "set state failed!err is %u";
constexpr int kPolls = 10;
constexpr DWORD kPollPause = 1000;
constexpr DWORD kResetPause = 500;

/// Asks for the software switch of the first PHY; the hardware switch cannot be set and is passed as unknown.
DWORD SetSoftwareRadio(HANDLE client, const GUID* interfaceGuid, DOT11_RADIO_STATE state)
{
    WLAN_PHY_RADIO_STATE phy{};
    phy.dwPhyIndex = 0;
    phy.dot11SoftwareRadioState = state;
    return platform::wlan().WlanSetInterface(client, interfaceGuid, wlan_intf_opcode_radio_state, sizeof(phy), &phy,
                                             nullptr);
}

int SwitchRadio(HANDLE& client, const GUID* interfaceGuid, DOT11_RADIO_STATE state, unsigned long& error, Trace& trace)
{
    if (const ErrorNumber openError = OpenClient(client, trace))
    {
        error = openError;
        return -1;
    }
    const DWORD setError = SetSoftwareRadio(client, interfaceGuid, state);
    if (trace.Failed(setError, kSetFailed))
    {
        error = setError;
        return -4;
    }
    return 0;
}

/// Polls until the condition holds, at most ten times, pausing after each poll in vain.
template <typename Condition>
void WaitFor(Condition condition)
{
    for (int poll = 0; poll < kPolls && !condition(); ++poll)
        platform::clock().Sleep(kPollPause);
}

} // namespace

int CWirelessManage::RadioTurnOn(const GUID* pInterfaceGuid)
{
    unsigned long error = 0;
    return TurnOnSoftwareRadio(pInterfaceGuid, error);
}

int CWirelessManage::TurnOnSoftwareRadio(const GUID* pInterfaceGuid)
{
    return RadioTurnOn(pInterfaceGuid);
}

int CWirelessManage::TurnOnSoftwareRadio(const GUID* pInterfaceGuid, unsigned long& dwError)
{
    SharedTrace trace;
    return SwitchRadio(hClient, pInterfaceGuid, dot11_radio_state_on, dwError, trace);
}

int CWirelessManage::RadioTurnOff(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    unsigned long error = 0;
    return SwitchRadio(hClient, pInterfaceGuid, dot11_radio_state_off, error, trace);
}

int CWirelessManage::ResetWiFiRadio(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    // Deliberate: the outcome of the two switches is only traced; the result tells of the client handle alone.
    if (!trace.Failed(SetSoftwareRadio(hClient, pInterfaceGuid, dot11_radio_state_off), "set radio failed!err is %u"))
        trace.Message("set radio off OK");
    platform::clock().Sleep(kResetPause);
    if (!trace.Failed(SetSoftwareRadio(hClient, pInterfaceGuid, dot11_radio_state_on), kSetFailed))
        trace.Message("set radio on OK");
    return 0;
}

void CWirelessManage::RestartWiFiRadio(const GUID* pInterfaceGuid)
{
    RadioTurnOff(pInterfaceGuid);
    WaitFor([&] { return PhyRadioTurnedOff(pInterfaceGuid) != 0; });
    RadioTurnOn(pInterfaceGuid);
    WaitFor([&] { return PhyRadioIsOn(pInterfaceGuid) != 0; });
}
