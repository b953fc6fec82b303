// The profile documents that short forms become.
#include "service_fixture.h"

namespace calvix::simulation::scenario_profile_test
{

namespace
{

bool Holds(const std::string& xml, const std::string& part)
{
    return xml.find(part) != std::string::npos;
}

TEST(ScenarioProfile, IsTheWholeDocument)
{
    ProfileSettings settings = MakeSettings("Home", "Home");
    settings.hidden = true;
    EXPECT_EQ(MakeProfileXml(settings),
              "<?xml version=\"1.0\"?>\r\n"
              "<WLANProfile xmlns=\"http://www.microsoft.com/networking/WLAN/profile/v1\">\r\n"
              "\t<name>Home</name>\r\n"
              "\t<SSIDConfig>\r\n"
              "\t\t<SSID>\r\n"
              "\t\t\t<hex>486F6D65</hex>\r\n"
              "\t\t\t<name>Home</name>\r\n"
              "\t\t</SSID>\r\n"
              "\t\t<nonBroadcast>true</nonBroadcast>\r\n"
              "\t</SSIDConfig>\r\n"
              "\t<connectionType>ESS</connectionType>\r\n"
              "\t<connectionMode>auto</connectionMode>\r\n"
              "\t<MSM>\r\n"
              "\t\t<security>\r\n"
              "\t\t\t<authEncryption>\r\n"
              "\t\t\t\t<authentication>WPA2PSK</authentication>\r\n"
              "\t\t\t\t<encryption>AES</encryption>\r\n"
              "\t\t\t\t<useOneX>false</useOneX>\r\n"
              "\t\t\t</authEncryption>\r\n"
              "\t\t\t<sharedKey>\r\n"
              "\t\t\t\t<keyType>passPhrase</keyType>\r\n"
              "\t\t\t\t<protected>false</protected>\r\n"
              "\t\t\t\t<keyMaterial>correct horse</keyMaterial>\r\n"
              "\t\t\t</sharedKey>\r\n"
              "\t\t</security>\r\n"
              "\t</MSM>\r\n"
              "</WLANProfile>\r\n");
}

TEST(ScenarioProfile, WithoutAKeyTheProfileHasNone)
{
    ProfileSettings settings = MakeSettings("Home", "Home");
    settings.key.clear();
    EXPECT_FALSE(Holds(MakeProfileXml(settings), "sharedKey"));
}

TEST(ScenarioProfile, MarkupIsEscaped)
{
    ProfileSettings settings = MakeSettings("<R&D> \"'", "R&D");
    settings.key = "a<b&c>d\"e'f";
    const std::string xml = MakeProfileXml(settings);
    EXPECT_TRUE(Holds(xml, "<name>&lt;R&amp;D&gt; &quot;&apos;</name>"));
    EXPECT_TRUE(Holds(xml, "<keyMaterial>a&lt;b&amp;c&gt;d&quot;e&apos;f</keyMaterial>"));
}

TEST(ScenarioProfile, NamesThatAreNoTextAreGivenInHexadecimalOnly)
{
    for (const std::string& ssid : {std::string("\xFF\xFE"), std::string("a\0b", 3), std::string("\xE6\x9D")})
    {
        ProfileSettings settings = MakeSettings("Odd", "Odd");
        settings.ssid = BytesOf(ssid);
        const std::string xml = MakeProfileXml(settings);
        EXPECT_TRUE(Holds(xml, "</hex>\r\n\t\t</SSID>")) << xml;
    }
}

TEST(ScenarioProfile, KeysThatAreNoPassphraseAreNetworkKeys)
{
    ProfileSettings settings = MakeSettings("Home", "Home");
    settings.key = std::string(64, 'a');
    EXPECT_TRUE(Holds(MakeProfileXml(settings), "<keyType>networkKey</keyType>"));
    settings.authentication = "open";
    settings.encryption = "WEP";
    settings.key = "12345";
    EXPECT_TRUE(Holds(MakeProfileXml(settings), "<keyType>networkKey</keyType>"));
}

TEST(ScenarioProfile, EnterpriseNetworksUseOneX)
{
    ProfileSettings settings = MakeSettings("Home", "Home");
    settings.authentication = "WPA2";
    EXPECT_TRUE(Holds(MakeProfileXml(settings), "<useOneX>true</useOneX>"));
}

TEST(ScenarioProfile, AdHocAndManual)
{
    ProfileSettings settings = MakeSettings("Game", "Game");
    settings.bssType = 2;
    settings.mode = "manual";
    const std::string xml = MakeProfileXml(settings);
    EXPECT_TRUE(Holds(xml, "<connectionType>IBSS</connectionType>"));
    EXPECT_TRUE(Holds(xml, "<connectionMode>manual</connectionMode>"));
}

} // namespace

} // namespace calvix::simulation::scenario_profile_test
