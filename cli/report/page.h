#pragma once

#include "report/report_facts.h"

#include <string>

namespace calvix::host
{

/// The files of the page that the build compiles in.
extern const char* const kPageTemplate; ///< page.html
extern const char* const kPageStyle;    ///< page.css
extern const char* const kPageScript;   ///< page.js

/// The whole page, which needs nothing beside itself.
std::string ReportPage(const ReportFacts& report);

} // namespace calvix::host
