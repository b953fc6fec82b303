#pragma once

#include "output/json_record.h"
#include "report/report_facts.h"

#include <string>

namespace calvix::host
{

JsonRecord Describe(const AirAccessPoint& point);
/// Everything that the page shows.
JsonRecord Describe(const ReportFacts& report);

/// The same as it may stand in a script element, in plain ASCII without any character that ends the element or begins
/// another.
std::string ReportJson(const ReportFacts& report);

} // namespace calvix::host
