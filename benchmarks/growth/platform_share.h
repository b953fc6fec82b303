#pragma once

namespace calvix::benchmarks
{

/// Matching and ranking on the simulated computer, where lists are made and not merely copied: how long a call takes
/// beside the time that it spends inside its platform calls, "share/<method>/<size>".
void RegisterPlatformShareBenchmarks();

} // namespace calvix::benchmarks
