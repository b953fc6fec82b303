#pragma once

#include "sweep/output.h"

#include <calvix/wireless_manage.h>

#include <iosfwd>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

namespace calvix::test::sweep
{

/// How a call of a method ended.
struct Outcome
{
    std::optional<long long> code; ///< none where the result is no number
    std::string text{};
    std::vector<std::string> outputs{}; ///< what the method was given to fill, in the order of its arguments

    bool operator==(const Outcome&) const = default;
};

/// One method and a call of it with useful arguments.
struct MethodCall
{
    const char* declaration; ///< as tests/binary/exports.txt has it
    Outcome (*call)(CWirelessManage& manager);
    void (*before)(CWirelessManage& manager) = nullptr; ///< what is called first and never fails
    bool opensClient = true;                            ///< whether the client handle is closed before the call

    /// The method's name alone.
    std::string Name() const;
};

/// The process that CloseProcess ends and the program that is started; the worlds of the sweep have both.
inline constexpr unsigned long kProcess = 4242;
inline constexpr char kProgram[] = "worker.exe";

/// Every method once; Delete, after which there is no manager, as well.
std::vector<MethodCall> EveryMethod();

std::vector<MethodCall> ServiceMethods();  ///< the manager, adapters, radio, settings and notifications
std::vector<MethodCall> AirMethods();      ///< scans, lists and signals
std::vector<MethodCall> ProfileMethods();  ///< stored profiles
std::vector<MethodCall> JoiningMethods();  ///< the connection and everything that makes one
std::vector<MethodCall> ComputerMethods(); ///< texts, power, privileges, processes, the internet

/// gtest prints the parameter of a test that failed.
void PrintTo(const MethodCall& method, std::ostream* stream);

inline Outcome Nothing()
{
    return {std::nullopt};
}

template <typename Result, typename... Outputs>
Outcome Told(Result result, const Outputs&... outputs)
{
    const AllocationPause notTheMethods;
    Outcome outcome;
    outcome.outputs = {outputs.Text()...};
    if constexpr (std::is_arithmetic_v<Result>)
        outcome.code = static_cast<long long>(result);
    else
        outcome.text = result == nullptr ? "null" : reinterpret_cast<const char*>(result);
    return outcome;
}

} // namespace calvix::test::sweep
