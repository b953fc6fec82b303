#pragma once

namespace calvix::benchmarks
{

/// One benchmark for every method and service: "method/list/..." and "method/computer/...", and a few of hand-written
/// code against itself, "control/...", which tell what a difference has to be to mean something.
void RegisterMethodBenchmarks();

} // namespace calvix::benchmarks
