#pragma once

#include "report/report_facts.h"

#include <string>

namespace calvix::host
{

/// The whole page, which needs nothing beside itself.
std::string ReportPage(const ReportFacts& report);

} // namespace calvix::host
