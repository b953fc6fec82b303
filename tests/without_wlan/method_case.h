#pragma once

#include <calvix/wireless_manage.h>

#include <gmock/gmock.h>

#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

namespace calvix::test::every_method
{

/// What a method may answer, as text; "returned" for one without a result.
using Answer = testing::Matcher<std::string>;

/// One method and its answers where wireless cannot work.
struct MethodCase
{
    const char* declaration;                       ///< as tests/binary/exports.txt has it
    std::string (*call)(CWirelessManage& manager); ///< calls it, looks after its outputs, and returns its answer
    Answer withoutWlan;                            ///< there is no wlanapi.dll
    Answer onWine; ///< Wine's own: the client handle opens, there is no adapter, and requests are refused
};

inline constexpr GUID kAdapter = {0xcafe0001, 0x0002, 0x0003, {4, 5, 6, 7, 8, 9, 10, 11}};
inline constexpr char kReturned[] = "returned";

/// The error number that stands for the missing wlanapi.dll.
inline constexpr int kNoLibrary = ERROR_MOD_NOT_FOUND;

/// The error number of an operation that Wine exports without having written it.
inline constexpr int kUnwritten = ERROR_CALL_NOT_IMPLEMENTED;

template <typename Result>
std::string Said(const Result& result)
{
    if constexpr (std::is_arithmetic_v<Result>)
        return std::to_string(result);
    else
        return result;
}

inline Answer Is(long long code)
{
    return testing::StrEq(std::to_string(code));
}

/// A positive number, whichever the system chose.
Answer AnErrorNumber();

/// An output argument of a call that must not write to it.
template <typename Record>
class Untouched
{
public:
    Untouched() { std::memset(static_cast<void*>(&record_), kMark, sizeof(record_)); }

    ~Untouched()
    {
        const auto* const bytes = reinterpret_cast<const unsigned char*>(&record_);
        EXPECT_THAT(std::vector<unsigned char>(bytes, bytes + sizeof(record_)), testing::Each(kMark));
    }

    Untouched(const Untouched&) = delete;
    Untouched& operator=(const Untouched&) = delete;

    Record& operator*() { return record_; }

private:
    static constexpr unsigned char kMark = 0x5A;

    Record record_;
};

std::vector<MethodCase> FrameMethods();
std::vector<MethodCase> ConversionMethods();
std::vector<MethodCase> RadioMethods();
std::vector<MethodCase> InventoryMethods();
std::vector<MethodCase> ProfileMethods();
std::vector<MethodCase> ConnectionMethods();
std::vector<MethodCase> AutomaticMethods();
std::vector<MethodCase> SystemMethods();

/// All of them; Delete comes last.
std::vector<MethodCase> AllMethods();

/// What the library exports, for comparison.
std::vector<std::string> ExportedMethods();

/// A method's name and number of overload, as a test can be called.
std::string TestName(const testing::TestParamInfo<MethodCase>& method);

/// Tests that call every method, which ends programs, changes power settings and puts a computer to sleep: skipped
/// anywhere but on Wine, which only pretends.
class OnWine : public testing::Test
{
protected:
    void SetUp() override;
};

/// gtest prints the parameter of a test that failed.
void PrintTo(const MethodCase& method, std::ostream* stream);

} // namespace calvix::test::every_method
