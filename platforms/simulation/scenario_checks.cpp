#include "simulation/scenario_checks.h"

#include "forms/channel.h"
#include "forms/utf8.h"
#include "simulation/ascii_case.h"
#include "simulation/privileges.h"
#include "simulation/profile_document.h"
#include "simulation/scenario_forms.h"

#include <algorithm>
#include <set>

namespace calvix::simulation
{

namespace
{

std::string NameInProfile(const Value& place, const std::string& xml)
{
    ProfileRefusal refusal{};
    const std::optional<ProfileDocument> document = ParseProfile(xml, refusal);
    if (!document)
        (place.Has("xml") ? place.Member("xml") : place)
            .Refuse("the WLAN service does not take this profile: error " + std::to_string(refusal.error) +
                    ", reason code " + std::to_string(refusal.reason));
    return forms::Utf8FromWide(document->name);
}

bool IsSame(const std::string& one, const std::string& other)
{
    return SameButForCase(one, other);
}

bool IsSame(std::uint32_t one, std::uint32_t other)
{
    return one == other;
}

/// The active one of the schemes: the first one that the file lists, if the file does not say.
template <typename Scheme, typename Id>
void CompleteActive(const Value& place,
                    const char* listName,
                    const char* activeName,
                    const std::vector<Scheme>& schemes,
                    Id Scheme::*id,
                    std::optional<Id>& active,
                    const char* problem)
{
    if (place.Has(listName) && !place.Has(activeName))
        active = schemes.empty() ? std::nullopt : std::optional(schemes.front().*id);
    const auto isActive = [&](const Scheme& each) { return IsSame(each.*id, *active); };
    if (active && std::none_of(schemes.begin(), schemes.end(), isActive))
        place.Member(activeName).Refuse(problem);
}

} // namespace

void CompleteAccessPoint(const Value& place, const std::string& band, std::uint32_t channel, AccessPoint& point)
{
    if (place.Has("channel"))
    {
        const std::optional<std::uint32_t> frequency = forms::ChannelFrequency(band, channel);
        if (!frequency)
            place.Member("channel").Refuse("the " + band + " GHz band has no channel " + std::to_string(channel));
        point.frequencyKhz = *frequency;
    }
    for (std::size_t index = 1; index < point.timetable.size(); ++index)
        if (point.timetable[index].at <= point.timetable[index - 1].at)
            place.Member("timetable").Element(index).Member("at").Refuse("not later than the point before it");
}

void CompleteProfile(const Value& place, ProfileSettings& shortForm, StoredProfile& profile)
{
    if (place.Has("xml"))
        return;
    if (!place.Has("ssid") && !place.Has("ssidHex"))
        SsidText{}.Read(place.Member("name"), shortForm.ssid);
    // Ad hoc networks are never joined automatically.
    if (!place.Has("mode") && shortForm.bssType == 2)
        shortForm.mode = "manual";
    profile.xml = MakeProfileXml(shortForm);
}

void CompletePower(const Value& place, PowerDescription& power)
{
    CompleteActive(place, "schemes", "activeScheme", power.schemes, &PowerScheme::guid, power.activeScheme,
                   "there is no scheme with this GUID");
    CompleteActive(place, "legacySchemes", "activeLegacyScheme", power.legacySchemes, &LegacyPowerScheme::id,
                   power.activeLegacyScheme, "there is no legacy scheme of this number");
}

void CompletePrivilege(const Value& place, Privilege& privilege)
{
    const std::optional<LUID> known = PrivilegeLuid(privilege.name);
    if (!known)
        place.Member("name").Refuse("the platform has no privilege of this name");
    privilege.name = PrivilegeName(*known);
}

std::vector<IhvRequest> RequestsOf(const AdapterDescription& adapter)
{
    std::vector<IhvRequest> requests;
    for (const auto& [request, answer] : adapter.ihv)
    {
        IhvRequest& each = requests.emplace_back(IhvRequest{request, {}, {}});
        if (answer.error != 0)
            each.error = answer.error;
        else
            each.answer = answer.data;
    }
    return requests;
}

void CompleteAdapter(const Value& place, const std::vector<IhvRequest>& requests, AdapterDescription& adapter)
{
    for (const IhvRequest& each : requests)
        adapter.ihv[each.request] = {each.answer.value_or(Bytes{}), each.error.value_or(0)};
    std::set<std::string> names;
    for (std::size_t index = 0; index < adapter.profiles.size(); ++index)
    {
        const Value profile = place.Member("profiles").Element(index);
        if (!names.insert(NameInProfile(profile, adapter.profiles[index].xml)).second)
            profile.Refuse("the adapter has another profile of this name");
    }
    if (adapter.connection && names.count(adapter.connection->profile) == 0)
        place.Member("connection").Member("profile").Refuse("the adapter has no profile of this name");
}

std::string LowerCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char character)
                   { return character >= 'A' && character <= 'Z' ? static_cast<char>(character + 32) : character; });
    return text;
}

} // namespace calvix::simulation
