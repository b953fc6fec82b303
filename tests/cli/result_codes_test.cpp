#include "explain/result_codes.h"

#include "explain/platform_errors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>

namespace calvix::host::result_codes_test
{
namespace
{

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// What the header says about a method's results. Overloads of one name are joined.
struct ToldResults
{
    std::map<long long, std::string> codes; ///< each with the words after it
    bool platformErrors = false;            ///< whether the platform's error numbers are results, too
};

using ToldMethods = std::map<std::string, ToldResults>;

/// Reads a @return: codes are negative numbers, hexadecimal ones and 1, up to the next comma or semicolon; "as METHOD"
/// takes over the codes of that method's first declaration, and a code of the method's own comes before it.
ToldResults ReadReturn(const std::string& text, const ToldMethods& firsts)
{
    ToldResults told;
    const std::regex code("[ ](-[0-9]+|0x[0-9A-F]+|1) ([^,;]+)");
    for (std::sregex_iterator match(text.begin(), text.end(), code), end; match != end; ++match)
        told.codes[static_cast<std::int32_t>(std::stoll((*match)[1], nullptr, 0))] = (*match)[2];
    told.platformErrors = text.find("error number") != std::string::npos;
    const std::regex reference("\\bas (\\w+)");
    for (std::sregex_iterator match(text.begin(), text.end(), reference), end; match != end; ++match)
    {
        const auto other = firsts.find((*match)[1]);
        if (other == firsts.end())
            continue;
        told.codes.insert(other->second.codes.begin(), other->second.codes.end());
        told.platformErrors = told.platformErrors || other->second.platformErrors;
    }
    return told;
}

/// Reads the declarations of the class's public part, each with the @return of the comment above it.
ToldMethods ReadHeader()
{
    std::ifstream file(CALVIX_SOURCE_DIR "/include/calvix/wireless_manage.h");
    const std::regex declaration("^    (?![/ ]).*?(operator=|\\b\\w+)\\(");
    ToldMethods firsts;
    ToldMethods all;
    std::string comment;
    std::string line;
    while (std::getline(file, line) && line != "public:")
        continue;
    while (std::getline(file, line) && line != "private:")
    {
        std::smatch match;
        if (line.rfind("    ///", 0) == 0)
            comment += line.substr(7);
        else if (std::regex_search(line, match, declaration))
        {
            const std::size_t begin = comment.find("@return");
            const ToldResults told = ReadReturn(begin != std::string::npos ? comment.substr(begin) : "", firsts);
            firsts.try_emplace(match[1], told);
            all[match[1]].codes.insert(told.codes.begin(), told.codes.end());
            all[match[1]].platformErrors = all[match[1]].platformErrors || told.platformErrors;
            comment.clear();
        }
    }
    return all;
}

/// What the header must say about a method. Words that say more than the table's own stay as they are.
std::map<long long, std::string> Expected(const MethodResults& results, const ToldResults& told)
{
    std::map<long long, std::string> expected;
    for (const CodeRow& row : results.codes)
    {
        const std::string brief = Describe(row.cause).brief;
        const auto words = told.codes.find(row.code);
        const bool beginsSo = words != told.codes.end() && words->second.rfind(brief, 0) == 0;
        expected[row.code] = beginsSo ? words->second : brief;
    }
    return expected;
}

TEST(ResultCodes, AreThoseOfTheHeader)
{
    ToldMethods header = ReadHeader();
    EXPECT_GT(header.size(), 100u);
    for (const MethodResults& results : AllMethodResults())
    {
        ASSERT_EQ(1u, header.count(results.method)) << results.method << ": not in the header, or here twice";
        ToldResults told = header.extract(results.method).mapped();
        if (results.kind == ResultKind::yesOrNo)
            told.codes.erase(1);
        EXPECT_EQ(Expected(results, told), told.codes) << results.method;
        EXPECT_EQ(results.kind == ResultKind::platformError, told.platformErrors) << results.method;
    }
    for (const auto& [method, told] : header)
        ADD_FAILURE() << method << " has no entry in the table";
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

TEST(ResultCodes, FindMethodsInAnyCase)
{
    ASSERT_NE(nullptr, FindMethod("connectbestap"));
    EXPECT_STREQ("ConnectBestAP", FindMethod("connectbestap")->method);
    EXPECT_EQ(nullptr, FindMethod("ConnectBest"));
    EXPECT_EQ(nullptr, FindMethod(""));
}

TEST(ResultCodes, AreFoundInUnsignedResults)
{
    EXPECT_EQ(Cause::otherServiceVersion, FindCause(*FindMethod("SetIhvSecuritySettings"), 0xFFFFFFFF));
    EXPECT_EQ(std::nullopt, FindCause(*FindMethod("IhvControl"), 0xFFFFFFFF));
}

TEST(ResultCodes, ExplainSuccess)
{
    EXPECT_FALSE(Explain(*FindMethod("ConnectBestAP"), 0).failure);
    EXPECT_FALSE(Explain(*FindMethod("ConnectBestAP"), 3).known);
    EXPECT_FALSE(Explain(*FindMethod("ConnectBestAP"), -2).known);
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

TEST(ResultCodes, AreExplainedToHosts)
{
    const Explanation noAdapter = calvix::Explain("getWlanInterface", -3);
    EXPECT_TRUE(noAdapter.known && noAdapter.failure);
    EXPECT_EQ(Describe(Cause::noAdapter).meaning, noAdapter.meaning);
    EXPECT_EQ(Describe(Cause::noAdapter).advice, noAdapter.advice);
    EXPECT_FALSE(calvix::Explain("GetWlanInterface", -99).known);
    EXPECT_FALSE(calvix::Explain("GetWlanInterfaces", -3).known);
    EXPECT_EQ("the library has no such method", calvix::Explain("GetWlanInterfaces", -3).meaning);
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
