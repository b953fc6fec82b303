#pragma once

#include "host/host.h"
#include "host/service_view.h"
#include "report/report_facts.h"

namespace calvix::host
{

struct PictureOptions
{
    unsigned seconds = 0;   ///< to follow the signal before the picture is taken
    unsigned roamEvery = 0; ///< seconds between two calls of Roaming meanwhile, 0: none
};

/// An access point as the picture has it, without a number.
AirAccessPoint DescribeHeard(const HeardAccessPoint& heard);

/// The access points in view, in the service's order, not numbered yet.
std::vector<AirAccessPoint> ListAir(Host& host);

/// The same numbered, the strongest first, with the one that the adapter is connected to.
std::vector<AirAccessPoint> ArrangedAir(Host& host);

/// What every picture goes through when its access points in view are listed and its connection and history are known:
/// marks the one in use, adds those that were heard only before, numbers them all, and sets the time.
void ArrangePicture(ReportFacts& report);

/// Asks for everything that the page shows. What is refused is noted as missing, and the rest goes on.
ReportFacts TakePicture(Host& host, const PictureOptions& options);

/// What the automatic methods would do now. Nothing is asked of the service: their requests are withheld.
std::vector<ChoiceFacts> RehearseChoices(Host& host);

/// What has become of the link since `before`.
void NoteEvent(HistoryFacts& history, const SignalFacts& before, const SignalSample& now);
/// Keeps the access point among those heard, as it was heard last.
void NoteHeard(std::vector<AirAccessPoint>& heard, const AirAccessPoint& point);

/// Follows the signal, a sample a second, until the time is over or Ctrl-C is pressed.
HistoryFacts FollowSignal(Host& host, const PictureOptions& options);

} // namespace calvix::host
