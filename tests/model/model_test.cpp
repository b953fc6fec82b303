// The methods that match, rank, walk and pick, in many small made-up situations, against a model that does the same in the
// plainest way there is: equal results, equal outputs, and equal questions to the service in the same order.

#include "model/caller.h"
#include "model/journal.h"
#include "model/model.h"
#include "simulation/computer.h"
#include "testing/test_computer.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>

namespace calvix::test
{

namespace
{

using host::Cause;

using Adapter = Model::Adapter;
using Filter = Model::Filter;

struct Method
{
    std::string name;
    std::function<Outcome(Model&)> expected;
    std::function<long long(CWirelessManage&, Caller&)> actual;
    std::set<long long> results; ///< that are no codes; the situations have to lead to them, or they are worth nothing
    std::set<Cause> elsewhere = {}; ///< causes of its codes that the situations do not lead to

    std::string Declared() const { return name.substr(0, name.find('(')); }
};

std::function<long long(CWirelessManage&, Caller&)> AskOfAdapter(int (CWirelessManage::*method)(const GUID*))
{
    return [method](CWirelessManage& manager, const Caller& caller) { return (manager.*method)(caller.adapter); };
}

const std::vector<Method> kMethods = {
    {"GetMatchAPList",
     [](Model& model) { return model.CollectEntries(Adapter::asked, Filter::none); },
     [](CWirelessManage& manager, Caller& caller) { return manager.GetMatchAPList(caller.adapter, &caller.entries); },
     {0, 1, 2, 3, 4}},
    {"GetConnectableAPList",
     [](Model& model) { return model.CollectEntries(Adapter::asked, Filter::automaticOrNamed); },
     [](CWirelessManage& manager, Caller& caller)
     { return manager.GetConnectableAPList(caller.adapter, caller.name.data(), &caller.entries); },
     {0, 1, 2, 3, 4},
     {Cause::enumerationFailed, Cause::noAdapter}},
    {"GetConnectableAPList(first)",
     [](Model& model) { return model.CollectEntries(Adapter::first, Filter::automaticOrNamed); },
     [](CWirelessManage& manager, Caller& caller)
     { return manager.GetConnectableAPList(caller.name.data(), &caller.entries); },
     {0, 1, 2, 3, 4}},
    {"GetMatchAPCount",
     [](Model& model) { return model.CollectNames(Filter::automatic); },
     [](CWirelessManage& manager, Caller& caller)
     { return manager.GetMatchAPCount(caller.adapter, &caller.names, caller.mode); },
     {0, 1, 2, 3}},
    {"GetMatchAPCount(name)",
     [](Model& model) { return model.CollectNames(Filter::automaticOrNamed); },
     [](CWirelessManage& manager, Caller& caller)
     { return manager.GetMatchAPCount(caller.adapter, &caller.names, caller.name.c_str(), caller.mode); },
     {0, 1, 2, 3}},
    {"ConnectBestAP(list, name)",
     [](Model& model) { return model.ConnectBestAP(true, true); },
     [](CWirelessManage& manager, Caller& caller)
     { return manager.ConnectBestAP(caller.adapter, &caller.excluded, caller.name.c_str()); },
     {0}},
    {"ConnectBestAP(list)",
     [](Model& model) { return model.ConnectBestAP(true, false); },
     [](CWirelessManage& manager, Caller& caller) { return manager.ConnectBestAP(caller.adapter, &caller.excluded); },
     {0}},
    {"ConnectBestAP(name)",
     [](Model& model) { return model.ConnectBestAP(false, true); },
     [](CWirelessManage& manager, Caller& caller)
     { return manager.ConnectBestAP(caller.adapter, caller.name.c_str()); },
     {0}},
    {"ConnectBestAP",
     [](Model& model) { return model.ConnectBestAP(false, false); },
     AskOfAdapter(&CWirelessManage::ConnectBestAP),
     {0}},
    {"AutoConnectEx", &Model::AutoConnectEx, AskOfAdapter(&CWirelessManage::AutoConnectEx), {0}},
    {"AutoConnect", &Model::AutoConnect, AskOfAdapter(&CWirelessManage::AutoConnect), {0}},
    {"AutoSwitch", &Model::AutoSwitch, AskOfAdapter(&CWirelessManage::AutoSwitch), {0}},
    {"SmartSwitch", &Model::SmartSwitch, AskOfAdapter(&CWirelessManage::SmartSwitch), {0, 1001, 1004, 1113}},
    {"SmartConnecting",
     &Model::SmartConnecting,
     [](CWirelessManage& manager, Caller& caller) { return manager.SmartConnecting(caller.adapter, caller.text); },
     {0, 1001}},
    {"ConnectAutoMode", &Model::ConnectAutoMode, AskOfAdapter(&CWirelessManage::ConnectAutoMode), {0}},
    {"PreRoaming",
     [](Model& model) { return model.Roam(false); },
     AskOfAdapter(&CWirelessManage::PreRoaming),
     {0},
     {Cause::signalGoodEnough}},
    {"Roaming",
     [](Model& model) { return model.Roam(true); },
     AskOfAdapter(&CWirelessManage::Roaming),
     {0},
     {Cause::signalGoodEnough}},
    {"Reconnect(attributes)",
     &Model::Reconnect,
     [](CWirelessManage& manager, Caller& caller) { return manager.Reconnect(caller.adapter, &caller.attributes, 20); },
     {0}},
    {"Reconnect(notification)",
     &Model::Reconnect,
     [](CWirelessManage& manager, Caller& caller)
     { return manager.Reconnect(caller.adapter, &caller.notification, 20); },
     {0}},
};

/// The results that the situations must produce. None of them passes null.
std::set<long long> ResultsOf(const Method& method)
{
    std::set<long long> results = method.results;
    for (const host::CodeRow& row : host::FindMethod(method.Declared())->codes)
    {
        const bool isOfNull = row.cause == Cause::nullInput || row.cause == Cause::nullOutput;
        if (!isOfNull && method.elsewhere.count(row.cause) == 0)
            results.insert(row.code);
    }
    return results;
}

/// The narrow form of other than ASCII names is the platform's affair.
void ForgetTextOfOddNames(Outcome& outcome)
{
    for (const Event& event : outcome.events)
        for (const wchar_t unit : event.profile)
            if (unit >= 0x80)
                outcome.text.clear();
}

/// A computer of the situation with a caller of the library on it, and a journal of its calls.
class Laboratory
{
public:
    explicit Laboratory(const Situation& situation)
        : m_situation(situation), m_computer(situation.scenario), m_manager(m_computer.Manager()),
          m_plainService(situation, m_computer.computer().wlan()), m_caller(situation), m_journal(situation)
    {
    }

