#pragma once

#include "soak/world_text.h"

#include <calvix/wireless_manage.h>

#include <atomic>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace calvix::test::soak
{

/// A program that uses the library all day: what it knows, and what it remembers between two calls.
struct Host
{
    explicit Host(std::uint64_t seed) : random(seed) {}

    CWirelessManage& Manager() { return *CWirelessManage::Get(); }

    /// A number below `limit`. The standard distributions differ from one library to the next.
    unsigned Below(unsigned limit) { return static_cast<unsigned>(random() % limit); }
    /// The first adapter mostly, sometimes the other, now and then one that is not there.
    const GUID* Adapter();
    /// A name of a network of ours, rarely one that nobody has.
    std::wstring Name();
    std::string NarrowName();
    DOT11_SSID Ssid();

    std::mt19937_64 random;
    std::vector<GUID> adapters;
    WLAN_CONNECTION_ATTRIBUTES connection{};
    std::atomic<std::uint64_t> notifications{0};
    std::map<std::string, std::uint64_t> calls; ///< by method
};

/// What a method needs of its surroundings to be called at all, or at any time.
enum class Needs
{
    nothing,
    patience,          ///< it sleeps for seconds
    simulatedComputer, ///< it changes the computer, or reaches beyond it
};

/// One thing that a program does.
struct Habit
{
    const char* method;
    unsigned weight; ///< how often, beside the others
    void (*act)(Host& host);
    Needs needs = Needs::nothing;
};

const std::vector<Habit>& Habits();

std::vector<Habit> AskingHabits();
std::vector<Habit> JoiningHabits();
std::vector<Habit> SystemHabits();

/// As the program found its profiles, radio and notifications in the morning.
void TidyUp(Host& host);

} // namespace calvix::test::soak
