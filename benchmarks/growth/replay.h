#pragma once

#include "methods/scene.h"
#include "service/calls.h"

namespace calvix::benchmarks
{

/// Makes as many platform calls of each kind as `calls` says, one after the other, and releases what they hand out: the
/// part of a method's time that no implementation can do without. For the list service, which gives the same answer
/// whatever the arguments.
void Replay(const Scene& scene, const CallCounts& calls);

} // namespace calvix::benchmarks
