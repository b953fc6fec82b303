#include "growth/growth_benchmarks.h"
#include "growth/platform_share.h"
#include "measure/report.h"
#include "methods/method_benchmarks.h"
#include "methods/method_row.h"
#include "simulator/simulator_benchmarks.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <vector>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace
{

using namespace calvix::benchmarks;

/// The C library gives large blocks back to the system at once, so that every list of a few megabytes would pay for
/// fresh pages: their price, not the library's, would then be measured.
void KeepLargeBlocks()
{
#if defined(__GLIBC__)
    mallopt(M_MMAP_THRESHOLD, 32 << 20);
    mallopt(M_TRIM_THRESHOLD, 512 << 20);
#endif
}

/// Whether every exported method is measured.
bool CoversAllMethods()
{
    const std::vector<std::string> uncovered = Uncovered(AllRows(), CALVIX_EXPORTS_FILE);
    for (const std::string& method : uncovered)
        std::fprintf(stderr, "exported or measured, but not both: %s\n", method.c_str());
    return uncovered.empty();
}

/// The program's arguments behind the usual ones.
std::vector<char*> WithDefaults(int argumentCount, char** arguments)
{
    static char repetitions[] = "--benchmark_repetitions=9";
    std::vector<char*> all{arguments[0], repetitions};
    all.insert(all.end(), arguments + 1, arguments + argumentCount);
    return all;
}

} // namespace

int main(int argc, char** argv)
{
    KeepLargeBlocks();
    if (!CoversAllMethods())
        return 1;
    std::vector<char*> arguments = WithDefaults(argc, argv);
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;

    RegisterMethodBenchmarks();
    RegisterGrowthBenchmarks();
    RegisterPlatformShareBenchmarks();
    RegisterSimulatorBenchmarks();
    Report report;
    benchmark::RunSpecifiedBenchmarks(&report);
    benchmark::Shutdown();
    return report.HasErrors() ? 1 : 0;
}
