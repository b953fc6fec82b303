#pragma once

#include "report/report_facts.h"

#include <string>

namespace calvix::host
{

/// The picture of the air that a recorded session leaves, whatever the session was about: the last answer to each
/// question, and the signal over the time that the session waited. `adapter` is what --interface says, empty for the one
/// whose air was listed last. A file that is not a recording, or is damaged, is a Failure; an incomplete one is reported in
/// the result.
ReportFacts ReadRecordedAir(const std::string& path, const std::string& adapter);

} // namespace calvix::host
