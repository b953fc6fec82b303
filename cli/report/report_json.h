#pragma once

#include "report/report_facts.h"

#include <string>

namespace calvix::host
{

/// Everything that the page shows as one JSON object. `forPage`: as it may stand in a script element, in plain ASCII
/// without any character that ends the element or begins another.
std::string ReportJson(const ReportFacts& report, bool forPage);

} // namespace calvix::host
