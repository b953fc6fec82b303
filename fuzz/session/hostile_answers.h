#pragma once

#include "input.h"

#include "support/edited_answers.h"

namespace calvix::fuzz::session
{

/// A WLAN service whose records now and then hold what no service should say: lengths beyond the array, names without a
/// terminator, numbers at their limits, empty lists. The number of items is never more than there are.
test::AnswerChanges HostileAnswers(Input& input);

} // namespace calvix::fuzz::session
