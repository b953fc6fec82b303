#include "commands/commands.h"
#include "host/host.h"
#include "output/json_output.h"
#include "output/text_forms.h"
#include "view/describe.h"

namespace calvix::host
{

namespace
{

struct MatchFacts
{
    std::vector<std::string> profiles; ///< of the networks in view, one for each
    std::vector<AccessPointFacts> accessPoints;
};

JsonRecord Describe(const MatchFacts& match)
{
    return JsonRecord()
        .Add("profiles", match.profiles, {"Of each network in view"})
        .Add("accessPoints", match.accessPoints);
}

struct MatchOptions
{
    bool autoOnly = false;
    std::string profile;
};

constexpr int kEveryProfile = 0;
constexpr int kAutomaticProfiles = 1;

MatchFacts Describe(const std::vector<WLAN_BSS_ENTRY>& entries, const std::vector<std::wstring>& names)
{
    MatchFacts match;
    for (const WLAN_BSS_ENTRY& entry : entries)
        match.accessPoints.push_back(DescribeAccessPoint(entry));
    for (const std::wstring& name : names)
        match.profiles.push_back(Narrow(name));
    return match;
}

MatchFacts MatchEveryProfile(Host& host)
{
    std::vector<WLAN_BSS_ENTRY> entries;
    std::vector<std::wstring> names;
    const GUID* const adapter = host.adapterGuid();
    host.Check("GetMatchAPList", host.manager().GetMatchAPList(adapter, &entries));
    host.Check("GetMatchAPCount", host.manager().GetMatchAPCount(adapter, &names, kEveryProfile));
    return Describe(entries, names);
}

/// Automatic profiles, and the given one in any mode.
MatchFacts MatchConnectable(Host& host, const std::string& named)
{
    std::vector<WLAN_BSS_ENTRY> entries;
    std::vector<std::wstring> names;
    std::wstring name = Widen(named);
    const GUID* const adapter = host.adapterGuid();
    host.Check("GetConnectableAPList", host.manager().GetConnectableAPList(adapter, name.data(), &entries));
    host.Check("GetMatchAPCount", host.manager().GetMatchAPCount(adapter, &names, name.c_str(), kAutomaticProfiles));
    return Describe(entries, names);
}

void PrintMatch(Host& host, const MatchFacts& match)
{
    host.out() << Counted(match.profiles.size(), "network") << " with a stored profile in view";
    const char* separator = ": ";
    for (const std::string& profile : match.profiles)
    {
        host.out() << separator << VisibleText(profile);
        separator = ", ";
    }
    host.out() << '\n';
    if (match.accessPoints.empty())
        return;
    Table table(AccessPointColumns());
    for (const AccessPointFacts& facts : match.accessPoints)
        table.AddRow(AccessPointRow(host, facts));
    table.Print(host.out(), host.terminal());
}

void Match(Host& host, const MatchOptions& options)
{
    const bool everyProfile = !options.autoOnly && options.profile.empty();
    const MatchFacts match = everyProfile ? MatchEveryProfile(host) : MatchConnectable(host, options.profile);
    if (host.json())
        return PrintJson(host.out(), match);
    PrintMatch(host, match);
}

} // namespace

void AddMatchCommands(CommandSet& commands)
{
    const auto options = std::make_shared<MatchOptions>();
    commands.Add("match", "Show which access points belong to stored profiles", options, Match)
        .Flag("--auto-only", options->autoOnly, "Only profiles that connect automatically")
        .Text("--profile", options->profile, "Profiles that connect automatically, and this one")
        .Takes(ValueKind::profile)
        .Prints("match", [] { return std::vector{Describe(MatchFacts{})}; })
        .Examples("Access points that the computer may join by itself:\n"
                  "  calvix match --auto-only");
}

} // namespace calvix::host
