#include "methods/method_row.h"

namespace calvix::benchmarks
{

Rows RadioRows()
{
    return {
        Row("PhyRadioIsOn(GUID const*)", [](auto& side, Scene& s) { return side.PhyRadioIsOn(&s.guid); }),
        Row("PhyRadioIsOn2(GUID const*)", [](auto& side, Scene& s) { return side.PhyRadioIsOn2(&s.guid); }),
        Row("PhyRadioIsOn2(GUID const*, unsigned int&, unsigned int&)", [](auto& side, Scene& s)
            { return side.PhyRadioIsOn2(&s.guid, s.out.plain.software, s.out.plain.hardware); }),
        Row("PhyRadioTurnedOff(GUID const*)", [](auto& side, Scene& s) { return side.PhyRadioTurnedOff(&s.guid); }),
        Row("PhyRadioTurnedOff2(GUID const*)", [](auto& side, Scene& s) { return side.PhyRadioTurnedOff2(&s.guid); }),
        Row("SupportedSafeMode(GUID const*)", [](auto& side, Scene& s) { return side.SupportedSafeMode(&s.guid); }),
        Row("RadioTurnOn(GUID const*)", [](auto& side, Scene& s) { return side.RadioTurnOn(&s.guid); }),
        Row("TurnOnSoftwareRadio(GUID const*)", [](auto& side, Scene& s) { return side.TurnOnSoftwareRadio(&s.guid); }),
        Row("TurnOnSoftwareRadio(GUID const*, unsigned long&)",
            [](auto& side, Scene& s) { return side.TurnOnSoftwareRadio(&s.guid, s.out.plain.number); }),
        Row("RadioTurnOff(GUID const*)", [](auto& side, Scene& s) { return side.RadioTurnOff(&s.guid); }),
        Row("ResetWiFiRadio(GUID const*)", [](auto& side, Scene& s) { return side.ResetWiFiRadio(&s.guid); },
            {.note = "its half second takes no time in either service"}),
        Row("RestartWiFiRadio(GUID const*)", [](auto& side, Scene& s) { side.RestartWiFiRadio(&s.guid); },
            {.note = "its seconds take no time in either service"}),
        Row("EnableAutoCfg(GUID const*)", [](auto& side, Scene& s) { return side.EnableAutoCfg(&s.guid); }),
        Row("EnableBackgroundScan(GUID const*)",
            [](auto& side, Scene& s) { return side.EnableBackgroundScan(&s.guid); }),
        Row("GetPowerSetting(unsigned long&)",
            [](auto& side, Scene& s) { return side.GetPowerSetting(s.out.plain.number); }),
        Row("SetPowerSetting(unsigned long)", [](auto& side, Scene&) { return side.SetPowerSetting(1); }),
        Row("SetIhvSecuritySettings()", [](auto& side, Scene&) { return side.SetIhvSecuritySettings(); }),
        Row("IhvControl(GUID const*, void*, unsigned long, unsigned long&)",
            [](auto& side, Scene& s) { return side.IhvControl(&s.guid, s.request, 4, s.out.plain.number); }),
    };
}

} // namespace calvix::benchmarks
