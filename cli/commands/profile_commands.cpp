#include "commands/commands.h"
#include "files/files.h"
#include "host/host.h"
#include "output/code_page.h"
#include "output/json_output.h"
#include "output/table.h"
#include "output/text_forms.h"
#include "view/profiles.h"

namespace calvix::host
{

namespace
{

JsonRecord DocumentRecord(const std::string& name, const std::string& xml)
{
    return Under("profile", JsonRecord().Add("name", name).Add("xml", xml));
}

JsonRecord ChangeRecord(const std::string& change, const std::string& profile)
{
    return JsonRecord()
        .Add("change", change, {.among = {"added", "deleted", "moved"}})
        .Add("profile", profile, kTextOrNull);
}

struct ProfileOptions
{
    std::string name;
    std::string file;
    std::string place;
    bool showKey = false;
};

void ListProfiles(Host& host)
{
    const std::vector<ProfileFacts> profiles = ReadProfiles(host);
    if (host.json())
        return PrintJson(host.out(), Under("profiles", profiles));
    if (profiles.empty())
    {
        host.out() << "No profile is stored. Add one with: calvix profiles add FILE.xml\n";
        return;
    }
    Table table({{"#", Align::right}, {"Name"}, {"Connects"}, {"Kind"}});
    for (const ProfileFacts& profile : profiles)
    {
        const char* const kind = profile.groupPolicy ? "group policy" : profile.perUser ? "this user" : "all users";
        table.AddRow({std::to_string(profile.position), VisibleText(profile.name), profile.mode, kind});
    }
    table.Print(host.out(), host.terminal());
}

/// The text of the first element with this name, as a part of the document; empty when there is none.
std::string_view FirstElementText(std::string_view xml, const std::string& element)
{
    const std::size_t begin = xml.find("<" + element + ">");
    const std::size_t end = xml.find("</" + element + ">");
    if (begin == std::string_view::npos || end == std::string_view::npos || end < begin)
        return {};
    const std::size_t text = begin + element.size() + 2;
    return xml.substr(text, end - text);
}

/// The document with its key hidden.
std::string WithoutKey(std::string xml)
{
    const std::string_view key = FirstElementText(xml, "keyMaterial");
    if (key.data() == nullptr)
        return xml;
    return xml.replace(static_cast<std::size_t>(key.data() - xml.data()), key.size(), "********");
}

void ShowProfile(Host& host, const ProfileOptions& options)
{
    // The library cuts what does not fit; the service takes no documents of this length.
    std::wstring xml(1U << 16, L'\0');
    const std::wstring name = Widen(options.name);
    host.Check("GetProfile",
               host.manager().GetProfile(host.adapterGuid(), name.c_str(), xml.data(), static_cast<int>(xml.size())));
    const std::string document = Narrow(xml.substr(0, xml.find(L'\0')));
    const std::string shown = options.showKey ? document : WithoutKey(document);
    if (host.json())
        return PrintJson(host.out(), DocumentRecord(options.name, shown));
    host.out() << shown << (shown.empty() || shown.back() != '\n' ? "\n" : "");
}

void ReportChange(Host& host, const char* change, const std::string& profile, const std::string& words)
{
    if (host.json())
        return PrintJson(host.out(), ChangeRecord(change, profile));
    host.out() << "Profile \"" << VisibleText(profile) << "\" " << words << ".\n";
}

void AddProfile(Host& host, const ProfileOptions& options)
{
    const std::string xml = ReadTextFile(options.file);
    host.Check("SetProfile", host.manager().SetProfile(host.adapterGuid(), Widen(xml).c_str()));
    ReportChange(host, "added", std::string(FirstElementText(xml, "name")), "stored");
}

void DeleteProfile(Host& host, const ProfileOptions& options)
{
    const std::wstring name = Widen(options.name);
    host.Check("DeleteProfile", host.manager().DeleteProfile(host.adapterGuid(), name.c_str()));
    ReportChange(host, "deleted", options.name, "deleted");
}

void MoveProfile(Host& host, const ProfileOptions& options)
{
    const GUID* const adapter = host.adapterGuid();
    const std::wstring name = Widen(options.name);
    // With fewer than two profiles the library has nothing to move and does not look at the name.
    host.Check("GetProfile", host.manager().GetProfile(adapter, name.c_str()));
    if (options.place == "second")
    {
        const std::string narrow = InActiveCodePage(name, "such a profile can only be moved to the last place");
        host.Require("ResetProfilePosition", host.manager().ResetProfilePosition(adapter, narrow.c_str()));
    }
    else
        host.Require("SetProfilePosition", host.manager().SetProfilePosition(adapter, name.c_str()));
    ReportChange(host, "moved", options.name, "is in the " + options.place + " place");
}

} // namespace

void AddProfileCommands(CommandSet& commands)
{
    const auto options = std::make_shared<ProfileOptions>();
    commands.AddFamily("profiles", "Stored profiles: list, show, add, delete, move");
    commands.Add("profiles list", "List the stored profiles, the preferred one first", ListProfiles)
        .Prints("profiles-list", [] { return std::vector{Under("profiles", std::vector<ProfileFacts>{})}; })
        .Examples("In the order in which the service tries them:\n"
                  "  calvix profiles list");
    commands.Add("profiles show", "Print a profile's document", options, ShowProfile)
        .Text("PROFILE", options->name, "The profile")
        .Takes(ValueKind::profile)
        .Flag("--show-key", options->showKey, "Show the key, too, if the service returns it")
        .Prints("profiles-show", [] { return std::vector{DocumentRecord("", "")}; })
        .Examples("Keep a profile for another computer:\n"
                  "  calvix profiles show Office --show-key > office.xml");
    commands.Add("profiles add", "Store a profile document, replacing the one of the same name", options, AddProfile)
        .Text("FILE", options->file, "A profile document, as the system exports it")
        .Takes(ValueKind::file)
        .Prints("profiles-change", [] { return std::vector{ChangeRecord("", "")}; })
        .Examples("Store what was kept:\n"
                  "  calvix profiles add office.xml");
    commands.Add("profiles delete", "Delete a profile", options, DeleteProfile)
        .Text("PROFILE", options->name, "The profile")
        .Takes(ValueKind::profile)
        .Prints("profiles-change")
        .Examples("Quotation marks around blanks:\n"
                  "  calvix profiles delete \"Hotel Lobby\"");
    commands.Add("profiles move", "Move a profile in the order of preference", options, MoveProfile)
        .Text("PROFILE", options->name, "The profile")
        .Takes(ValueKind::profile)
        .OneOf("--to", options->place, {"second", "last"}, "The place to move it to")
        .Required()
        .Prints("profiles-change")
        .Examples("Try it after all others:\n"
                  "  calvix profiles move Guest --to last");
}

} // namespace calvix::host
