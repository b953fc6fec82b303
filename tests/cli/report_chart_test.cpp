#include "cli_test.h"

#include "output/dot_canvas.h"
#include "output/text_forms.h"
#include "report/picture_parts.h"

#include <sstream>

namespace calvix::test::report_chart_test
{
namespace
{

using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* kOfficeWalk = CALVIX_SOURCE_DIR "/scenarios/office-walk.json";

TEST(DotCanvas, DrawsBrailleOrWhatComesCloseToIt)
{
    host::DotCanvas canvas(4, 1);
    canvas.Dot(0, 0);
    for (int y = 0; y < 4; ++y)
        canvas.Dot(3, y);
    canvas.Dot(5, 3);
    canvas.Dot(-1, 0);
    canvas.Dot(8, 0);
    EXPECT_EQ("\xe2\xa0\x81\xe2\xa2\xb8\xe2\xa2\x80", canvas.Line(0, true));
    EXPECT_EQ("'|.", canvas.Line(0, false));
    canvas.Letter(1, 0, 'A');
    EXPECT_TRUE(canvas.HasLetter(1, 0));
    EXPECT_TRUE(canvas.HasLetter(4, 0)) << "no room outside";
    EXPECT_EQ("'A.", canvas.Line(0, false));
}

TEST(PictureLabels, DoNotCoverEachOther)
{
    host::LabelPlacing placing(0, 400, 0, 200);
    std::vector<host::LabelPlace> places;
    for (int i = 0; i < 8; ++i)
    {
        const host::LabelPlace place = placing.Place(100, 100, 80);
        for (const host::LabelPlace& other : places)
            EXPECT_GE(std::abs(place.y - other.y), host::LabelPlacing::kLineHeight);
        places.push_back(place);
    }
    EXPECT_EQ(40, placing.Place(0, 60, 80).x) << "inside";
    EXPECT_EQ("abcd\xe2\x80\xa6", host::Shortened("abcdefgh", 5));
    EXPECT_EQ("abcde", host::Shortened("abcde", 5));
}

class Chart : public CliTest
{
};

TEST_F(Chart, DrawsWithUnicodeOnATerminal)
{
    const Outcome outcome = Run({"bss", "--chart", "--scenario", kOfficeWalk}, {.isTerminal = true});
    EXPECT_THAT(outcome.out, HasSubstr(" -100 └──"));
    EXPECT_THAT(outcome.out, HasSubstr("02:B8:00:11:00:02  in use\n"));
    EXPECT_THAT(outcome.out, HasSubstr("\nNothing is heard in 2.4 GHz, 6 GHz.\n"));
    EXPECT_THAT(outcome.out, Not(HasSubstr("2.4 GHz, dBm")));
    std::istringstream stream(outcome.out);
    for (std::string line; std::getline(stream, line);)
        EXPECT_LE(host::DisplayWidth(line), 80u) << line;
    EXPECT_EQ("No access point is in view. Scan with: calvix scan\n", RunOn(SilentScenario(), {"bss", "--chart"}).out);
}

TEST_F(Chart, TheSignalLineMarksARoam)
{
    const Outcome outcome = Run(
        {"watch", "--roam", "1", "--for", "80", "--speed", "1000000", "--scenario", kOfficeWalk}, {.isTerminal = true});
    EXPECT_THAT(outcome.out, HasSubstr("┃"));
    EXPECT_THAT(outcome.out.substr(0, outcome.out.find("moved from")), Not(HasSubstr("┃")));
}

} // namespace
} // namespace calvix::test::report_chart_test
