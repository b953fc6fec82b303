#include <calvix/wireless_manage.h>

#include "core/service_steps.h"

#include <cstddef>

using namespace calvix;

namespace
{

/// Switches of an interface's first PHY. Deliberate: the other PHYs are ignored, so an adapter whose first PHY is on
/// counts as on.
struct FirstPhy
{
    DOT11_RADIO_STATE software = dot11_radio_state_unknown;
    DOT11_RADIO_STATE hardware = dot11_radio_state_unknown;

    /// Only a switch that says off counts as off; unknown does not.
    bool IsOff() const { return software == dot11_radio_state_off || hardware == dot11_radio_state_off; }
};

constexpr long kNotOpened = -1;
constexpr long kQueryFailed = -4;
constexpr long kNoPhy = -5;

/// Reads the switches: 0, or a code. A missing PHY is traced through a trace of its own, which in most methods is not
/// the one that the failures go through.
long ReadFirstPhy(HANDLE& client, const GUID* interfaceGuid, FirstPhy& phy, Trace& trace, Trace& noPhyTrace)
{
    WlanMemory<WLAN_RADIO_STATE> radio;
    if (OpenClient(client, trace) != 0)
        return kNotOpened;
    DWORD size = 0;
    if (QueryInterface(client, interfaceGuid, wlan_intf_opcode_radio_state, radio,
                       offsetof(WLAN_RADIO_STATE, PhyRadioState), size, trace) != 0)
        return kQueryFailed;
    constexpr std::size_t sizeWithPhy = offsetof(WLAN_RADIO_STATE, PhyRadioState) + sizeof(WLAN_PHY_RADIO_STATE);
    if (radio->dwNumberOfPhys == 0 || size < sizeWithPhy)
    {
        noPhyTrace.Message("No valid Phy");
        return kNoPhy;
    }
    phy.software = radio->PhyRadioState[0].dot11SoftwareRadioState;
    phy.hardware = radio->PhyRadioState[0].dot11HardwareRadioState;
    return 0;
}

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

long CWirelessManage::PhyRadioIsOn2(const GUID* pInterfaceGuid,
                                    unsigned int& softwareState,
                                    unsigned int& hardwareState)
{
    LocalTrace<128> trace;
    FirstPhy phy;
    if (const long code = ReadFirstPhy(hClient, pInterfaceGuid, phy, trace, trace))
        return code;
    softwareState = static_cast<unsigned int>(phy.software);
    hardwareState = static_cast<unsigned int>(phy.hardware);
    return phy.IsOff() ? 0 : 1;
}

long CWirelessManage::PhyRadioIsOn2(const GUID* pInterfaceGuid)
{
    SharedTrace trace;
    FirstPhy phy;
    if (const long code = ReadFirstPhy(hClient, pInterfaceGuid, phy, trace, trace))
        return code;
    return phy.IsOff() ? 0 : 1;
}

int CWirelessManage::PhyRadioIsOn(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    SharedTrace noPhyTrace;
    FirstPhy phy;
    // Deliberate: every failure reads as a radio that is not on.
    if (ReadFirstPhy(hClient, pInterfaceGuid, phy, trace, noPhyTrace) != 0)
        return 0;
    return phy.IsOff() ? 0 : 1;
}

int CWirelessManage::PhyRadioTurnedOff(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    SharedTrace noPhyTrace;
    FirstPhy phy;
    // Deliberate: every failure reads as a radio that is not turned off.
    if (ReadFirstPhy(hClient, pInterfaceGuid, phy, trace, noPhyTrace) != 0)
        return 0;
    return phy.IsOff() ? 1 : 0;
}

long CWirelessManage::PhyRadioTurnedOff2(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    SharedTrace noPhyTrace;
    FirstPhy phy;
    if (const long code = ReadFirstPhy(hClient, pInterfaceGuid, phy, trace, noPhyTrace))
        return code;
    return phy.IsOff() ? 1 : 0;
}

int CWirelessManage::SupportedSafeMode(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    WlanMemory<BOOL> supported;
    if (OpenClient(hClient, trace) != 0)
        return -2;
    DWORD size = 0;
    if (QueryInterface(hClient, pInterfaceGuid, wlan_intf_opcode_supported_safe_mode, supported, sizeof(BOOL), size,
                       trace) != 0)
        return -5;
    return *supported;
}

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
    // Deliberate: the outcome of the two switches is only traced; the result reports only whether the client handle was
    // opened.
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
