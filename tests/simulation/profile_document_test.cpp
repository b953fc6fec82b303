#include "simulation/profile_document.h"

#include "platform/records/error_numbers.h"
#include <calvix/platform_records.h>

#include <gtest/gtest.h>

#include <string>

namespace calvix::simulation::profile_document_test
{

namespace
{

const std::string good = R"(<?xml version="1.0"?>
<WLANProfile xmlns="http://www.microsoft.com/networking/WLAN/profile/v1">
	<name>My &amp; home</name>
	<SSIDConfig>
		<SSID>
			<hex>486F6D65</hex>
			<name>Other</name>
		</SSID>
		<nonBroadcast>true</nonBroadcast>
	</SSIDConfig>
	<connectionType>ESS</connectionType>
	<connectionMode>manual</connectionMode>
	<MSM>
		<security>
			<authEncryption>
				<authentication>WPA3SAE</authentication>
				<encryption>AES</encryption>
				<useOneX>false</useOneX>
			</authEncryption>
			<sharedKey>
				<keyType>passPhrase</keyType>
				<protected>false</protected>
				<keyMaterial>p&lt;ss word</keyMaterial>
			</sharedKey>
		</security>
	</MSM>
</WLANProfile>
)";

/// The good document with a part replaced; the part has to be there.
std::string With(const std::string& part, const std::string& replacement)
{
    std::string xml = good;
    const std::size_t at = xml.find(part);
    EXPECT_NE(at, std::string::npos) << part;
    return xml.replace(at, part.size(), replacement);
}

ProfileDocument Parsed(const std::string& xml)
{
    ProfileRefusal refusal{};
    const auto document = ParseProfile(xml, refusal);
    EXPECT_TRUE(document.has_value()) << "reason " << refusal.reason << " for " << xml;
    return document.value_or(ProfileDocument{});
}

TEST(ProfileDocument, SaysWhatTheServiceNeeds)
{
    const ProfileDocument document = Parsed(good);
    EXPECT_EQ(document.name, L"My & home");
    EXPECT_EQ(document.ssid, (Bytes{'H', 'o', 'm', 'e'})) << "the hexadecimal form counts";
    EXPECT_TRUE(document.hidden);
    EXPECT_EQ(document.bssType, dot11_BSS_type_infrastructure);
    EXPECT_FALSE(document.automatic);
    EXPECT_EQ(document.security, (SecuritySuite{DOT11_AUTH_ALGO_WPA3_SAE, DOT11_CIPHER_ALGO_CCMP}));
}

TEST(ProfileDocument, WhatMayBeLeftOut)
{
    EXPECT_EQ(Parsed(With("<hex>486F6D65</hex>", "")).ssid, (Bytes{'O', 't', 'h', 'e', 'r'}));
    EXPECT_FALSE(Parsed(With("<nonBroadcast>true</nonBroadcast>", "")).hidden);
    EXPECT_TRUE(Parsed(With("<connectionMode>manual</connectionMode>", "")).automatic);
}

TEST(ProfileDocument, AdHocNetworksAreNotJoinedByThemselves)
{
    std::string xml = With("<connectionType>ESS", "<connectionType>IBSS");
    const std::string hidden = "<nonBroadcast>true</nonBroadcast>";
    xml.erase(xml.find(hidden), hidden.size());
    EXPECT_EQ(Parsed(xml).bssType, dot11_BSS_type_independent);
    const std::string mode = "<connectionMode>manual</connectionMode>";
    xml.erase(xml.find(mode), mode.size());
    EXPECT_FALSE(Parsed(xml).automatic);
}

TEST(ProfileDocument, ElementsWithoutAUseArePassedOver)
{
    Parsed(With("<connectionMode>", "<autoSwitch>false</autoSwitch><connectionMode>"));
    Parsed(With("</WLANProfile>",
                "<MacRandomization xmlns=\"x\"><enableRandomization/></MacRandomization></WLANProfile>"));
    Parsed(With("<name>My", "<!-- a <comment> --><name>My"));
}

std::string Nested(int depth)
{
    std::string xml;
    for (int level = 0; level < depth; ++level)
        xml += "<a>";
    return xml;
}

std::string MsmOf(const std::string& xml)
{
    const std::string end = "</MSM>";
    const std::size_t begin = xml.find("<MSM>");
    return xml.substr(begin, xml.find(end) + end.size() - begin);
}

TEST(ProfileDocument, RefusalsHaveAReason)
{
    const struct
    {
        std::string part;
        std::string replacement;
        WLAN_REASON_CODE reason;
        DWORD error = ERROR_BAD_PROFILE;
    } cases[] = {
        {good, "", WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA},
        {good, "no XML", WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA},
        {good, "<WLANProfile>", WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA},
        {good, "<Profile></Profile>", WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA},
        {good, Nested(200'000), WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA},
        {"</MSM>", "</msm>", WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA},
        {"<name>My &amp; home</name>", "", WLAN_REASON_CODE_INVALID_PROFILE_NAME},
        {"My &amp; home", "", WLAN_REASON_CODE_INVALID_PROFILE_NAME},
        {"My &amp; home", std::string(256, 'x'), WLAN_REASON_CODE_INVALID_PROFILE_NAME},
        {"486F6D65", "486", WLAN_REASON_CODE_PROFILE_SSID_INVALID},
        {"486F6D65", "GG", WLAN_REASON_CODE_PROFILE_SSID_INVALID},
        {"486F6D65", "", WLAN_REASON_CODE_PROFILE_SSID_INVALID},
        {"486F6D65", std::string(66, '0'), WLAN_REASON_CODE_PROFILE_SSID_INVALID},
        {"true</nonBroadcast>", "yes</nonBroadcast>", WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA},
        {"<connectionType>ESS</connectionType>", "", WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA},
        {"<connectionType>ESS", "<connectionType>BSS", WLAN_REASON_CODE_INVALID_BSS_TYPE},
        {"<connectionType>ESS", "<connectionType>IBSS", WLAN_REASON_CODE_NON_BROADCAST_SET_FOR_ADHOC},
        {"manual", "Auto", WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA},
        {MsmOf(good), "", WLAN_REASON_CODE_MSM_SECURITY_MISSING},
        {MsmOf(good), "<MSM></MSM>", WLAN_REASON_CODE_MSM_SECURITY_MISSING},
        {MsmOf(good), "<MSM><security></security></MSM>", WLAN_REASON_CODE_MSMSEC_PROFILE_NO_AUTH_CIPHER_SPECIFIED},
        {"WPA3SAE", "WPA9", WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA},
        {"AES", "DES", WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA},
        {"AES", "TKIP", WLAN_REASON_CODE_MSMSEC_PROFILE_INVALID_AUTH_CIPHER, ERROR_NO_MATCH},
        {"passPhrase", "password", WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA},
        {"<protected>false</protected>", "", WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA}};
    for (const auto& each : cases)
    {
        SCOPED_TRACE(each.part + " -> " + each.replacement.substr(0, 60));
        ProfileRefusal refusal{};
        EXPECT_FALSE(ParseProfile(With(each.part, each.replacement), refusal).has_value());
        EXPECT_EQ(refusal.error, each.error);
        EXPECT_EQ(refusal.reason, each.reason);
    }
}

TEST(ProfileDocument, NamesMayHave255Characters)
{
    EXPECT_EQ(Parsed(With("My &amp; home", std::string(255, 'x'))).name.size(), 255u);
    EXPECT_EQ(Parsed(With("My &amp; home", "\xc3\xa9")).name, L"\u00e9");
}

TEST(ProfileDocument, PassphrasesHaveALength)
{
    const std::string xml = With("WPA3SAE", "WPA2PSK");
    const std::string key = "p&lt;ss word";
    for (const auto& [length, reason] :
         {std::pair<std::size_t, WLAN_REASON_CODE>{7, WLAN_REASON_CODE_MSMSEC_PROFILE_PSK_LENGTH},
          {8, WLAN_REASON_CODE_SUCCESS},
          {63, WLAN_REASON_CODE_SUCCESS},
          {64, WLAN_REASON_CODE_MSMSEC_PROFILE_PSK_LENGTH}})
    {
        ProfileRefusal refusal{};
        const auto document =
            ParseProfile(std::string(xml).replace(xml.find(key), key.size(), std::string(length, 'k')), refusal);
        EXPECT_EQ(document.has_value(), reason == WLAN_REASON_CODE_SUCCESS) << length;
        EXPECT_EQ(refusal.reason, reason) << length;
    }
}

TEST(ProfileDocument, KeysAreProtectedAndPlainAgain)
{
    const std::wstring plain(good.begin(), good.end());
    const std::wstring hidden = WithProtectedKey(plain);
    EXPECT_NE(hidden.find(L"<protected>true</protected>"), std::wstring::npos);
    EXPECT_EQ(hidden.find(L"ss word"), std::wstring::npos);
    Parsed(std::string(hidden.begin(), hidden.end()));
    EXPECT_EQ(WithProtectedKey(hidden), hidden);
    EXPECT_EQ(WithPlainKey(hidden), plain);
    EXPECT_EQ(WithPlainKey(plain), plain);
}

TEST(ProfileDocument, KeysThatOthersProtectedStayAsTheyAre)
{
    std::string xml = With("<protected>false", "<protected>true");
    const std::wstring foreign(xml.begin(), xml.end());
    EXPECT_EQ(WithPlainKey(foreign), foreign);
    EXPECT_EQ(WithProtectedKey(L"<a/>"), L"<a/>");
}

} // namespace

} // namespace calvix::simulation::profile_document_test
