#pragma once

#include "import/made_scenario.h"
#include "output/failure.h"

namespace calvix::host
{

/// Asks the service. A refused list is empty, and a warning says what was refused. If location consent is missing, the
/// scenario has none either. A radio that is off needs no warning: the scenario has it off.
template <typename Ask>
auto OrWarn(MadeScenario& made, Ask ask) -> decltype(ask())
{
    constexpr std::uint32_t accessDenied = 5;
    constexpr std::uint32_t radioOff = 0x80342002;
    try
    {
        return ask();
    }
    catch (const Failure& failure)
    {
        const FailureReport& report = failure.report();
        if (report.platformError == accessDenied && report.operation != "WlanGetProfileList")
            made.scenario.locationConsent = false;
        if (report.platformError != radioOff)
            made.Warn(report.message + "; " + report.advice);
        return {};
    }
}

} // namespace calvix::host
