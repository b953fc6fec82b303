#pragma once

#include "report/report_facts.h"

#include <string>

namespace calvix::host
{

/// The link's signal over time, with the moves between access points marked, and the same moves as a list.
std::string SignalPicture(const ReportFacts& report);

} // namespace calvix::host
