#include "cli_test.h"

#include <nlohmann/json.hpp>

namespace calvix::test::profiles_test
{
namespace
{

using nlohmann::json;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class ProfilesCommand : public CliTest
{
protected:
    /// The world that the commands of a test share.
    std::string m_world = FileWith("shared.json", simulation::WriteScenario(DisconnectedWorld()));

    Outcome OnShared(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.end(), {"--scenario", m_world, "--save", m_world});
        return Run(arguments);
    }

    std::vector<std::string> Names()
    {
        std::vector<std::string> names;
        const json list = json::parse(OnShared({"profiles", "list", "--json"}).out);
        for (const json& profile : list["profiles"])
            names.push_back(profile["name"]);
        return names;
    }
};

TEST_F(ProfilesCommand, ListsInOrderOfPreference)
{
    const Outcome outcome = OnShared({"profiles", "list"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_EQ("#  Name       Connects  Kind\n"
              "1  HomeNet    auto      all users\n"
              "2  OfficeNet  manual    all users\n"
              "3  HiddenNet  auto      all users\n"
              "4  AdHocNet   manual    all users\n"
              "5  GoneNet    auto      all users\n",
              outcome.out);
}

TEST_F(ProfilesCommand, ListsAsJson)
{
    const json profiles = json::parse(OnShared({"profiles", "list", "--json"}).out)["profiles"];
    ASSERT_EQ(5u, profiles.size());
    EXPECT_EQ(
        json({{"position", 2}, {"name", "OfficeNet"}, {"mode", "manual"}, {"groupPolicy", false}, {"perUser", false}}),
        profiles[1]);
}

TEST_F(ProfilesCommand, SaysWhenThereIsNone)
{
    const Outcome outcome = RunOn(NoProfileWorld(), {"profiles", "list"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_EQ("No profile is stored. Add one with: calvix profiles add FILE.xml\n", outcome.out);
}

TEST_F(ProfilesCommand, ShowsADocumentWithoutItsKey)
{
    const Outcome outcome = OnShared({"profiles", "show", "HiddenNet"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_THAT(outcome.out, HasSubstr("<name>HiddenNet</name>"));
    EXPECT_THAT(outcome.out, HasSubstr("<keyMaterial>********</keyMaterial>"));
    EXPECT_THAT(outcome.out, Not(HasSubstr("HiddenNet key")));
}

TEST_F(ProfilesCommand, ShowsTheKeyWhenAskedTo)
{
    EXPECT_THAT(OnShared({"profiles", "show", "HiddenNet", "--show-key"}).out,
                HasSubstr("<keyMaterial>HiddenNet key</keyMaterial>"));
}

TEST_F(ProfilesCommand, ShowsAsJson)
{
    const json profile = json::parse(OnShared({"profiles", "show", "HomeNet", "--json"}).out)["profile"];
    EXPECT_EQ("HomeNet", profile["name"]);
    EXPECT_THAT(profile["xml"].get<std::string>(), HasSubstr("<WLANProfile"));
}

TEST_F(ProfilesCommand, SaysThatAProfileIsNotThere)
{
    const Outcome outcome = OnShared({"profiles", "show", "homenet"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("the profile could not be read"));
    EXPECT_THAT(outcome.err, HasSubstr("GetProfile returned -4"));
}

std::string DocumentOf(const std::string& name)
{
    simulation::ProfileSettings settings;
    settings.name = name;
    settings.ssid.assign(name.begin(), name.end());
    settings.key = "a passphrase";
    return simulation::MakeProfileXml(settings);
}

TEST_F(ProfilesCommand, AddsADocument)
{
    const std::string file = FileWith("new.xml", "\xEF\xBB\xBF" + DocumentOf("Zürich"));
    const Outcome outcome = OnShared({"profiles", "add", file});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    EXPECT_EQ("Profile \"Zürich\" stored.\n", outcome.out);
    EXPECT_THAT(Names(), ElementsAre("Zürich", "HomeNet", "OfficeNet", "HiddenNet", "AdHocNet", "GoneNet"));
}

TEST_F(ProfilesCommand, AddsInThePlaceOfTheSameName)
{
    const std::string file = FileWith("new.xml", DocumentOf("OfficeNet"));
    EXPECT_EQ(kSuccess, OnShared({"profiles", "add", file}).exitCode);
    EXPECT_THAT(OnShared({"profiles", "list"}).out, HasSubstr("2  OfficeNet  auto "));
}

TEST_F(ProfilesCommand, ReadsUtf16Documents)
{
    std::string utf16 = "\xFF\xFE";
    for (const char c : DocumentOf("Wide"))
        (utf16 += c) += '\0';
    EXPECT_EQ("Profile \"Wide\" stored.\n", OnShared({"profiles", "add", FileWith("wide.xml", utf16)}).out);
}

TEST_F(ProfilesCommand, SaysWhyADocumentIsRefused)
{
    const Outcome outcome = OnShared({"profiles", "add", FileWith("bad.xml", "<WLANProfile></WLANProfile>")});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("the profile was not stored: the WLAN service refused WlanSetProfile "
                                       "(bad profile, 1206), because: "));
    EXPECT_THAT(outcome.err, HasSubstr("SetProfile returned -4"));
}

TEST_F(ProfilesCommand, RefusesAFileThatIsNotThere)
{
    EXPECT_EQ(kBadInput, OnShared({"profiles", "add", PathFor("missing.xml")}).exitCode);
}

TEST_F(ProfilesCommand, Deletes)
{
    const Outcome outcome = OnShared({"profiles", "delete", "OfficeNet"});
    EXPECT_EQ("Profile \"OfficeNet\" deleted.\n", outcome.out);
    EXPECT_THAT(Names(), ElementsAre("HomeNet", "HiddenNet", "AdHocNet", "GoneNet"));

    const Outcome again = OnShared({"profiles", "delete", "OfficeNet", "--json"});
    EXPECT_EQ(kFailed, again.exitCode);
    EXPECT_EQ(1168, json::parse(again.out)["error"]["platformError"]);
    EXPECT_THAT(again.err, HasSubstr("WlanDeleteProfile (not found, 1168)"));
}

TEST_F(ProfilesCommand, MovesToTheSecondPlace)
{
    const Outcome outcome = OnShared({"profiles", "move", "GoneNet", "--to", "second"});
    EXPECT_EQ("Profile \"GoneNet\" is in the second place.\n", outcome.out) << outcome.err;
    EXPECT_THAT(Names(), ElementsAre("HomeNet", "GoneNet", "OfficeNet", "HiddenNet", "AdHocNet"));
}

TEST_F(ProfilesCommand, MovesToTheLastPlace)
{
    const Outcome outcome = OnShared({"profiles", "move", "HomeNet", "--to", "last", "--json"});
    EXPECT_EQ(json({{"change", "moved"}, {"profile", "HomeNet"}}), json::parse(outcome.out));
    EXPECT_THAT(Names(), ElementsAre("OfficeNet", "HiddenNet", "AdHocNet", "GoneNet", "HomeNet"));
}

TEST_F(ProfilesCommand, DoesNotMoveWhatIsNotThere)
{
    const Outcome outcome = OnShared({"profiles", "move", "NoSuchNet", "--to", "last"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("the profile could not be read"));
}

TEST_F(ProfilesCommand, CannotNameEveryProfileInTheCodePage)
{
    const std::string file = FileWith("new.xml", DocumentOf("東空港"));
    ASSERT_EQ(kSuccess, OnShared({"profiles", "add", file}).exitCode);
    const Outcome outcome = OnShared({"profiles", "move", "東空港", "--to", "second"});
    EXPECT_EQ(kBadInput, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("characters outside the active code page"));
    EXPECT_EQ(kSuccess, OnShared({"profiles", "move", "東空港", "--to", "last"}).exitCode);
    EXPECT_EQ("東空港", Names().back());
}

} // namespace
} // namespace calvix::test::profiles_test
