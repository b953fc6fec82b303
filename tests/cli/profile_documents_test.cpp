#include "cli_test.h"

namespace calvix::test::profile_documents_test
{
namespace
{

class ProfilesAdd : public CliTest
{
};

TEST_F(ProfilesAdd, ReadsDocumentsInUtf8AndUtf16)
{
    const std::string scenario = FileWith("scenario.json", simulation::WriteScenario(SilentScenario()));
    const std::string document = MakeProfile("Zuerich").xml;
    std::string utf16 = "\xFF\xFE";
    for (const char c : document)
        (utf16 += c) += '\0';
    for (const std::string& text : {document, "\xEF\xBB\xBF" + document, utf16})
    {
        const Outcome outcome = Run({"profiles", "add", FileWith("new.xml", text), "--scenario", scenario});
        EXPECT_EQ("Profile \"Zuerich\" stored.\n", outcome.out) << outcome.err;
    }
    const std::string beyondAscii = FileWith("new.xml", MakeProfile("Zürich").xml);
    EXPECT_EQ("Profile \"Zürich\" stored.\n", Run({"profiles", "add", beyondAscii, "--scenario", scenario}).out);
}

} // namespace
} // namespace calvix::test::profile_documents_test
