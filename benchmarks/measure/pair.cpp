#include "measure/pair.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <ctime>

namespace calvix::benchmarks
{

namespace
{

using Clock = std::chrono::steady_clock;

double NanosecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

void Prepare(Scene& scene, Preparation before)
{
    if (before != nullptr)
        before(scene);
}

template <typename Record>
bool SameBytes(const std::vector<Record>& left, const std::vector<Record>& right)
{
    return left.size() == right.size() &&
           (left.empty() || std::memcmp(left.data(), right.data(), left.size() * sizeof(Record)) == 0);
}

} // namespace

Outcome TryOnce(Scene& scene, Call call, Preparation before)
{
    Prepare(scene, before);
    call(scene);
    std::memset(static_cast<void*>(&scene.out.plain), 0, sizeof(scene.out.plain));
    Prepare(scene, before);
    g_calls = {};
    const std::size_t allocated = AllocationCount();
    Outcome outcome;
    outcome.result = call(scene);
    outcome.allocations = AllocationCount() - allocated;
    outcome.calls = g_calls;
    outcome.outputs = scene.out;
    return outcome;
}

std::string Difference(const Outcome& library, const Outcome& direct, bool compareCalls)
{
    if (library.result != direct.result)
        return "the library gives " + std::to_string(library.result) + ", the hand-written code " +
               std::to_string(direct.result);
    const Outputs& left = library.outputs;
    const Outputs& right = direct.outputs;
    if (std::memcmp(&left.plain, &right.plain, sizeof(left.plain)) != 0 || !SameBytes(left.entries, right.entries) ||
        !SameBytes(left.adapters, right.adapters) || left.names != right.names ||
        left.softAccessPoints != right.softAccessPoints)
        return "the two sides write different things";
    if (compareCalls && library.calls != direct.calls)
        return "the two sides make different platform calls";
    return {};
}

double MedianOf(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

Rounds::Rounds(Scene& scene, std::vector<Call> calls, Preparation before, const Budget& budget)
    : m_scene(scene), m_before(before), m_processorTime(budget.processorTime), m_times(calls.size())
{
    double once = 1;
    for (const Call call : calls)
    {
        const double first = TimeOf(call, 1);
        once = (std::max)(once, first < budget.batch ? TimeOf(call, 3) : first); // the first one also warms up
    }
    const auto repeats = static_cast<std::size_t>((std::max)(1.0, budget.batch / once));
    const Clock::time_point start = Clock::now();
    for (std::size_t round = 0; round < budget.most && (round < budget.least || NanosecondsSince(start) < budget.total);
         ++round)
    {
        for (std::size_t place = 0; place < calls.size(); ++place)
        {
            const std::size_t index = round % 2 == 0 ? place : calls.size() - 1 - place;
            m_times[index].push_back(TimeOf(calls[index], repeats));
        }
    }
}

double Rounds::Median(std::size_t call) const
{
    return MedianOf(m_times[call]);
}

double Rounds::MedianRatio(std::size_t call, std::size_t other) const
{
    std::vector<double> ratios;
    for (std::size_t round = 0; round < m_times[call].size(); ++round)
        ratios.push_back(m_times[call][round] / m_times[other][round]);
    return MedianOf(ratios);
}

double Rounds::TimeOf(Call call, std::size_t repeats) const
{
    double sum = 0;
    if (m_before != nullptr)
    {
        for (std::size_t repeat = 0; repeat < repeats; ++repeat)
        {
            m_before(m_scene);
            const Clock::time_point start = Clock::now();
            benchmark::DoNotOptimize(call(m_scene));
            sum += NanosecondsSince(start);
        }
    }
    else
    {
        const std::clock_t processorStart = m_processorTime ? std::clock() : 0;
        const Clock::time_point start = Clock::now();
        for (std::size_t repeat = 0; repeat < repeats; ++repeat)
            benchmark::DoNotOptimize(call(m_scene));
        sum = m_processorTime
                  ? static_cast<double>(std::clock() - processorStart) * (1e9 / static_cast<double>(CLOCKS_PER_SEC))
                  : NanosecondsSince(start);
    }
    return sum / static_cast<double>(repeats);
}

} // namespace calvix::benchmarks
