#pragma once

#include "support/contract_table.h"

#include <optional>

namespace calvix::test::failure_contract
{

using Lines = std::vector<std::string>;

/// As a code: the number with which the operation failed.
inline constexpr long long kItsError = kSomeError;

/// In the place of an operation: the lists of access points come without entries.
inline constexpr const char* kEmptyBssList = "empty BSS list";

/// A failing call, after which the method calls nothing but releases, unless it goes on.
struct Failing
{
    std::string operation;
    long long code;
    std::optional<Lines> traced = {}; ///< none: "... failed with error: ...", if the method traces at all
    bool goesOn = false;
    unsigned fromCall = 1;
};

/// Where the lines of a method come from.
enum class Traces
{
    shared,
    local,
    nothing
};

struct Contract
{
    const char* method;
    Traces traces;
    std::vector<Failing> failures;
    void (*prepare)(LibraryTest&) = nullptr;
    unsigned error = kSomeError;
    bool findsAdapter = false;    ///< the method itself looks for the adapter, or takes any: the platform refuses none
    bool convertsWrongly = false; ///< deliberate: with flags that the platform refuses, and has to take here
};

/// gtest prints the parameter of a test that failed.
[[maybe_unused]] inline void PrintTo(const Contract& contract, std::ostream* stream)
{
    *stream << contract.method;
}

/// What methods give and trace when a call of the platform fails, a row a call, in the order in which they make them.
std::vector<Contract> EveryContract();

/// Brings about what stands in the place of an operation: there is nothing for the methods. Null if it is an operation.
void (*Bringing(const std::string& operation))(LibraryTest&);

} // namespace calvix::test::failure_contract
