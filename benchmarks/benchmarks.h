#pragma once

namespace calvix::benchmarks
{

/// A dozen methods, each beside direct calls: "method/<name>".
void RegisterMethods();

/// Matching, collecting and ranking, at four sizes: "growth/<name>/<size>/library" and ".../loops".
void RegisterGrowth();

/// The operations of the simulated computer: "simulator/<operation>/<networks>".
void RegisterSimulator();

} // namespace calvix::benchmarks
