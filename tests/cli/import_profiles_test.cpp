#include "cli_test.h"
#include "import/profile_folder.h"
#include "import_samples.h"

namespace calvix::test::import_profiles_test
{
namespace
{

using namespace host::test;
using host::ParseExportedProfile;

class ImportProfiles : public CliTest
{
};

TEST_F(ImportProfiles, EveryEncodingAndLineEndGivesTheSameProfile)
{
    const std::string returns = WithCarriageReturns(kProfile);
    EXPECT_EQ(ParseExportedProfile(kProfile, "a/Wi-Fi-Juniper.xml").xml, kProfile);
    EXPECT_EQ(ParseExportedProfile("\xEF\xBB\xBF" + kProfile, "p.xml").xml, kProfile);
    EXPECT_EQ(ParseExportedProfile(returns, "p.xml").xml, returns);
    EXPECT_EQ(ParseExportedProfile("\xFF\xFE" + Utf16(returns, false), "p.xml").xml, returns);
    EXPECT_EQ(ParseExportedProfile(kProfile, "a/Wi-Fi-Juniper.xml").name, "Juniper");
    EXPECT_EQ(ParseExportedProfile(kProfile, "a/Wi-Fi-Juniper.xml").fileName, "Wi-Fi-Juniper.xml");
}

TEST_F(ImportProfiles, AFolderIsReadInTheOrderOfItsFileNames)
{
    std::vector<std::string> names;
    for (const host::ExportedProfile& profile : host::ReadProfileFolder(DataPath("home/profiles")))
        names.push_back(profile.fileName + " " + profile.name);
    EXPECT_EQ(names, (std::vector<std::string>{"Baeckerei.xml B\xC3\xA4"
                                               "ckerei S\xC3\xBC\xC3\x9F",
                                               "Wi-Fi 2-Floor 2_ Left.xml Floor 2: Left", "Wi-Fi-Attic.xml Attic",
                                               "Wi-Fi-Juniper Lane.xml Juniper Lane"}));
}

TEST_F(ImportProfiles, DamagedOnesAreRefusedWithTheFile)
{
    struct Damage
    {
        const char* from;
        const char* to;
        const char* complaint;
    };
    FileWith("good.xml", kProfile);
    for (const Damage& damage :
         {Damage{"</WLANProfile>", "", "The profile is not in the form required."},
          Damage{"WLANProfile xmlns", "Profile xmlns", "The profile is not in the form required."},
          Damage{"<name>Juniper</name>\n", "<name></name>\n", "The profile's name is not valid."},
          Damage{"4A756E", "4A756", "The network's name in the profile is not valid."},
          Damage{">ESS<", ">NESS<", "The profile's network type is not valid."},
          Damage{">ESS<", ">IBSS<", "Ad hoc networks cannot be joined automatically."},
          Damage{">auto<", ">always<", "The profile is not in the form required."},
          Damage{">AES<", ">none<", "This authentication and this encryption do not go together."},
          Damage{"under the juniper", "short", "The passphrase in the profile is too short or too long."}})
    {
        const std::string bad = FileWith("ugly.XML", Replaced(kProfile, damage.from, damage.to));
        EXPECT_EQ(Complaint([&] { host::ReadProfileFolder(PathFor("")); }),
                  bad + ": this profile cannot be used: " + damage.complaint);
    }
}

TEST_F(ImportProfiles, AFileInAnotherEncodingIsRefusedWithTheLine)
{
    const std::string path = FileWith("p.xml", Replaced(kProfile, "<name>Juniper", "<name>Caf\xE9"));
    EXPECT_EQ(Complaint([&] { host::ReadProfileFolder(PathFor("")); }),
              path + ":3: this is not UTF-8: capture it again after the command \"chcp 65001\"");
}

TEST_F(ImportProfiles, AFolderMustExistAndHoldProfiles)
{
    FileWith("notes.txt", "nothing to see");
    EXPECT_EQ(Complaint([&] { host::ReadProfileFolder(PathFor("")); }),
              PathFor("") + ": this folder has no profile (*.xml)");
    for (const std::string& name : {PathFor("absent"), PathFor("notes.txt")})
        EXPECT_EQ(Complaint([&] { host::ReadProfileFolder(name); }), name + ": this folder cannot be read");
}

} // namespace
} // namespace calvix::test::import_profiles_test
