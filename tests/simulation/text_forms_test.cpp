// The forms of texts and the channel rules that simulation, wrappers and host share.

#include "forms/address_text.h"
#include "forms/channel.h"
#include "forms/guid_text.h"
#include "forms/utf8.h"
#include "forms/xml_text.h"

#include <gtest/gtest.h>

namespace calvix::simulation::text_forms_test
{
namespace
{

using forms::Letters;

TEST(HexText, ComesInBothLettersAndIsReadInEither)
{
    const std::vector<std::uint8_t> bytes = {0x00, 0x9a, 0xff};
    EXPECT_EQ("009AFF", forms::HexText(bytes));
    EXPECT_EQ("009aff", forms::HexText(bytes, Letters::lower));
    EXPECT_EQ("41", forms::HexText("A"));
    EXPECT_EQ(bytes, forms::BytesFromHex("009aFF"));
    EXPECT_EQ(std::vector<std::uint8_t>(), forms::BytesFromHex(""));
    for (const char* text : {"0", "009", "0g", "g0", "0x", " 0", "/0", ":0", "@0", "`0"})
        EXPECT_EQ(std::nullopt, forms::BytesFromHex(text)) << text;
}

TEST(AddressText, HasColonsAndIsReadInEitherLetters)
{
    constexpr std::array<std::uint8_t, 6> address = {0x02, 0xCA, 0x1F, 0x00, 0x00, 0x01};
    EXPECT_EQ("02:CA:1F:00:00:01", forms::AddressText(address));
    EXPECT_EQ("02:ca:1f:00:00:01", forms::AddressText(address, Letters::lower));
    EXPECT_EQ(address, forms::AddressFromText("02:Ca:1f:00:00:01"));
    for (const char* text : {"", "02:ca:1f:00:00:0", "02:ca:1f:00:00:011", "02-ca:1f:00:00:01", "02:ca:1f:00:00:0g"})
        EXPECT_EQ(std::nullopt, forms::AddressFromText(text)) << text;
}

TEST(GuidText, OtherShapesAreNone)
{
    const char* const text = "{5CA1AB1E-0001-4000-8000-00CA1F1C0002}";
    ASSERT_TRUE(forms::GuidFromText(text));
    EXPECT_EQ(text, forms::GuidText(*forms::GuidFromText(text)));
    for (const char* other : {"", "5CA1AB1E-0001-4000-8000-00CA1F1C0002", "{5CA1AB1E-0001-4000-8000-00CA1F1C000}",
                              "{5CA1AB1E-0001-4000-8000-00CA1F1C00022}", "{5CA1AB1E-0001-4000-8000-00CA1F1C000G}",
                              "{5CA1AB1E 0001-4000-8000-00CA1F1C0002}"})
        EXPECT_FALSE(forms::GuidFromText(other)) << other;
}

TEST(XmlText, EscapesWhatXmlGivesAMeaning)
{
    const std::string text = "a<b>c\"d'e&f&lt;";
    EXPECT_EQ("a&lt;b&gt;c&quot;d&apos;e&amp;f&amp;lt;", forms::EscapedXml(text));
}

TEST(Utf8, OneCharacterAfterTheOther)
{
    const std::string text = "e\xE2\x82\xAC\xE2\x82z";
    std::size_t at = 0;
    EXPECT_EQ(U'e', forms::NextCharacter(text, at));
    EXPECT_EQ(U'\x20AC', forms::NextCharacter(text, at));
    EXPECT_EQ(4u, at);
    EXPECT_EQ(std::nullopt, forms::NextCharacter(text, at)) << "cut off";
    EXPECT_EQ(6u, at);
    EXPECT_EQ(U'z', forms::NextCharacter(text, at));
}

TEST(Channel, EveryNumberComesBackFromItsFrequency)
{
    for (const auto& [band, last] : {std::pair("2.4", 14u), std::pair("5", 196u), std::pair("6", 233u)})
    {
        unsigned count = 0;
        for (std::uint32_t channel = 0; channel <= 300; ++channel)
        {
            const auto frequency = forms::ChannelFrequency(band, channel);
            if (!frequency)
                continue;
            ++count;
            EXPECT_EQ(channel, forms::ChannelNumber(*frequency)) << band << " GHz";
            EXPECT_LE(channel, last);
        }
        EXPECT_GE(count, 14u) << band;
    }
    EXPECT_EQ(std::nullopt, forms::ChannelFrequency("60", 1));
}

TEST(Channel, TheOddOnesOfEachBand)
{
    EXPECT_EQ(2484000u, forms::ChannelFrequency("2.4", 14));
    EXPECT_EQ(5935000u, forms::ChannelFrequency("6", 2));
    EXPECT_EQ(5955000u, forms::ChannelFrequency("6", 1));
    EXPECT_EQ(4920000u, forms::ChannelFrequency("5", 184));
    for (const std::uint32_t none :
         {0u, 2400000u, 2407000u, 2477000u, 3000000u, 5000000u, 5940000u, 5950000u, 7130000u})
        EXPECT_EQ(0u, forms::ChannelNumber(none)) << none;
}

} // namespace
} // namespace calvix::simulation::text_forms_test
