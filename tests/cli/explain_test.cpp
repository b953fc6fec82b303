#include "cli_test.h"

#include "explain/result_codes.h"

#include <nlohmann/json.hpp>

namespace calvix::test::explain_test
{
namespace
{

using nlohmann::json;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class ExplainCommand : public CliTest
{
};

TEST_F(ExplainCommand, SaysWhatACodeMeansAndWhatToDo)
{
    const Outcome outcome = Run({"explain", "GetMatchAPList", "-8"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_EQ("GetMatchAPList -8: no network is in view.\n"
              "What to do: scan, wait until the scan is done, and try again; go closer.\n",
              outcome.out);
}

TEST_F(ExplainCommand, SpeaksJson)
{
    const json explanation = json::parse(Run({"explain", "getmatchaplist", "-8", "--json"}).out);
    EXPECT_EQ("GetMatchAPList", explanation["method"]);
    EXPECT_EQ(-8, explanation["code"]);
    EXPECT_EQ(true, explanation["failure"]);
    EXPECT_EQ("no network is in view", explanation["meaning"]);
    EXPECT_TRUE(json::parse(Run({"explain", "GetAP", "0", "--json"}).out)["advice"].is_null());
}

TEST_F(ExplainCommand, KnowsThePlatformsErrors)
{
    EXPECT_THAT(Run({"explain", "SetProfilePosition", "1168"}).out, HasSubstr("not found, 1168"));
    EXPECT_THAT(Run({"explain", "GetCurrentLinkInfo", "0x80342002"}).out, HasSubstr("the radio is off"));
}

TEST_F(ExplainCommand, ListsAMethodsCodes)
{
    const Outcome outcome = Run({"explain", "ConnectBestAP"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_THAT(outcome.out, StartsWith("ConnectBestAP returns 0 or a code: "));
    const json listed = json::parse(Run({"explain", "ConnectBestAP", "--json"}).out)["codes"];
    const auto codes = host::FindMethod("ConnectBestAP")->codes;
    ASSERT_EQ(codes.size(), listed.size());
    for (std::size_t index = 0; index < codes.size(); ++index)
    {
        EXPECT_EQ(codes[index].code, listed[index]["code"]);
        EXPECT_THAT(outcome.out, HasSubstr(std::to_string(codes[index].code) + "  ")) << index;
    }
}

TEST_F(ExplainCommand, ListsTheMethods)
{
    const Outcome outcome = Run({"explain"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_THAT(outcome.out, HasSubstr("\nConnectBestAP "));
    const json methods = json::parse(Run({"explain", "--json"}).out)["methods"];
    EXPECT_EQ(host::AllMethodResults().size(), methods.size());
}

TEST_F(ExplainCommand, RefusesWhatTheLibraryDoesNotHave)
{
    const Outcome method = Run({"explain", "ConnectWorstAP", "-1"});
    EXPECT_EQ(kBadInput, method.exitCode);
    EXPECT_THAT(method.err, HasSubstr("the library has no method \"ConnectWorstAP\""));
    const Outcome code = Run({"explain", "ConnectBestAP", "-2"});
    EXPECT_EQ(kBadInput, code.exitCode);
    EXPECT_THAT(code.err, HasSubstr("ConnectBestAP never returns -2"));
    for (const char* text : {"four", "0x", "-", "7up"})
        EXPECT_EQ(kBadInput, Run({"explain", "ConnectBestAP", text}).exitCode) << text;
}

} // namespace
} // namespace calvix::test::explain_test
