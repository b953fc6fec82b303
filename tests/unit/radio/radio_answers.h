#pragma once

#include "support/edited_answers.h"
#include "support/library_test.h"

namespace calvix::test
{

/// Answers the radio query with these switches of the first PHY.
inline AnswerChanges WithFirstPhy(unsigned software, unsigned hardware)
{
    const auto change = [software, hardware](WLAN_INTF_OPCODE opcode, PVOID data, DWORD&)
    {
        ASSERT_EQ(wlan_intf_opcode_radio_state, opcode);
        WLAN_PHY_RADIO_STATE& first = static_cast<WLAN_RADIO_STATE*>(data)->PhyRadioState[0];
        first.dot11SoftwareRadioState = static_cast<DOT11_RADIO_STATE>(software);
        first.dot11HardwareRadioState = static_cast<DOT11_RADIO_STATE>(hardware);
    };
    return {.query = change};
}

/// Answers the radio query with no PHY at all; what lies where the first one would be says off.
inline AnswerChanges WithoutPhy()
{
    const auto change = [](WLAN_INTF_OPCODE, PVOID data, DWORD&)
    {
        auto& radio = *static_cast<WLAN_RADIO_STATE*>(data);
        radio.dwNumberOfPhys = 0;
        radio.PhyRadioState[0].dot11SoftwareRadioState = dot11_radio_state_off;
    };
    return {.query = change};
}

} // namespace calvix::test
