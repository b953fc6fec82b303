#include "result_codes.h"

#include "platform_errors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace calvix::host::result_codes_test
{
namespace
{

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// The public part of the class, without its comments.
std::string PublicInterface()
{
    std::ifstream file(CALVIX_SOURCE_DIR "/include/calvix/wireless_manage.h");
    std::stringstream kept;
    bool inside = false;
    for (std::string line; std::getline(file, line);)
    {
        if (line.find("public:") != std::string::npos)
            inside = true;
        else if (line.find("private:") != std::string::npos)
            inside = false;
        else if (inside)
            kept << line.substr(0, line.find("//")) << '\n';
    }
    return kept.str();
}

/// The names that a parameter list follows.
std::set<std::string> MethodsOfTheHeader()
{
    const std::string text = PublicInterface();
    const std::regex declaration(R"((operator=|\w+)\()");
    std::set<std::string> names;
    for (std::sregex_iterator match(text.begin(), text.end(), declaration), end; match != end; ++match)
        names.insert((*match)[1]);
    return names;
}

TEST(ResultCodes, KnowEveryMethodOfTheHeaderAndNoOther)
{
    std::set<std::string> known;
    for (const MethodResults& results : AllMethodResults())
        EXPECT_TRUE(known.insert(results.method).second) << results.method << " stands there twice";
    const std::set<std::string> declared = MethodsOfTheHeader();
    EXPECT_GT(declared.size(), 50u);
    EXPECT_EQ(declared, known);
}

TEST(ResultCodes, GiveEveryRowAMeaningAndAdvice)
{
    for (const MethodResults& results : AllMethodResults())
    {
        EXPECT_THAT(std::string(results.result), Not(IsEmpty())) << results.method;
        std::set<int> seen;
        for (const CodeRow& row : results.codes)
        {
            EXPECT_NE(0, row.code) << results.method;
            EXPECT_TRUE(seen.insert(row.code).second) << results.method << ' ' << row.code;
            const Explanation explanation = Explain(results, row.code);
            EXPECT_TRUE(explanation.known && explanation.failure) << results.method << ' ' << row.code;
            EXPECT_THAT(explanation.meaning, Not(IsEmpty())) << results.method << ' ' << row.code;
            EXPECT_THAT(explanation.advice, Not(IsEmpty())) << results.method << ' ' << row.code;
        }
    }
}

TEST(ResultCodes, FindMethodsWhateverTheCase)
{
    ASSERT_NE(nullptr, FindMethod("connectbestap"));
    EXPECT_STREQ("ConnectBestAP", FindMethod("connectbestap")->method);
    EXPECT_EQ(nullptr, FindMethod("ConnectBest"));
    EXPECT_EQ(nullptr, FindMethod(""));
}

/// One row of a method's code table.
struct Row
{
    const char* method;
    long long code;
    Cause cause;
};

class RowTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(RowTest, HasTheCauseOfTheMethodsTable)
{
    const MethodResults* const results = FindMethod(GetParam().method);
    ASSERT_NE(nullptr, results);
    EXPECT_EQ(GetParam().cause, FindCause(*results, GetParam().code));
}

// The same failure has different numbers in different methods.
INSTANTIATE_TEST_SUITE_P(ClientHandle,
                         RowTest,
                         ::testing::Values(Row{"GetWlanStatus", -2, Cause::clientNotOpened},
                                           Row{"GetWlanInterface", -1, Cause::clientNotOpened},
                                           Row{"GetWiFiAdapterCount", -2, Cause::clientNotOpened},
                                           Row{"Rescan", -1, Cause::clientNotOpened},
                                           Row{"GetAvailableNetworkCount", -2, Cause::clientNotOpened},
                                           Row{"GetProfileCount", -1, Cause::clientNotOpened},
                                           Row{"GetMatchAPList", -2, Cause::clientNotOpened},
                                           Row{"ConnectBestAP", -1, Cause::clientNotOpened}));

INSTANTIATE_TEST_SUITE_P(LaterSteps,
                         RowTest,
                         ::testing::Values(Row{"GetWlanStatus", -1, Cause::noSuchInterface},
                                           Row{"GetWlanStatus", -3, Cause::enumerationFailed},
                                           Row{"GetWlanStatus", -4, Cause::noAdapter},
                                           Row{"GetWlanInterfaceGuid", -4, Cause::noSuchDescription},
                                           Row{"Rescan", -4, Cause::scanRefused},
                                           Row{"GetConnectableNetworkCount", -6, Cause::noProfile},
                                           Row{"GetConnectableNetworkCount", -8, Cause::networkListEmpty},
                                           Row{"GetAP", -3, Cause::networkListFailed},
                                           Row{"GetAP", -4, Cause::ssidNotVisible},
                                           Row{"GetNotConnectableReason", -6, Cause::networkNotListed},
                                           Row{"GetCurrentBSS", -6, Cause::noBssInView},
                                           Row{"GetCurrentRSSI", -7, Cause::accessPointNotListed},
                                           Row{"GetWlanProfile", -1, Cause::profileNotFound},
                                           Row{"IsAutoConnMode2", -5, Cause::noConnectionMode},
                                           Row{"IsAutoConnMode2", -6, Cause::malformedConnectionMode},
                                           Row{"GetCurrentWiFi", -4, Cause::bssListFailed},
                                           Row{"GetMatchBSSID", -1, Cause::diagnosticRun},
                                           Row{"GetMatchBSSID", -12, Cause::laterBssListEmpty},
                                           Row{"RecoverConnetionAttributes", -99, Cause::savedNotAutomatic},
                                           Row{"AutoSwitch", -3, Cause::notConnected},
                                           Row{"AutoSwitch", -7, Cause::nothingMatches},
                                           Row{"PreRoaming", -5, Cause::signalGoodEnough},
                                           Row{"Roaming", -9, Cause::requestRefused},
                                           Row{"SetPowerScheme", -3, Cause::schemeNotReadable},
                                           Row{"SetPowerScheme", -4, Cause::schemeNotWritten},
                                           Row{"ResetPowerScheme", -3, Cause::schemeNotWritten},
                                           Row{"GetPowerScheme", -3, Cause::schemeNotNamed},
                                           Row{"GetPowerScheme", -5, Cause::schemeNotActivated},
                                           Row{"OpenUrl", -1, Cause::internetNotReached},
                                           Row{"GetNetworkBss", 1, Cause::someAdapterRefused},
                                           Row{"SetIhvSecuritySettings", 0xFFFFFFFF, Cause::otherServiceVersion},
                                           Row{"ConnectBestAP", -9, Cause::noCandidate},
                                           Row{"ConnectBestAP", -12, Cause::everyRequestRefused}));

TEST(ResultCodes, HaveNoCodesThatAMethodSkips)
{
    const MethodResults& best = *FindMethod("ConnectBestAP");
    for (const long long skipped : {-2, -3, -8})
        EXPECT_FALSE(Explain(best, skipped).known) << skipped;
    EXPECT_FALSE(Explain(*FindMethod("IsWiFiDisappear"), -1).known);
}

TEST(ResultCodes, ExplainSuccess)
{
    EXPECT_FALSE(Explain(*FindMethod("ConnectBestAP"), 0).failure);
    EXPECT_FALSE(Explain(*FindMethod("ConnectBestAP"), 3).known);
    EXPECT_THAT(Explain(*FindMethod("GetProfileCount"), 3).meaning, HasSubstr("number of stored profiles"));
    EXPECT_THAT(Explain(*FindMethod("WiFiIsConnected"), 1).meaning, HasSubstr("yes"));
    EXPECT_THAT(Explain(*FindMethod("WiFiIsConnected"), 0).meaning, HasSubstr("no"));
}

TEST(ResultCodes, ExplainThePlatformsErrorsOfMethodsThatPassThem)
{
    for (const char* method : {"GetWlanProfile", "ResetProfilePosition", "SetProfilePosition", "GetCurrentLinkInfo"})
    {
        const Explanation explanation = Explain(*FindMethod(method), 1062);
        EXPECT_TRUE(explanation.known && explanation.failure) << method;
        EXPECT_THAT(explanation.meaning, HasSubstr("the WLAN service is not running, 1062")) << method;
        EXPECT_THAT(explanation.advice, HasSubstr("sc start WlanSvc")) << method;
    }
    EXPECT_FALSE(Explain(*FindMethod("SetProfile"), 1062).known);
}

TEST(ResultCodes, KnowErrorsThatAnIntHoldsAsNegativeNumbers)
{
    constexpr long long radioOff = 0x80342002LL;
    const MethodResults& results = *FindMethod("GetCurrentLinkInfo");
    EXPECT_THAT(Explain(results, radioOff).meaning, HasSubstr("the radio is off, 0x80342002"));
    EXPECT_EQ(Explain(results, radioOff).meaning, Explain(results, radioOff - 0x100000000LL).meaning);
    EXPECT_FALSE(Explain(results, -4).known);
}

TEST(PlatformErrors, HaveAdviceByOperation)
{
    EXPECT_THAT(AdviseOnPlatformError(5, "WlanGetAvailableNetworkList"), HasSubstr("location access"));
    EXPECT_THAT(AdviseOnPlatformError(5, "WlanSetProfile"), HasSubstr("administrator"));
    EXPECT_EQ("error 4711", DescribePlatformError(4711));
    EXPECT_EQ("", AdviseOnPlatformError(4711));
}

} // namespace
} // namespace calvix::host::result_codes_test
