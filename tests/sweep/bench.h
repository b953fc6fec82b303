#pragma once

#include "methods/method.h"
#include "testing/test_computer.h"
#include "wrappers/fault_injection.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace calvix::test::sweep
{

using methods::Method;
using methods::Outcome;

/// A fresh computer with the library on it, ready for one method. Only what the method does counts as its allocations.
class Bench
{
public:
    Bench(const simulation::Scenario& scenario, wrappers::Interceptor& interceptor);

    /// Brings about what the method needs.
    void Prepare(const Method& method);
    Outcome Call(const Method& method);
    simulation::Accounts Audit() { return m_computer.Audit(); }

private:
    TestComputer m_computer;
};

template <std::size_t Count>
bool Contains(const std::array<std::string_view, Count>& names, std::string_view name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// Whether the client handle is closed before the call, so that the method has to open it.
bool OpensClient(const Method& method);

/// What a method does where nothing fails.
struct Reference
{
    std::vector<std::string> operations; ///< the platform operations that it calls, in order
    std::vector<unsigned> bssEntries;    ///< the lengths of the BSS lists among their answers, in order
    Outcome first;                       ///< on a fresh computer
    Outcome again;                       ///< called once more
};

Reference Record(const simulation::Scenario& scenario, const Method& method);

/// What becomes of the calls that a failure is about.
enum class Way
{
    refused,
    emptied,            ///< answered, with an empty list
    refusedBesideAnswer ///< refused, although the answer was handed out, which has to be released
};

/// One way in which the platform lets a method down.
struct Failure
{
    std::string operation;
    wrappers::Fault fault;
    Way way = Way::refused;

    std::string Text() const;
    /// Whether the failure is about this call of its operation, counted from 1.
    bool Concerns(unsigned call) const { return call >= fault.fromCall && call - fault.fromCall < fault.times; }
    /// Whether the operation gives something back, which then stays with the program that wanted to.
    bool IsRelease() const;
};

/// Every recorded call that can fail: alone and with all that follow of its operation, each with several errors. Those
/// that give a list are answered with an empty one, too, and those that hand out memory are refused beside their answer.
std::vector<Failure> FailuresOf(const Reference& reference);

/// A failure's run.
struct Run
{
    unsigned failed = 0; ///< how many calls of the platform
    Outcome outcome;
    simulation::Accounts afterwards;
    Outcome again; ///< the same method when nothing fails any more
    simulation::Accounts inTheEnd;
};

Run Repeat(const simulation::Scenario& scenario, const Method& method, const Failure& failure);

} // namespace calvix::test::sweep
