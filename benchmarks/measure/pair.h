#pragma once

#include "measure/allocation_count.h"
#include "methods/method_row.h"
#include "service/calls.h"

#include <optional>
#include <string>
#include <vector>

namespace calvix::benchmarks
{

/// What a single call gave, made outside the measured time.
struct Outcome
{
    long long result = 0;
    CallCounts calls{};
    std::size_t allocations = 0;
    Outputs outputs;
};

/// Makes the call twice and tells of the second: vectors have their room then, and what is remembered is remembered.
Outcome TryOnce(Scene& scene, Call call, Preparation before);

/// How the outcomes differ in what a caller can tell, empty when they do not.
std::string Difference(const Outcome& library, const Outcome& direct, bool compareCalls);

/// Nanoseconds a call, of several calls measured in turns: a batch of the first, a batch of the second, ..., and again,
/// every other round backwards, until the time is used up. Whatever slows the machine meets all of them.
class Rounds
{
public:
    struct Budget
    {
        double batch = 20e3; ///< nanoseconds that a batch takes, where one call does not take longer
        double total = 12e6;
        std::size_t least = 5; ///< rounds, however long they take
        std::size_t most = 301;
        /// Processor time, for batches so long that other programs get a turn in them; it counts in microseconds.
        bool processorTime = false;
    };

    Rounds(Scene& scene, std::vector<Call> calls, Preparation before, const Budget& budget);

    /// The middle one of the rounds.
    double Median(std::size_t call) const;
    /// The middle one of the quotients that the rounds have for two of the calls.
    double MedianRatio(std::size_t call, std::size_t other) const;

private:
    double TimeOf(Call call, std::size_t repeats) const;

    Scene& m_scene;
    Preparation m_before;
    bool m_processorTime;
    std::vector<std::vector<double>> m_times;
};

/// The middle one.
double MedianOf(std::vector<double> values);

} // namespace calvix::benchmarks
