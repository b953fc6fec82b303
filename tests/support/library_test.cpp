#include "support/library_test.h"

#include "core/trace.h"

#include <algorithm>
#include <cstring>

namespace calvix::test
{

namespace
{

constexpr char kMarker[] = "-- nothing traced yet --";

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

/// Whether an operation serves the reporting of a failure rather than the method's purpose.
bool IsReporting(std::string_view operation)
{
    return operation == "OutputDebugStringA" || operation == "GetLastError";
}

} // namespace

LibraryTest::LibraryTest(const simulation::Scenario& scenario) : m_scenario(scenario)
{
    Begin();
}

void LibraryTest::Begin()
{
    m_computer = calvix::testing::ComputerInternals::Make(m_scenario);
    SetTracing(true);
    CWirelessManage::Get();
    ClearCalls();
}

void LibraryTest::End()
{
    ClearFailures();
    // A test may have deleted the manager itself.
    inside().ForgetClosedClient();
    CWirelessManage::Delete();
    CheckAccounts(0);
    m_expectedDefects.clear();
    m_computer.reset();
}

void LibraryTest::TearDown()
{
    // There is no computer when its scenario could not be used.
    if (m_computer)
        End();
}

void LibraryTest::UseScenario(const simulation::Scenario& scenario)
{
    m_scenario = scenario;
    Restart();
}

void LibraryTest::Restart()
{
    End();
    Begin();
}

void LibraryTest::ForgetClient()
{
    inside().CloseClient();
    ClearCalls();
}

std::vector<std::string> LibraryTest::Texts(std::string Call::*text, bool all) const
{
    std::vector<std::string> texts;
    for (const Call& each : m_computer->Calls())
        if (all || !IsReporting(each.operation))
            texts.push_back(each.*text);
    return texts;
}

Call LibraryTest::call(std::string_view operation, std::size_t number) const
{
    std::size_t seen = 0;
    for (const Call& each : m_computer->Calls())
        if (each.operation == operation && ++seen == number)
            return each;
    ADD_FAILURE() << operation << " was called " << seen << " times, not " << number;
    return {};
}

std::vector<std::string> LibraryTest::traced()
{
    const std::vector<std::string>& output = computer().DebuggerLines();
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < output.size(); i += 2)
    {
        lines.push_back(output[i]);
        if (i + 1 == output.size() || output[i + 1] != "\n")
            ADD_FAILURE() << "the trace line \"" << output[i] << "\" is not followed by a line break of its own";
    }
    return lines;
}

std::string LibraryTest::sharedTrace() const
{
    const void* const end = std::memchr(g_szTraceBuf, '\0', kSharedTraceCapacity);
    if (end == nullptr)
    {
        ADD_FAILURE() << "the shared trace buffer is not terminated";
        return std::string(g_szTraceBuf, kSharedTraceCapacity);
    }
    return g_szTraceBuf;
}

bool LibraryTest::sharedTraceUntouched() const
{
    return std::memcmp(g_szTraceBuf, kMarker, sizeof kMarker) == 0 && g_szTraceBuf[kSharedTraceCapacity - 1] == '#';
}

void LibraryTest::ExpectSilence()
{
    EXPECT_THAT(traced(), ::testing::IsEmpty());
    EXPECT_TRUE(sharedTraceUntouched());
    ExpectNothingHeld();
}

void LibraryTest::ClearCalls()
{
    m_computer->ForgetCalls();
    computer().ClearDebuggerLines();
    std::memset(g_szTraceBuf, '#', kSharedTraceCapacity);
    std::memcpy(g_szTraceBuf, kMarker, sizeof kMarker);
}

void LibraryTest::SetTracing(bool on)
{
    g_bTraceOn = on ? 1 : 0;
}

void LibraryTest::ExpectNothingHeld()
{
    CheckAccounts(ManagerInternals::Client() != nullptr ? 1 : 0);
}

void LibraryTest::ExpectDefect(std::string part)
{
    m_expectedDefects.push_back(std::move(part));
}

void LibraryTest::CheckAccounts(std::size_t clientsAllowed)
{
    const calvix::testing::Held held = m_computer->Held();
    EXPECT_EQ(0u, held.blocks) << "blocks of the WLAN service were not released";
    EXPECT_EQ(0u, held.handles) << "handles were not closed";
    EXPECT_LE(held.clients, clientsAllowed) << "client handles were not closed";
    for (const std::string& defect : held.defects)
        if (std::none_of(m_expectedDefects.begin(), m_expectedDefects.end(),
                         [&](const std::string& part) { return Contains(defect, part); }))
            ADD_FAILURE() << "defect: " << defect;
    for (const std::string& part : m_expectedDefects)
        if (std::none_of(held.defects.begin(), held.defects.end(),
                         [&](const std::string& defect) { return Contains(defect, part); }))
            ADD_FAILURE() << "no defect with \"" << part << "\" was noticed";
}

} // namespace calvix::test
