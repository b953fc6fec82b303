#pragma once

#include "output/json_record.h"
#include "report/report_facts.h"

namespace calvix::host
{

JsonRecord Describe(const AirAccessPoint& point);
/// Everything that the page shows.
JsonRecord Describe(const ReportFacts& report);

} // namespace calvix::host
