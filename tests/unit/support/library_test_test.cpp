#include "support/allocation_counter.h"
#include "support/contract_table.h"
#include "support/library_test.h"
#include "support/strict_copy_guard.h"

#include <gtest/gtest-spi.h>

#include <new>

namespace calvix::test::library_test_test
{

namespace
{

/// The fixture without a test around it, for looking at what it reports.
class Subject final : public LibraryTest
{
public:
    using LibraryTest::LibraryTest;
    using LibraryTest::TearDown;

private:
    void TestBody() override {}
};

FailureRow RescanRow()
{
    return {"Rescan()", [](auto& m) { return m.Rescan(); }, "WlanScan", -4, {"WlanScan failed with error: %u"}};
}

/// Runs a row that is wrong, and gives back what was reported.
std::string ReportOf(const FailureRow& row)
{
    ::testing::TestPartResultArray results;
    {
        ::testing::ScopedFakeTestPartResultReporter reporter(
            ::testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &results);
        Subject subject;
        CheckFailure(subject, row);
        subject.TearDown();
    }
    std::string report;
    for (int i = 0; i < results.size(); ++i)
        report += std::string(results.GetTestPartResult(i).message()) + "\n";
    return report;
}

} // namespace

TEST(FailureTable, ReportsWhatDoesNotHold)
{
    struct Case
    {
        void (*spoil)(FailureRow&);
        const char* report;
    };
    const Case cases[] = {
        {[](FailureRow& row) { row.expected = -5; }, "-5"},
        {[](FailureRow& row) { row.expected = -5; }, "Rescan() when WlanScan fails with 5"},
        {[](FailureRow& row) { row.expected = -5; }, "tracing off"},
        {[](FailureRow& row) { row.traced = {"WlanScan broke: %u"}; }, "WlanScan broke: 5"},
        {[](FailureRow& row) { row.traced.push_back("and more"); }, "and more"},
        {[](FailureRow& row) { row.buffer = TraceBuffer::local; }, "the shared trace buffer holds \"WlanScan failed"},
        {[](FailureRow& row) { row.failingOperation = "WlanConnect"; }, "call 1 of WlanConnect was never made"},
    };
    for (const Case& each : cases)
    {
        FailureRow row = RescanRow();
        each.spoil(row);
        EXPECT_THAT(ReportOf(row), ::testing::HasSubstr(each.report));
    }
}

TEST(FailureTable, ReportsWhatComesAfterAFailureThatEndsTheMethod)
{
    FailureRow row = RescanRow();
    row.last = "WlanScan";
    EXPECT_EQ("", ReportOf(row));
    row.call = [](auto& m)
    {
        const long long result = m.Rescan();
        m.GetWiFiAdapterCount();
        return result;
    };
    EXPECT_THAT(ReportOf(row), ::testing::HasSubstr("nothing comes after the failure"));
}

TEST(FailureTable, ReportsABlockThatIsHeld)
{
    FailureRow row = RescanRow();
    row.call = [](auto& m) -> long long
    {
        WLAN_INTERFACE_INFO_LIST* list = nullptr;
        platform::wlan().WlanEnumInterfaces(ManagerInternals::Client(), nullptr, &list);
        return m.Rescan();
    };
    EXPECT_THAT(ReportOf(row), ::testing::HasSubstr("blocks of the WLAN service were not released"));
}

TEST(LibraryTestReport, ReportsADefectUnlessItWasAnnounced)
{
    const auto reports = [](const char* announced)
    {
        ::testing::TestPartResultArray results;
        ::testing::ScopedFakeTestPartResultReporter reporter(
            ::testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &results);
        Subject subject;
        if (announced != nullptr)
            subject.ExpectDefect(announced);
        int notTheServices = 0;
        platform::wlan().WlanFreeMemory(&notTheServices);
        subject.TearDown();
        return results.size();
    };
    EXPECT_EQ(1, reports(nullptr));
    EXPECT_EQ(0, reports(""));
    EXPECT_EQ(2, reports("something else"));
}

TEST(LibraryTestReport, ReportsATraceLineWithoutItsBreak)
{
    ::testing::TestPartResultArray results;
    {
        ::testing::ScopedFakeTestPartResultReporter reporter(
            ::testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &results);
        Subject subject;
        platform::debugger().OutputDebugStringA("alone");
        subject.traced();
        subject.TearDown();
    }
    ASSERT_EQ(1, results.size());
    EXPECT_THAT(results.GetTestPartResult(0).message(), ::testing::HasSubstr("alone"));
}

TEST(StrictCopyGuardTest, CatchesFatalCallerErrors)
{
    ExpectFatal([] { FatalCallerError("Somewhere", "no room"); }, "Somewhere: no room");
    EXPECT_NONFATAL_FAILURE(ExpectFatal([] {}, "anything"), "no fatal caller error");
    EXPECT_NONFATAL_FAILURE(ExpectFatal([] { FatalCallerError("Somewhere", "no room"); }, "other"),
                            "without \"other\"");
}

TEST(AllocationCounterTest, CountsEveryFormOnceAndNothingInAPause)
{
    const AllocationCounter counter;
    ::operator delete(::operator new(8));
    ::operator delete[](::operator new[](8));
    ::operator delete(::operator new(8, std::nothrow));
    ::operator delete (::operator new (64, std::align_val_t{64}), std::align_val_t{64});
    EXPECT_EQ(4u, counter.Count());
    {
        const AllocationPause pause;
        ::operator delete(::operator new(8));
    }
    EXPECT_EQ(4u, counter.Count());
}

} // namespace calvix::test::library_test_test
