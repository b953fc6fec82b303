#pragma once

namespace calvix::benchmarks
{

/// How fast the simulated computer answers, with lists of usual sizes: "simulator/<call>/<networks>".
void RegisterSimulatorBenchmarks();

} // namespace calvix::benchmarks
