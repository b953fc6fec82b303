#pragma once

#include "input.h"

#include "support/changed_platform.h"

namespace calvix::fuzz::session
{

/// The WLAN service in use, whose records now and then hold what no service should say: lengths beyond the array, names
/// without a terminator, numbers at their limits, empty lists. The number of items is never more than there are.
class HostileAnswers final : public test::ChangedPlatform
{
public:
    explicit HostileAnswers(Input& input);
};

} // namespace calvix::fuzz::session
