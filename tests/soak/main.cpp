// Lives through many simulated days with the library and checks whether the process holds more at their end than at their
// beginning. See the usage text below.

#include "soak/host.h"
#include "soak/surroundings.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace calvix::test::soak
{

namespace
{

using namespace std::chrono_literals;

constexpr const char* kUsage =
    "Usage: calvix_soak [--days N] [--seed N] [--margin N]\n"
    "\n"
    "Calls every method of the library in a seeded random order, all day long, for so many simulated days (2 at\n"
    "least), and compares what the process holds after the last day with what it held after the eleventh, or the last\n"
    "but one.\n"
    "--margin N: so many kilobytes may the resident memory grow (1024).\n";

struct Options
{
    unsigned days = 2;
    unsigned seed = 1;
    unsigned margin = 1024; ///< how much more resident memory there may be at the end, in kilobytes
};

/// The simulated computer fills its record of freed blocks in the first days.
constexpr unsigned kWarmUpDays = 10;

/// How many more blocks there may be at the end: what the simulated computer keeps varies by a few.
constexpr Count kMoreHeapBlocks = 64;
#if defined(_WIN32)
// The C runtime and Wine make a few the first time that a wait needs them; what leaks makes some every day.
constexpr Count kMoreHandles = 4;
#else
constexpr Count kMoreHandles = 0;
#endif

/// What is done in these surroundings, each as often in the list as its weight says.
std::vector<const Habit*> HabitsOf(const Surroundings& surroundings)
{
    std::vector<const Habit*> habits;
    for (const Habit& habit : Habits())
        if (surroundings.SimulateEverything() || habit.needs != Needs::simulatedComputer)
            habits.insert(habits.end(), habit.weight, &habit);
    return habits;
}

/// Where time follows real time, a second of that is hours, and what sleeps is done rarely.
const Habit& Choose(const std::vector<const Habit*>& habits, Host& host, const Surroundings& surroundings)
{
    for (;;)
    {
        const Habit& chosen = *habits[host.Below(static_cast<unsigned>(habits.size()))];
        if (surroundings.SimulateEverything() || chosen.needs != Needs::patience || host.Below(50) == 0)
            return chosen;
    }
}

void LiveUntil(Surroundings::Duration evening,
               const std::vector<const Habit*>& habits,
               Host& host,
               Surroundings& surroundings)
{
    while (surroundings.Now() < evening)
    {
        const Habit& habit = Choose(habits, host, surroundings);
        habit.act(host);
        host.done.insert(&habit);
        ++host.callCount;
        if (host.Below(100) == 0)
            surroundings.Trouble(host.random);
        surroundings.Pass(std::chrono::seconds(1 + host.Below(240)));
    }
}

void Print(unsigned day, const Holdings& holdings, const Host& host)
{
    std::printf("%8u %13llu %12llu %8llu %8llu %10llu %14llu\n", day, holdings.residentKilobytes, holdings.heapBlocks,
                holdings.handles, holdings.threads, host.callCount, host.notifications.load());
    std::fflush(stdout);
}

/// Whether the end is as good as the beginning; says what is not.
bool IsFlat(const Holdings& first, const Holdings& last, Count margin)
{
    bool flat = true;
    const auto compare = [&flat](const char* what, Count before, Count after, Count more)
    {
        if (after <= before + more)
            return;
        std::printf("soak: %s grew from %llu to %llu, by more than %llu\n", what, before, after, more);
        flat = false;
    };
    compare("the resident memory (KB)", first.residentKilobytes, last.residentKilobytes, margin);
    compare("the number of heap blocks", first.heapBlocks, last.heapBlocks, kMoreHeapBlocks);
    compare("the number of handles", first.handles, last.handles, kMoreHandles);
    compare("the number of threads", first.threads, last.threads, 0);
    return flat;
}

/// Whether everything was done at least once, but for what is rare.
bool DidEverything(const Host& host, const std::vector<const Habit*>& habits)
{
    bool all = host.notifications != 0;
    for (const Habit* habit : habits)
    {
        if (host.done.contains(habit) || habit->needs == Needs::patience)
            continue;
        std::printf("soak: never done: %s\n", habit->name.c_str());
        all = false;
    }
    return all;
}

bool Soak(const Options& options)
{
    const std::unique_ptr<Surroundings> surroundings = MakeSurroundings(ScenarioText(options.days));
    Host host(options.seed);
    std::vector<WLAN_INTERFACE_INFO> adapters;
    host.Manager().GetWlanInterface(&adapters);
    for (const WLAN_INTERFACE_INFO& info : adapters)
        host.adapters.push_back(info.InterfaceGuid);

    const std::vector<const Habit*> habits = HabitsOf(*surroundings);
    const unsigned firstDay = (std::min)(kWarmUpDays + 1, options.days - 1);
    const unsigned step = (std::max)(options.days / 10, 1u);
    Holdings first;
    Holdings last;
    bool good = true;
    std::printf("%8s %13s %12s %8s %8s %10s %14s\n", "day", "resident KB", "heap blocks", "handles", "threads", "calls",
                "notifications");
    for (unsigned day = 1; day <= options.days; ++day)
    {
        LiveUntil(day * 24h, habits, host, *surroundings);
        surroundings->Calm();
        TidyUp(host);
        surroundings->Pass(5min);
        const std::string held = surroundings->EndOfDay();
        if (!held.empty())
            std::printf("soak: in the evening of day %u: %s", day, held.c_str());
        good = good && held.empty();
        last = surroundings->Measure();
        if (day == firstDay)
            first = last;
        if (day == firstDay || day % step == 0 || day == options.days)
            Print(day, last, host);
    }
    good = IsFlat(first, last, options.margin) && good;
    good = DidEverything(host, habits) && good;
    std::printf("soak: %u days, %s\n", options.days, good ? "flat" : "NOT FLAT");
    return good;
}

unsigned ReadNumber(const char* text)
{
    char* end = nullptr;
    const unsigned long number = std::strtoul(text, &end, 10);
    if (*end != '\0' || number == 0 || number > 100'000)
        throw std::runtime_error(std::string("not a number from 1 to 100000: ") + text);
    return static_cast<unsigned>(number);
}

Options ReadOptions(int argc, char** argv)
{
    Options options;
    for (int index = 1; index + 1 < argc; index += 2)
    {
        const std::string name = argv[index];
        const char* const value = argv[index + 1];
        if (name == "--days")
            options.days = ReadNumber(value);
        else if (name == "--seed")
            options.seed = ReadNumber(value);
        else if (name == "--margin")
            options.margin = ReadNumber(value);
        else
            throw std::runtime_error(kUsage);
    }
    if (argc % 2 == 0)
        throw std::runtime_error(kUsage);
    if (options.days < 2)
        throw std::runtime_error("a single day has none to be compared with; try --days 2");
    return options;
}

} // namespace

} // namespace calvix::test::soak

int main(int argc, char** argv)
{
    using namespace calvix::test::soak;
    try
    {
        return Soak(ReadOptions(argc, argv)) ? 0 : 1;
    }
    catch (const std::exception& problem)
    {
        std::fprintf(stderr, "calvix_soak: %s\n", problem.what());
        return 2;
    }
}
