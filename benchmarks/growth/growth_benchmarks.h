#pragma once

namespace calvix::benchmarks
{

/// The methods whose work grows with what the service lists, at four sizes: "growth/<case>/<size>". Each beside its
/// platform calls alone and, where they end in time, beside nested loops.
void RegisterGrowthBenchmarks();

} // namespace calvix::benchmarks
