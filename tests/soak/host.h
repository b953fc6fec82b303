#pragma once

#include "methods/method.h"
#include "soak/scenario_text.h"

#include <atomic>
#include <cstdint>
#include <iterator>
#include <random>
#include <set>

namespace calvix::test::soak
{

struct Habit;

/// A program that uses the library all day: what it knows, and what it remembers between two calls. It calls methods with
/// what it knows.
class Host final : public methods::Arguments
{
public:
    explicit Host(std::uint64_t seed) : random(seed) {}

    CWirelessManage& Manager() { return *CWirelessManage::Get(); }
    void Call(const methods::Method& method) { methods::Call(method, *this).Make(Manager()); }
    void Call(const char* name) { Call(methods::FindMethod(name)); }

    /// A number below `limit`. The standard distributions differ from one library to the next.
    unsigned Below(unsigned limit) { return static_cast<unsigned>(random() % limit); }
    /// The first adapter mostly, sometimes the other, now and then one that is not there.
    const GUID* Adapter() override;
    /// A name of one of our networks, rarely an unknown one.
    std::string Name();
    DOT11_SSID Ssid() override;
    WLAN_CONNECTION_ATTRIBUTES Connection() override { return connection; }
    WLAN_NOTIFICATION_CALLBACK Callback() override;
    void* Context() override { return this; }

    std::mt19937_64 random;
    std::vector<GUID> adapters;
    WLAN_CONNECTION_ATTRIBUTES connection{};
    std::atomic<unsigned long long> notifications{0};
    unsigned long long callCount = 0;
    std::set<const Habit*> done;

protected:
    std::string Text(const methods::Parameter& parameter) override;
    std::string Document() override { return methods::ProfileDocument(Name(), Below(2) == 0); }
    long long Number(const methods::Parameter& parameter) override;
};

/// What a habit needs of its surroundings to be done at all, or at any time.
enum class Needs
{
    nothing,
    patience,          ///< it sleeps for seconds
    simulatedComputer, ///< it changes the computer, or reaches beyond it
};

/// One thing that a program does.
struct Habit
{
    std::string name;
    unsigned weight; ///< how often, beside the others
    std::function<void(Host& host)> act;
    Needs needs = Needs::nothing;
};

/// A call of each method, and what is done in several calls.
const std::vector<Habit>& Habits();

/// As the program found its profiles, radio and notifications in the morning.
void TidyUp(Host& host);

} // namespace calvix::test::soak
