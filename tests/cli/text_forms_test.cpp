#include "forms/channel.h"
#include "output/text_forms.h"

#include "output/table.h"
#include "output/words.h"
#include "report/channel_load.h"

#include <gtest/gtest.h>

#include <sstream>

namespace calvix::host::text_forms_test
{
namespace
{

TEST(VisibleText, KeepsUtf8)
{
    EXPECT_EQ("Café 東空港 🛄", VisibleText("Café 東空港 🛄"));
}

TEST(VisibleText, EscapesWhatIsNotUtf8)
{
    EXPECT_EQ("Caf\\xE9", VisibleText("Caf\xE9"));
    EXPECT_EQ("\\xC0\\x80", VisibleText("\xC0\x80")) << "overlong";
    EXPECT_EQ("\\xED\\xA0\\x80", VisibleText("\xED\xA0\x80")) << "a surrogate";
    EXPECT_EQ("\\xE6\\x9D", VisibleText("\xE6\x9D")) << "cut";
    EXPECT_EQ("\\xF5\\x80\\x80\\x80", VisibleText("\xF5\x80\x80\x80")) << "beyond the last character";
}

TEST(VisibleText, EscapesWhatWouldMoveTheCursor)
{
    EXPECT_EQ("a\\x0Ab\\x1B[2J", VisibleText("a\nb\x1B[2J"));
    EXPECT_EQ("\\xC2\\x9B", VisibleText("\xC2\x9B"));
}

// Otherwise a name could change the order of the text after it.
TEST(VisibleText, EscapesWhatWouldTurnTheDirection)
{
    EXPECT_EQ("a\\xE2\\x80\\xAEb", VisibleText("a\u202Eb"));
    for (const char* mark : {"\u061C", "\u200E", "\u200F", "\u202A", "\u202B", "\u202C", "\u202D", "\u202E", "\u2066",
                             "\u2067", "\u2068", "\u2069"})
    {
        EXPECT_NE(mark, VisibleText(mark));
        EXPECT_EQ(mark, BytesOfVisibleText(VisibleText(mark)));
    }
    for (const char* letter :
         {"\u061B", "\u061D", "\u200D", "\u2010", "\u202F", "\u2065", "\u206A", "\u05E9", "\u0634"})
        EXPECT_EQ(letter, VisibleText(letter)) << "no mark of direction";
}

TEST(VisibleText, CanBeTurnedBack)
{
    for (const std::string& bytes : {std::string("Caf\xE9"), std::string("\\xE9"), std::string("a\\b"),
                                     std::string("\0\xFF\\x", 4), std::string("東空港")})
        EXPECT_EQ(bytes, BytesOfVisibleText(VisibleText(bytes))) << VisibleText(bytes);
    EXPECT_EQ("\\xG1", BytesOfVisibleText("\\xG1"));
    EXPECT_EQ("\\x4", BytesOfVisibleText("\\x4"));
}

TEST(WideText, GoesThereAndBack)
{
    const std::string text = "Zürich 東 🛄";
    EXPECT_EQ(text, Narrow(Widen(text)));
    EXPECT_EQ(sizeof(wchar_t) == 2 ? 2u : 1u, Widen("🛄").size());
}

TEST(WideText, ReplacesInvalidCharacters)
{
    EXPECT_EQ("\xEF\xBF\xBD", Narrow(std::wstring(1, static_cast<wchar_t>(0xD800))));
    EXPECT_EQ("\xEF\xBF\xBD", Narrow(std::wstring(1, static_cast<wchar_t>(0xDC00))));
    EXPECT_EQ(L"a\xFFFD", Widen("a\xFF"));
}

TEST(SsidForms, AreBoundedByTheRecord)
{
    EXPECT_EQ(32u, MakeSsid(std::string(40, 'x')).uSSIDLength);
    EXPECT_EQ("Home", SsidText(MakeSsid("Home")));
    EXPECT_EQ("00FFE9", HexText(std::string("\0\xFF\xE9", 3)));
    const DOT11_MAC_ADDRESS address = {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E};
    EXPECT_EQ("00:1A:2B:3C:4D:5E", MacText(address));
}

TEST(DisplayWidth, CountsColumns)
{
    EXPECT_EQ(4u, DisplayWidth("Café"));
    EXPECT_EQ(6u, DisplayWidth("東空港"));
    EXPECT_EQ(2u, DisplayWidth("🛄"));
    EXPECT_EQ(1u, DisplayWidth("e\xCC\x81"));
}

TEST(Channels, AreNumberedAsPeopleDo)
{
    EXPECT_EQ(1u, forms::ChannelNumber(2412000));
    EXPECT_EQ(13u, forms::ChannelNumber(2472000));
    EXPECT_EQ(14u, forms::ChannelNumber(2484000));
    EXPECT_EQ(36u, forms::ChannelNumber(5180000));
    EXPECT_EQ(184u, forms::ChannelNumber(4920000));
    EXPECT_EQ(1u, forms::ChannelNumber(5955000));
    EXPECT_EQ(2u, forms::ChannelNumber(5935000));
    EXPECT_EQ(233u, forms::ChannelNumber(7115000));
    EXPECT_EQ(0u, forms::ChannelNumber(2400000));
    EXPECT_EQ("2.4 GHz", BandText(2484000));
    EXPECT_EQ("5 GHz", BandText(5885000));
    EXPECT_EQ("6 GHz", BandText(5955000));
}

TEST(Channels, HaveAListForEachBand)
{
    std::vector<std::size_t> channels;
    for (const BandLoad& band : MeasureBands({}))
        channels.push_back(band.channels.size());
    EXPECT_EQ((std::vector<std::size_t>{13, 28, 59}), channels);
}

std::string Printed(const Table& table, TerminalTraits terminal)
{
    std::ostringstream out;
    table.Print(out, terminal);
    return out.str();
}

TEST(Tables, AlignColumnsWithoutTrailingBlanks)
{
    Table table({{"Name"}, {"Count", Align::right}, {"Note"}});
    table.AddRow({"東", "7", ""});
    table.AddRow({"long name", "1234567", "x"});
    EXPECT_EQ("Name         Count  Note\n"
              "東               7\n"
              "long name  1234567  x\n",
              Printed(table, {}));
}

TEST(Tables, ColourOnlyWhereItIsWanted)
{
    Table table({{"A"}});
    table.AddRow({Cell("x", Tone::good)});
    EXPECT_EQ("\x1b[1mA\x1b[0m\n\x1b[32mx\x1b[0m\n", Printed(table, {.isTerminal = true, .color = true}));
    EXPECT_EQ("A\nx\n", Printed(table, {.isTerminal = true, .color = false}));
}

TEST(SignalBars, GrowWithTheQuality)
{
    EXPECT_EQ("....", SignalBars(0, {}).text);
    EXPECT_EQ("#...", SignalBars(1, {}).text);
    EXPECT_EQ("#...", SignalBars(29, {}).text);
    EXPECT_EQ("##..", SignalBars(30, {}).text);
    EXPECT_EQ("###.", SignalBars(55, {}).text);
    EXPECT_EQ("####", SignalBars(80, {}).text);
    EXPECT_EQ("▂▄▆█", SignalBars(100, {.isTerminal = true}).text);
    EXPECT_EQ("▂▄··", SignalBars(40, {.isTerminal = true}).text);
}

} // namespace
} // namespace calvix::host::text_forms_test
