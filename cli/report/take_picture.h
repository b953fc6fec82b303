#pragma once

#include "host/host.h"
#include "report/report_facts.h"

namespace calvix::host
{

struct PictureOptions
{
    unsigned seconds = 0;   ///< to follow the signal before the picture is taken
    unsigned roamEvery = 0; ///< seconds between two calls of Roaming meanwhile, 0: none
};

/// The access points in view, in the service's order, not numbered yet.
std::vector<AirAccessPoint> ListAir(Host& host);

/// The same numbered, the strongest first, with the one that the adapter is connected to.
std::vector<AirAccessPoint> ArrangedAir(Host& host);

/// Asks for everything that the page shows. What is refused is noted as missing, and the rest goes on.
ReportFacts TakePicture(Host& host, const PictureOptions& options);

/// What the automatic methods would do now. Nothing is asked of the service: their requests are withheld.
std::vector<ChoiceFacts> RehearseChoices(Host& host);

/// Follows the signal, a sample a second, until the time is over or Ctrl-C is pressed.
HistoryFacts FollowSignal(Host& host, const PictureOptions& options);

} // namespace calvix::host
