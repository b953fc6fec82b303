#include "paired_benchmark.h"
#include "result_table.h"

#include <benchmark/benchmark.h>

#include <vector>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace
{

/// The C library gives large blocks back to the system at once, so that every list of a few megabytes would pay for
/// fresh pages: their price, not the library's, would then be measured.
void KeepLargeBlocks()
{
#if defined(__GLIBC__)
    mallopt(M_MMAP_THRESHOLD, 32 << 20);
    mallopt(M_TRIM_THRESHOLD, 512 << 20);
#endif
}

/// The program's arguments behind those that make it repeat each benchmark, the two sides of a pair in random turns, so
/// that both meet the machine's quiet and busy moments.
std::vector<char*> WithDefaults(int argumentCount, char** arguments)
{
    static char repetitions[] = "--benchmark_repetitions=9";
    static char duration[] = "--benchmark_min_time=0.03";
    static char interleaved[] = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> all{arguments[0], repetitions, duration, interleaved};
    all.insert(all.end(), arguments + 1, arguments + argumentCount);
    return all;
}

} // namespace

int main(int argc, char** argv)
{
    KeepLargeBlocks();
    std::vector<char*> arguments = WithDefaults(argc, argv);
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;

    calvix::benchmarks::RegisterMatchBenchmarks();
    calvix::benchmarks::RegisterThinWrapperBenchmarks();
    calvix::benchmarks::ResultTable table(calvix::benchmarks::PairNames());
    benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::Shutdown();
    return table.HasErrors() ? 1 : 0;
}
