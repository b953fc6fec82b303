// Simulated computers for the tests of programs that use CWirelessManage: as many in one process as there are tests. Link
// calvix::testing in the place of calvix::calvix; it holds the library too, so that no shared library is needed.
#pragma once

#include <calvix/wireless_manage.h>

#include <chrono>
#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace calvix::testing
{

/// A call that the library made to the platform.
struct Call
{
    std::string operation;                                     ///< such as "WlanScan"
    std::map<std::string, std::string, std::less<>> arguments; ///< by name, each as text
    std::string line;                                          ///< the call with its arguments

    /// The text of an argument, empty if there is none of this name.
    std::string operator[](std::string_view name) const
    {
        const auto found = arguments.find(name);
        return found != arguments.end() ? found->second : std::string();
    }
};

/// What programs have not released, and what they did that a correct program does not do.
struct Held
{
    std::size_t blocks = 0;           ///< of the WLAN service and of power management
    std::size_t clients = 0;          ///< client handles; the manager has one until CWirelessManage::Delete
    std::size_t handles = 0;          ///< of services, tokens and processes
    std::vector<std::string> defects; ///< double frees, closed handles in use and the like, one line each

    bool Nothing() const { return blocks + clients + handles == 0 && defects.empty(); }
};

/// A fresh simulated computer, on which CWirelessManage works for as long as this lives: one at a time. Its time moves
/// only with Advance. It begins and ends without a manager, so that no test sees what another one left.
/// scenario.schema.json describes scenarios; for an invalid one the constructor throws a std::exception that says why.
class Computer
{
public:
    static constexpr unsigned kAlways = 0xFFFFFFFF;

    /// The built-in home.
    Computer();
    /// The scenario that a text describes.
    explicit Computer(const std::string& scenario);
    static Computer FromFile(const std::string& path);
    ~Computer();
    Computer(const Computer&) = delete;
    Computer& operator=(const Computer&) = delete;

    /// The manager, made at the first call.
    CWirelessManage& Manager();

    /// Lets simulated time pass, and waits until its callbacks have run. Do not call it in a callback.
    void Advance(std::chrono::milliseconds duration);
    /// Simulated time since the computer started.
    std::chrono::milliseconds Now() const;

    void SetServiceRunning(bool running);
    void SetLocationConsent(bool given);
    /// Switches the software switch of all radios of an adapter; they count from 0, as in the scenario.
    void SetRadio(std::size_t adapter, bool on);

    /// Makes calls of an operation fail with a platform error number: from the `fromCall`-th one, counted from now from 1,
    /// `times` of them. Such a call does not reach the computer. An unknown operation is a std::invalid_argument.
    void Fail(const std::string& operation, unsigned long error, unsigned fromCall = 1, unsigned times = kAlways);
    /// Makes the calls fail for which `decide` returns an error number. It may change the computer at that moment, too.
    void FailWhen(std::function<std::optional<unsigned long>(const Call&)> decide);
    /// No call is made to fail any more.
    void StopFailing();
    /// How many calls were made to fail since the last StopFailing, to see that a test met its failure at all.
    unsigned FailedCalls() const;

    /// The calls since the computer started or the last ForgetCalls, in order.
    std::vector<Call> Calls() const;
    /// How often an operation was called since then.
    std::size_t CallCount(std::string_view operation) const;
    void ForgetCalls();

    /// What is held now. After CWirelessManage::Delete it is nothing, unless the program holds something itself.
    testing::Held Held();

private:
    friend struct ComputerInternals;
    struct Parts;
    explicit Computer(std::unique_ptr<Parts> parts);

    std::unique_ptr<Parts> m_parts;
};

} // namespace calvix::testing
