#include "import/profile_folder.h"
#include "import_samples.h"

#include <gtest/gtest.h>

namespace calvix::host::test::import_profiles_test
{

namespace
{

/// The profile in the bytes of one of the encodings that files have.
std::string AsUtf16(const std::string& ascii)
{
    std::string bytes = "\xFF\xFE";
    for (const char letter : ascii)
        bytes += {letter, '\0'};
    return bytes;
}

} // namespace

TEST(ImportProfiles, EveryEncodingAndLineEndGivesTheSameProfile)
{
    const std::string returns = WithCarriageReturns(kProfile);
    EXPECT_EQ(ParseExportedProfile(kProfile, "a/Wi-Fi-Juniper.xml").xml, kProfile);
    EXPECT_EQ(ParseExportedProfile("\xEF\xBB\xBF" + kProfile, "p.xml").xml, kProfile);
    EXPECT_EQ(ParseExportedProfile(returns, "p.xml").xml, returns);
    EXPECT_EQ(ParseExportedProfile(AsUtf16(returns), "p.xml").xml, returns);
    EXPECT_EQ(ParseExportedProfile(kProfile, "a/Wi-Fi-Juniper.xml").name, "Juniper");
    EXPECT_EQ(ParseExportedProfile(kProfile, "a/Wi-Fi-Juniper.xml").fileName, "Wi-Fi-Juniper.xml");
}

TEST(ImportProfiles, AFolderIsReadInTheOrderOfItsFileNames)
{
    std::vector<std::string> names;
    for (const ExportedProfile& profile : ReadProfileFolder(DataPath("home/profiles")))
        names.push_back(profile.fileName + " " + profile.name);
    EXPECT_EQ(names, (std::vector<std::string>{"Baeckerei.xml B\xC3\xA4"
                                               "ckerei S\xC3\xBC\xC3\x9F",
                                               "Wi-Fi 2-Floor 2_ Left.xml Floor 2: Left", "Wi-Fi-Attic.xml Attic",
                                               "Wi-Fi-Juniper Lane.xml Juniper Lane"}));
}

namespace
{

struct Damage
{
    const char* from;
    const char* to;
    const char* complaint;
};

class DamagedProfiles : public ::testing::TestWithParam<Damage>
{
};

} // namespace

TEST_P(DamagedProfiles, AreRefusedWithTheFile)
{
    TemporaryFolder folder;
    folder.Write("good.xml", kProfile);
    const std::string bad = folder.Write("ugly.XML", Replaced(kProfile, GetParam().from, GetParam().to));
    EXPECT_EQ(Complaint([&] { ReadProfileFolder(folder.path()); }),
              bad + ": this profile cannot be used: " + GetParam().complaint);
}

INSTANTIATE_TEST_SUITE_P(
    Import,
    DamagedProfiles,
    ::testing::Values(Damage{"</WLANProfile>", "", "The profile is not in the form required."},
                      Damage{"WLANProfile xmlns", "Profile xmlns", "The profile is not in the form required."},
                      Damage{"<name>Juniper</name>\n", "<name></name>\n", "The profile's name is not valid."},
                      Damage{"4A756E", "4A756", "The network's name in the profile is not valid."},
                      Damage{">ESS<", ">NESS<", "The profile's network type is not valid."},
                      Damage{">ESS<", ">IBSS<", "Ad hoc networks cannot be joined automatically."},
                      Damage{">auto<", ">always<", "The profile is not in the form required."},
                      Damage{">AES<", ">none<", "This authentication and this encryption do not go together."},
                      Damage{"under the juniper", "short", "The passphrase in the profile is too short or too long."}));

TEST(ImportProfiles, AFileInAnotherEncodingIsRefusedWithTheLine)
{
    TemporaryFolder folder;
    const std::string path = folder.Write("p.xml", Replaced(kProfile, "<name>Juniper", "<name>Caf\xE9"));
    EXPECT_EQ(Complaint([&] { ReadProfileFolder(folder.path()); }),
              path + ":3: this is not UTF-8: capture it again after the command \"chcp 65001\"");
}

TEST(ImportProfiles, AFolderMustExistAndHoldProfiles)
{
    TemporaryFolder folder;
    folder.Write("notes.txt", "nothing to see");
    EXPECT_EQ(Complaint([&] { ReadProfileFolder(folder.path()); }),
              folder.path() + ": this folder has no profile (*.xml)");
    EXPECT_EQ(Complaint([&] { ReadProfileFolder(folder / "absent"); }),
              (folder / "absent") + ": this folder cannot be read");
    EXPECT_EQ(Complaint([&] { ReadProfileFolder(folder / "notes.txt"); }),
              (folder / "notes.txt") + ": this folder cannot be read");
}

} // namespace calvix::host::test::import_profiles_test
