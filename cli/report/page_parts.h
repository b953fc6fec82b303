#pragma once

#include "report/report_facts.h"

#include <string>

namespace calvix::host
{

/// The files of the page that the build compiles in.
extern const char* const kPageTemplate; ///< page.html
extern const char* const kPageStyle;    ///< page.css
extern const char* const kPageScript;   ///< page.js

/// The spectrum: a figure for each band, in which every access point is an arch as wide as its channel and as high as its
/// signal.
std::string SpectrumPicture(const ReportFacts& report);

/// The class that sets the colour of an access point's network.
std::string ColourClass(const AirAccessPoint& accessPoint);

/// The link's signal over time, with the moves between access points marked, and the same moves as a list.
std::string SignalPicture(const ReportFacts& report);

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
