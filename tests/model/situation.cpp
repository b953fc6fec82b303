#include "model/situation.h"

#include "support/test_scenarios.h"

#include <cstring>
#include <sstream>
#include <tuple>

namespace calvix::test
{

namespace
{

/// The same numbers in every build, unlike the standard library's distributions.
class Dice
{
public:
    explicit Dice(std::uint64_t seed) : m_state(seed * 0x9E3779B97F4A7C15u + 1) {}

    unsigned Below(std::size_t limit) { return static_cast<unsigned>(Next() % limit); }
    bool OneIn(unsigned count) { return Below(count) == 0; }

    template <typename Container>
    const auto& OneOf(const Container& values)
    {
        return values[Below(values.size())];
    }

private:
    std::uint64_t Next()
    {
        std::uint64_t mixed = m_state += 0x9E3779B97F4A7C15u;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
        return mixed ^ (mixed >> 31);
    }

    std::uint64_t m_state;
};

/// A name that makes a profile's text so long that its connection mode lies beyond the first 1024 characters.
const std::string kLongName(200, '&');

using Ssids = std::vector<std::string>;

/// Many begin with each other, or differ in case only.
const Ssids kSsids = {"Net",
                      "Net",
                      "NetA",
                      "NetAB",
                      "net",
                      "N",
                      "Caf\xC3\xA9",
                      "Caf\xE9",
                      "Other",
                      std::string("Net\0X", 5),
                      "a network name of 32 bytes, full"};
/// For situations in which every network has many access points.
const Ssids kFewSsids = {"Net", "NetA", "N"};
const std::vector<std::string> kNames = {"Net", "NetA", "NetAB", "net", "N",  "Other", "P1", "P2",
                                         "P3",  "P4",   "P5",    "P6",  "P7", "P8",    "P9", "Caf\xC3\xA9"};

/// The bonus begins or ends around most of these.
const std::vector<std::uint32_t> kFrequencies = {2412000, 2437000, 2472000, 2484000, 2485000, 3995000, 3996000,
                                                 4070000, 4071000, 4999000, 5000000, 5070000, 5074000, 5075000,
                                                 5180000, 5745000, 5955000, 7115000, 2413000, 10000};
const std::vector<std::int32_t> kStrengths = {-99, -95, -90, -85, -80, -75, -72, -70, -68, -65,
                                              -62, -61, -60, -59, -58, -55, -53, -51, -50, -45};

std::wstring WideAscii(const std::string& text)
{
    return {text.begin(), text.end()};
}

bool IsAscii(const std::string& text)
{
    for (const char character : text)
        if (static_cast<unsigned char>(character) >= 0x80)
            return false;
    return true;
}

std::wstring WideName(const std::string& name)
{
    return IsAscii(name) ? WideAscii(name) : L"Caf\u00E9";
}

simulation::AccessPoint MakeHeard(Dice& dice, const Ssids& ssids, std::uint8_t number)
{
    // One after the other: compilers evaluate arguments in different orders, and each is to make the same situations.
    const std::int32_t strength = dice.OneOf(kStrengths);
    const std::uint32_t frequency = dice.OneOf(kFrequencies);
    const std::string& ssid = dice.OneOf(ssids);
    simulation::AccessPoint point = MakeAccessPoint(ssid, {0x02, 0, 0, 0, 0, number}, frequency, strength);
    point.hidden = dice.OneIn(12);
    if (dice.OneIn(10))
    {
        point.authentication = "open";
        point.encryption = "none";
    }
    if (dice.OneIn(20))
        point.bssType = 2;
    return point;
}

/// The text of a profile, which takes longer to write than to keep: the situations have few hundred different ones.
const std::string& ProfileXml(const simulation::ProfileSettings& profile)
{
    static std::map<std::tuple<std::string, simulation::Bytes, std::string, std::string, std::uint32_t>, std::string>
        texts;
    std::string& text = texts[{profile.name, profile.ssid, profile.mode, profile.authentication, profile.bssType}];
    if (text.empty())
        text = simulation::MakeProfileXml(profile);
    return text;
}

std::vector<simulation::ProfileSettings> MakeProfiles(Dice& dice, const Ssids& ssids, unsigned most)
{
    std::vector<simulation::ProfileSettings> profiles;
    std::set<std::string> taken;
    for (unsigned i = dice.OneIn(30) ? 0 : 1 + dice.Below(most); i > 0; --i)
    {
        simulation::ProfileSettings profile;
        profile.name = dice.OneIn(40) ? kLongName : dice.OneOf(kNames);
        if (!taken.insert(profile.name).second)
            continue;
        const std::string ssid = dice.OneIn(3) && profile.name != kLongName ? profile.name : dice.OneOf(ssids);
        profile.ssid.assign(ssid.begin(), ssid.end());
        profile.mode = dice.OneIn(4) ? "manual" : "auto";
        if (dice.OneIn(6))
        {
            profile.authentication = "open";
            profile.encryption = "none";
        }
        if (profile.mode == "manual" && dice.OneIn(3))
            profile.bssType = 2;
        profiles.push_back(profile);
    }
    return profiles;
}

/// An access point that the profile would be connected to; null: none is heard.
const simulation::AccessPoint*
PartnerOf(Dice& dice, const simulation::ProfileSettings& profile, const std::vector<simulation::AccessPoint>& heard)
{
    std::vector<const simulation::AccessPoint*> partners;
    for (const simulation::AccessPoint& point : heard)
        if (point.ssid == profile.ssid && point.authentication == profile.authentication &&
            point.bssType == profile.bssType)
            partners.push_back(&point);
    return partners.empty() ? nullptr : dice.OneOf(partners);
}

void AddProfiles(Dice& dice, const Ssids& ssids, unsigned most, Situation& situation)
{
    for (simulation::AdapterDescription& adapter : situation.scenario.adapters)
    {
        const std::vector<simulation::ProfileSettings> profiles = MakeProfiles(dice, ssids, most);
        for (const simulation::ProfileSettings& profile : profiles)
            adapter.profiles.push_back({ProfileXml(profile)});
        for (const simulation::ProfileSettings& profile : profiles)
        {
            const simulation::AccessPoint* const partner = PartnerOf(dice, profile, situation.scenario.accessPoints);
            if (partner == nullptr || adapter.connection || dice.OneIn(4))
                continue;
            adapter.connection = simulation::Connection{profile.name, partner->bssid};
        }
    }
}

const simulation::Scenario& TwoAdapters()
{
    static const simulation::Scenario scenario = []
    {
        simulation::Scenario situation = NoProfileScenario();
        situation.accessPoints.clear();
        return situation;
    }();
    return scenario;
}

void AddTroubles(Dice& dice, const Ssids& ssids, Situation& situation)
{
    situation.clientIsOpen = !dice.OneIn(5);
    situation.convertsUtf8 = !dice.OneIn(4);
    for (const std::string_view operation : {"WlanOpenHandle", "WlanEnumInterfaces", "WlanGetProfileList",
                                             "WlanGetAvailableNetworkList", "WlanQueryInterface"})
        if (dice.OneIn(60))
            situation.failures[operation] = 50 + dice.Below(1000);
    if (dice.OneIn(8))
        situation.failures["WlanSetProfilePosition"] = 50 + dice.Below(1000);
    if (dice.OneIn(4))
        situation.failingSsids.insert(dice.OneOf(ssids));
    if (dice.OneIn(4))
        situation.silentSsids.insert(dice.OneOf(ssids));
    if (dice.OneIn(8))
        situation.unreadableProfiles.insert(WideName(dice.OneOf(kNames)));
    if (dice.OneIn(10))
        situation.untaggedProfiles.insert(WideName(dice.OneOf(kNames)));
    situation.refusals = dice.OneIn(3) ? dice.Below(10) : 0;
}

void AddQuestions(Dice& dice, const Ssids& ssids, Situation& situation)
{
    for (unsigned i = dice.Below(3); i > 0; --i)
        situation.excludedSsids.push_back(dice.OneOf(ssids));
    situation.name = WideName(dice.OneOf(kNames));
    situation.mode = static_cast<int>(dice.Below(4)) - 1;
    situation.rememberedProfile = WideName(dice.OneOf(kNames));
    situation.rememberedSsid = dice.OneOf(ssids);
    situation.rememberedBssType = dice.OneIn(20) ? 2 : 1;
    situation.rememberedSecured = !dice.OneIn(10);
    if (!situation.scenario.adapters.empty() && dice.OneIn(8))
        situation.asked = static_cast<int>(dice.Below(situation.scenario.adapters.size()));
}

} // namespace

Situation MakeSituation(std::uint64_t seed)
{
    Dice dice(seed);
    Situation situation;
    situation.seed = seed;
    situation.scenario = TwoAdapters();
    situation.scenario.adapters.resize(dice.OneIn(40) ? 0 : (dice.OneIn(8) ? 2 : 1));
    const bool isLarge = dice.OneIn(5);
    const Ssids& ssids = dice.OneIn(3) ? kFewSsids : kSsids;
    const unsigned count = dice.OneIn(30) ? 0 : 1 + dice.Below(isLarge ? 16 : 8);
    for (unsigned i = 0; i < count; ++i)
        situation.scenario.accessPoints.push_back(MakeHeard(dice, ssids, static_cast<std::uint8_t>(i + 1)));
    AddProfiles(dice, ssids, isLarge ? 16 : 5, situation);
    AddTroubles(dice, ssids, situation);
    AddQuestions(dice, ssids, situation);
    return situation;
}

const GUID& AdapterGuid(int number)
{
    return number == 0 ? kAdapterA : kAdapterB;
}

int AdapterNumber(const GUID& guid)
{
    for (int number = 0; number < 2; ++number)
        if (std::memcmp(&guid, &AdapterGuid(number), sizeof guid) == 0)
            return number;
    return -1;
}

std::string Readable(std::wstring_view text)
{
    std::string result;
    for (const wchar_t unit : text)
        result += unit >= 0x20 && unit < 0x7F ? std::string(1, static_cast<char>(unit))
                                              : "<" + std::to_string(static_cast<unsigned>(unit)) + ">";
    return result;
}

std::string Readable(std::string_view bytes)
{
    std::wstring text;
    for (const char byte : bytes)
        text += static_cast<wchar_t>(static_cast<unsigned char>(byte));
    return Readable(text);
}

std::string Describe(const Situation& situation)
{
    std::ostringstream text;
    text << "seed " << situation.seed << "\nadapter asked " << situation.asked << ", client "
         << (situation.clientIsOpen ? "open" : "closed") << ", flags with UTF-8 "
         << (situation.convertsUtf8 ? "taken" : "refused") << ", requests refused " << situation.refusals << '\n';
    for (const auto& [operation, error] : situation.failures)
        text << "fails: " << operation << " with " << error << '\n';
    for (const std::string& ssid : situation.failingSsids)
        text << "BSS list fails: " << Readable(ssid) << '\n';
    for (const std::string& ssid : situation.silentSsids)
        text << "BSS list empty: " << Readable(ssid) << '\n';
    for (const std::wstring& name : situation.unreadableProfiles)
        text << "profile not readable: " << Readable(name) << '\n';
    for (const std::wstring& name : situation.untaggedProfiles)
        text << "named by no network: " << Readable(name) << '\n';
    for (const std::string& ssid : situation.excludedSsids)
        text << "excluded: " << Readable(ssid) << '\n';
    text << "name " << Readable(situation.name) << ", mode " << situation.mode << "\nremembered: profile "
         << Readable(situation.rememberedProfile) << ", SSID " << Readable(situation.rememberedSsid) << ", BSS type "
         << situation.rememberedBssType << (situation.rememberedSecured ? ", secured" : ", open") << '\n';
    return text.str() + simulation::WriteScenario(situation.scenario) + '\n';
}

} // namespace calvix::test