    Model MakeModel(const std::string& method) { return {m_situation, m_plainService, method}; }

    Outcome Actual(const Method& method)
    {
        if (!m_situation.clientIsOpen)
            m_computer.CloseClient();
        m_caller.ForgetAnswers();
        const long long code = method.actual(m_manager, m_caller);
        return m_caller.Answers(code, m_journal.TakeEvents());
    }

    simulation::Accounts Audit() { return m_computer.Audit(); }

private:
    const Situation& m_situation;
    TestComputer m_computer;
    CWirelessManage& m_manager;
    PlainService m_plainService;
    Caller m_caller;
    Journal m_journal;
};

/// What the situations led to, to see that they hold what the comparison is about.
struct Findings
{
    std::map<std::string, std::set<long long>> codes;
    unsigned requestsAfterRefusal = 0;
    unsigned repeatedEntries = 0;
    unsigned bonuses = 0;
    unsigned exclusions = 0;
};

void Record(const Method& method, const Outcome& outcome, Findings& findings)
{
    findings.codes[method.name].insert(outcome.code);
    unsigned requests = 0;
    for (const Event& event : outcome.events)
        requests += event.operation == "WlanConnect" ? 1u : 0u;
    findings.requestsAfterRefusal += requests > 1 ? 1u : 0u;
    for (std::size_t i = 0; i < outcome.entries.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            findings.repeatedEntries += outcome.entries[i] == outcome.entries[j] ? 1u : 0u;
}

/// Whether the library did what the model did.
bool Agrees(const Situation& situation, Laboratory& laboratory, const Method& method, Findings& findings)
{
    Model model = laboratory.MakeModel(method.Declared());
    Outcome expected = method.expected(model);
    Outcome actual = laboratory.Actual(method);
    ForgetTextOfOddNames(expected);
    ForgetTextOfOddNames(actual);
    Record(method, expected, findings);
    findings.bonuses += model.BonusChangedTheOrder() ? 1u : 0u;
    if (actual == expected)
        return true;
    ADD_FAILURE() << method.name << "\nthe model:\n"
                  << Describe(expected) << "the library:\n"
                  << Describe(actual) << "in the situation of " << Describe(situation);
    return false;
}

void CheckSituation(std::uint64_t seed, Findings& findings)
{
    const Situation situation = MakeSituation(seed);
    Laboratory laboratory(situation);
    for (const Method& method : kMethods)
        if (!Agrees(situation, laboratory, method, findings))
            return;
    const auto best = [&laboratory] { return laboratory.MakeModel("ConnectBestAP"); };
    const bool excludes = best().ConnectBestAP(true, true) != best().ConnectBestAP(false, false);
    findings.exclusions += excludes ? 1u : 0u;
    const simulation::Accounts accounts = laboratory.Audit();
    EXPECT_EQ(0u, accounts.liveBlocks) << Describe(situation);
    EXPECT_TRUE(accounts.defects.empty()) << accounts.defects.front() << '\n' << Describe(situation);
}

} // namespace

TEST(ModelTest, AgreesInEverySituation)
{
    Findings findings;
    for (std::uint64_t seed = 1; seed <= CALVIX_MODEL_SITUATIONS && !HasFailure(); ++seed)
        CheckSituation(seed, findings);
    if (HasFailure())
        return;
    for (const Method& method : kMethods)
        for (const long long code : ResultsOf(method))
            EXPECT_EQ(1u, findings.codes[method.name].count(code)) << method.name << " never led to " << code;
    EXPECT_GT(findings.requestsAfterRefusal, CALVIX_MODEL_SITUATIONS / 20u);
    EXPECT_GT(findings.bonuses, CALVIX_MODEL_SITUATIONS / 100u);
    EXPECT_GT(findings.exclusions, CALVIX_MODEL_SITUATIONS / 20u);
    EXPECT_GT(findings.repeatedEntries, CALVIX_MODEL_SITUATIONS / 20u);
}

} // namespace calvix::test
