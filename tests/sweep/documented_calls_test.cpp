// The reference names the platform calls of every method, in docs/reference/methods: they are the calls that are made.

#include "sweep/bench.h"
#include "sweep/scenarios.h"
#include "wrappers/call_log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>

namespace calvix::test::documented_calls_test
{
namespace
{

using Operations = std::vector<std::string>;

/// The calls of a method in the order of their first time.
struct Documented
{
    Operations operations{};
    std::set<std::string> always{}; ///< those that need nothing unusual
};

void AddOnce(Operations& operations, const std::string& operation)
{
    if (std::find(operations.begin(), operations.end(), operation) == operations.end())
        operations.push_back(operation);
}

/// An entry is an operation and a remark; brackets around the operation say that it takes something unusual.
Documented Parse(const nlohmann::json& calls)
{
    Documented documented;
    for (const std::string entry : calls)
    {
        const std::string word = entry.substr(0, entry.find(' '));
        const bool unusual = word.front() == '[';
        const std::string operation = unusual ? word.substr(1, word.size() - 2) : word;
        AddOnce(documented.operations, operation);
        if (!unusual)
            documented.always.insert(operation);
    }
    return documented;
}

std::map<std::string, Documented> ReadReference()
{
    std::map<std::string, Documented> reference;
    for (const auto& file : std::filesystem::directory_iterator(CALVIX_SOURCE_DIR "/docs/reference/methods"))
    {
        std::ifstream stream(file.path());
        const nlohmann::json family = nlohmann::json::parse(stream);
        for (const auto& [declaration, method] : family.at("methods").items())
            reference[declaration] = Parse(method.at("calls"));
    }
    return reference;
}

/// What a method calls where nothing fails, in the order of the first time; trace lines are left out.
Operations Made(const sweep::NamedScenario& scenario, const methods::Method& method)
{
    Operations made;
    for (const std::string& operation : sweep::Record(scenario.make(), method).operations)
        if (operation != "OutputDebugStringA")
            AddOnce(made, operation);
    return made;
}

/// The documented operations that were made, which have to be all of those, in the documented order.
Operations InDocumentedOrder(const Documented& documented, const Operations& made)
{
    Operations ordered;
    for (const std::string& operation : documented.operations)
        if (std::find(made.begin(), made.end(), operation) != made.end())
            ordered.push_back(operation);
    return ordered;
}

TEST(DocumentedCalls, AreThoseOfEveryMethod)
{
    const std::map<std::string, Documented> reference = ReadReference();
    for (const methods::Method& method : methods::EveryMethod())
    {
        SCOPED_TRACE(method.declaration);
        ASSERT_TRUE(reference.contains(method.declaration));
        const Documented& documented = reference.at(method.declaration);
        std::set<std::string> everMade;
        for (const sweep::NamedScenario& scenario : sweep::Scenarios())
        {
            SCOPED_TRACE(scenario.name);
            const Operations made = Made(scenario, method);
            EXPECT_EQ(made, InDocumentedOrder(documented, made));
            everMade.insert(made.begin(), made.end());
        }
        EXPECT_EQ(everMade, documented.always);
    }
}

/// The calls of the WLAN service, with their arguments, where the client handle is not open.
std::vector<std::string> ServiceCalls(sweep::Bench& bench, wrappers::CallLog& log, const methods::Method& method)
{
    bench.Prepare(method);
    log.Clear();
    bench.Call(method);
    std::vector<std::string> lines = log.Lines();
    std::erase_if(lines, [](const std::string& line)
                  { return !line.starts_with("Wlan") || line.starts_with("WlanReasonCodeToString"); });
    return lines;
}

TEST(DocumentedCalls, BeginWithOpeningTheClientWhichStaysOpen)
{
    for (const methods::Method& method : methods::EveryMethod())
    {
        SCOPED_TRACE(method.declaration);
        wrappers::CallLog log;
        sweep::Bench bench(sweep::Scenarios().front().make(), log);
        const std::vector<std::string> calls = ServiceCalls(bench, log, method);
        if (calls.empty() || !sweep::OpensClient(method))
            continue;
        EXPECT_EQ(calls.front(),
                  "WlanOpenHandle(clientVersion=2, reserved=null, negotiatedVersion=non-null, client=non-null)");
        EXPECT_EQ(log.Count("WlanOpenHandle"), 1U);
        EXPECT_EQ(bench.Audit().openClients, 1U);
    }
}

} // namespace
} // namespace calvix::test::documented_calls_test
