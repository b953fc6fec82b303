#include "model/caller.h"

#include "support/test_scenarios.h"

#include <algorithm>
#include <cstring>

namespace calvix::test
{

namespace
{

void CopyName(const std::wstring& name, wchar_t* destination)
{
    std::copy(name.begin(), name.end(), destination);
    destination[name.size()] = L'\0';
}

} // namespace

Caller::Caller(const Situation& situation)
    : adapter(&AdapterGuid(situation.asked)), name(situation.name), mode(situation.mode)
{
    for (const std::string& ssid : situation.excludedSsids)
    {
        excluded.emplace_back();
        excluded.back().dot11Ssid = MakeSsid(ssid);
    }
    CopyName(situation.rememberedProfile, attributes.strProfileName);
    attributes.wlanAssociationAttributes.dot11Ssid = MakeSsid(situation.rememberedSsid);
    attributes.wlanAssociationAttributes.dot11BssType = static_cast<DOT11_BSS_TYPE>(situation.rememberedBssType);
    attributes.wlanSecurityAttributes.bSecurityEnabled = situation.rememberedSecured ? TRUE : FALSE;
    CopyName(situation.rememberedProfile, notification.strProfileName);
    notification.dot11Ssid = MakeSsid(situation.rememberedSsid);
    notification.dot11BssType = static_cast<DOT11_BSS_TYPE>(situation.rememberedBssType);
    notification.bSecurityEnabled = situation.rememberedSecured ? TRUE : FALSE;
    ForgetAnswers();
}

void Caller::ForgetAnswers()
{
    const Outcome before;
    entries.assign(before.entries.size(), {});
    names = before.names;
    std::strcpy(text, before.text.c_str());
}

Outcome Caller::Answers(long long code, std::vector<Event> events) const
{
    Outcome outcome{.code = code, .events = std::move(events), .entries = {}, .names = names, .text = text};
    for (const WLAN_BSS_ENTRY& entry : entries)
        outcome.entries.push_back(HeardIn(entry));
    return outcome;
}

} // namespace calvix::test
