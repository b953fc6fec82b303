#include "import/capture_encoding.h"
#include "import_samples.h"
#include "output/text_forms.h"
#include "simulation/narrow_encoding.h"

#include <gtest/gtest.h>

namespace calvix::host::test::import_languages_test
{

namespace
{

/// A language of the system with its code pages: the console's and the one that PowerShell redirects in.
struct Language
{
    const char* name;
    std::uint32_t console;
    std::uint32_t ansi;
};

constexpr Language kLanguages[] = {
    {"english", 437, 1252},
    {"german", 850, 1252},
    {"french", 850, 1252},
    {"italian", 850, 1252},
    {"spanish", 850, 1252},
    {"portuguese", 850, 1252},
    {"polish", 852, 1250},
    {"russian", 866, 1251},
    {"japanese", 932, 932},
    {"korean", 949, 949},
    {"chinese-simplified", 936, 936},
    {"chinese-traditional", 950, 950},
};

std::string Encoded(const std::string& text, std::uint32_t codePage)
{
    bool replaced = false;
    std::string bytes = simulation::EncodeNarrow(codePage, Widen(text), '?', true, replaced);
    EXPECT_FALSE(replaced) << codePage;
    return bytes;
}

/// A sample's text, turned into bytes in some way.
using Encode = std::function<std::string(const std::string&)>;

MadeScenario ImportBoth(const Language& language, const Encode& encode, const CaptureHints& hints = {})
{
    Captures captures;
    for (const char* file : {"networks.txt", "interfaces.txt"})
        ReadCapture(encode(Sample("languages/" + std::string(language.name) + "/" + file)), file, hints, captures);
    return AssembleScenario(captures, false);
}

const simulation::Scenario& Expected()
{
    static const simulation::Scenario expected =
        ImportBoth(kLanguages[0], [](const std::string& text) { return text; }).scenario;
    return expected;
}

} // namespace

TEST(ImportLanguages, TheEnglishSampleHoldsWhatIsExpectedOfAll)
{
    EXPECT_EQ(Expected().accessPoints.size(), 6u);
    ASSERT_EQ(Expected().adapters.size(), 2u);
    ASSERT_TRUE(Expected().adapters[0].connection);
    EXPECT_EQ(Expected().adapters[0].connection->receiveKbps, 866700u);
    EXPECT_EQ(Expected().adapters[0].connection->transmitKbps, 780000u);
    EXPECT_EQ(Expected().adapters[1].phys.at(0).software, simulation::RadioSwitch::off);
    EXPECT_EQ(Expected().adapters[1].phys.at(0).hardware, simulation::RadioSwitch::on);
}

TEST(ImportLanguages, OneSampleForEachLanguageGivesTheSameScenarioInEveryUnicodeForm)
{
    const std::pair<const char*, Encode> forms[] = {
        {"UTF-8", [](const std::string& text) { return text; }},
        {"UTF-8 with a mark", [](const std::string& text) { return "\xEF\xBB\xBF" + text; }},
        {"UTF-16", [](const std::string& text) { return "\xFF\xFE" + Utf16(text, false); }},
        {"UTF-16, big end first", [](const std::string& text) { return "\xFE\xFF" + Utf16(text, true); }},
        {"UTF-16 without a mark", [](const std::string& text) { return Utf16(text, false); }},
        {"UTF-16 without a mark, big end first", [](const std::string& text) { return Utf16(text, true); }},
    };
    for (const Language& language : kLanguages)
        for (const auto& [what, encode] : forms)
        {
            const MadeScenario imported = ImportBoth(language, encode);
            EXPECT_EQ(imported.scenario, Expected()) << language.name << " " << what;
            EXPECT_EQ(imported.warnings, std::vector<std::string>()) << language.name << " " << what;
        }
}

TEST(ImportLanguages, TheCodePagesOfEachLanguageAreGuessedAndCanBeNamed)
{
    std::string missing;
    for (const Language& language : kLanguages)
        for (const std::uint32_t codePage : {language.console, language.ansi})
        {
            if (!simulation::HasNarrowEncoding(codePage))
            {
                missing += " " + std::to_string(codePage);
                continue;
            }
            const Encode encode = [codePage](const std::string& text) { return Encoded(text, codePage); };
            EXPECT_EQ(ImportBoth(language, encode).scenario, Expected()) << language.name << " " << codePage;
            const CaptureHints hints{codePage, {}};
            EXPECT_EQ(ImportBoth(language, encode, hints).scenario, Expected()) << language.name << " " << codePage;
            for (const char* file : {"networks.txt", "interfaces.txt"})
            {
                const std::string text = Sample("languages/" + std::string(language.name) + "/" + file);
                // Several code pages can give the same text.
                const std::uint32_t likely = LikelyCodePage(encode(text));
                EXPECT_TRUE(WithCarriageReturns(DecodeNarrowText(likely, encode(text)).text) == text)
                    << language.name << " " << codePage << " " << file << ": " << likely;
            }
        }
    if (!missing.empty())
        GTEST_SKIP() << "this computer has no converter for code page" << missing;
}

TEST(ImportLanguages, AFileOfTheConsolesCodePageIsReadWithAWarning)
{
    if (!simulation::HasNarrowEncoding(850))
        GTEST_SKIP() << "this computer has no converter for code page 850";
    const Captures captures = Read(Sample("languages/german/networks-oem.txt"));
    EXPECT_EQ(captures.warnings, std::vector<std::string>{"file: this is not Unicode and was read as code page 850, "
                                                          "the most likely one; give another with --code-page"});
    EXPECT_EQ(captures.networks->accessPoints.size(), 6u);
}

TEST(ImportLanguages, WaysThatTextsAreLaidOutDoNotMatter)
{
    const std::pair<const char*, Encode> layouts[] = {
        {"plain line ends", [](const std::string& text) { return AllReplaced(text, "\r\n", "\n"); }},
        {"wide colons", [](const std::string& text) { return AllReplaced(text, " : ", "\xEF\xBC\x9A"); }},
        {"no-break spaces before colons",
         [](const std::string& text) { return AllReplaced(text, " : ", "\xC2\xA0: "); }},
        {"no-break spaces before percent signs",
         [](const std::string& text) { return AllReplaced(text, "%", "\xC2\xA0%"); }},
        {"blanks at the ends", [](const std::string& text) { return AllReplaced(text, "\r\n", " \t \r\n"); }},
        {"lists broken in two", [](const std::string& text) { return AllReplaced(text, "48 54", "\r\n48 54"); }},
        {"descriptions broken in two",
         [](const std::string& text) { return AllReplaced(text, "Sample USB", "Sample\r\nUSB"); }},
    };
    for (const Language& language : kLanguages)
        for (const auto& [what, encode] : layouts)
            EXPECT_EQ(ImportBoth(language, encode).scenario, Expected()) << language.name << ": " << what;
}

} // namespace calvix::host::test::import_languages_test
