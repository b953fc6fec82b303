#include "view/radio_view.h"

namespace calvix::host
{

namespace
{

const char* SwitchText(unsigned int state)
{
    if (state == dot11_radio_state_on)
        return "on";
    return state == dot11_radio_state_off ? "off" : "unknown";
}

} // namespace

JsonRecord Describe(const RadioFacts& radio)
{
    const Shape position{.among = {"on", "off", "unknown"}};
    return JsonRecord()
        .Add("on", radio.on)
        .Add("software", radio.software, position)
        .Add("hardware", radio.hardware, position);
}

RadioFacts ReadRadio(Host& host, const GUID* adapter)
{
    unsigned int software = dot11_radio_state_unknown;
    unsigned int hardware = dot11_radio_state_unknown;
    RadioFacts facts;
    facts.on = host.Check("PhyRadioIsOn2", host.manager().PhyRadioIsOn2(adapter, software, hardware)) == 1;
    facts.software = SwitchText(software);
    facts.hardware = SwitchText(hardware);
    return facts;
}

} // namespace calvix::host
