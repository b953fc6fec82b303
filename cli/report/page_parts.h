#pragma once

#include "report/report_facts.h"

#include <string>

namespace calvix::host
{

/// The parts of the page that are made of text.

/// What could not be found out and what to do about it; empty where nothing is missing.
std::string MissingParts(const ReportFacts& report);
/// The most important numbers.
std::string KeyFacts(const ReportFacts& report);
/// The rows of the table of the access points.
std::string AccessPointRows(const ReportFacts& report);
std::string AdapterItems(const ReportFacts& report);
std::string ConnectionItems(const ReportFacts& report);
std::string ProfileItems(const ReportFacts& report);
/// What the automatic methods would do.
std::string ChoiceTable(const ReportFacts& report);

} // namespace calvix::host
