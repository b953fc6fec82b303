#include "benchmarks.h"
#include "tables.h"

int main(int argc, char** argv)
{
    using namespace calvix::benchmarks;
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    RegisterMethods();
    RegisterGrowth();
    RegisterSimulator();
    Tables tables;
    benchmark::RunSpecifiedBenchmarks(&tables);
    benchmark::Shutdown();
    return tables.HasErrors() ? 1 : 0;
}
