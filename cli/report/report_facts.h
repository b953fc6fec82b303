#pragma once

#include "output/facts.h"
#include "output/failure.h"
#include "report/beacon.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace calvix::host
{

/// An access point in the picture.
struct AirAccessPoint
{
    unsigned number = 0; ///< from 1, the strongest first
    AccessPointFacts facts;
    BeaconFacts beacon;
    std::uint64_t hostTime = 0;      ///< when it was heard, by the service's clock
    bool inUse = false;              ///< the adapter is connected to it
    bool inView = true;              ///< otherwise it was heard only before the picture was taken
    std::optional<unsigned> network; ///< which of the networks, from 0, the strongest first; none: hidden
};

/// What one of the automatic methods would do now.
struct ChoiceFacts
{
    std::string method;
    std::string command;            ///< that calls it
    std::string rule;               ///< how it decides, a sentence
    std::string now;                ///< what it would do now, a sentence
    std::vector<std::string> asked; ///< what would be asked for, in order: profiles, or an access point
};

/// The link and the air at a moment.
struct SignalSample
{
    unsigned second = 0;
    SignalFacts link;
    std::vector<std::pair<std::string, long>> air; ///< BSSID and dBm of every access point in view
};

struct LinkEvent
{
    unsigned second = 0;
    std::string from; ///< BSSID; empty: there was no connection
    std::string to;   ///< BSSID; empty: the connection was lost
    std::string ssidHex;
};

struct HistoryFacts
{
    std::vector<SignalSample> samples; ///< one a second; none: no time was asked for
    std::vector<LinkEvent> events;
    std::vector<AirAccessPoint> heard; ///< every access point that was, as it was heard last
};

/// A part of the picture that could not be taken.
struct MissingPart
{
    std::string part;
    FailureReport failure;
};

/// Everything that the page shows.
struct ReportFacts
{
    std::string title;
    std::string heardAt; ///< when the last access point was heard, by the computer's clock; empty: unknown
    std::vector<AdapterFacts> adapters;
    std::optional<StatusFacts> status;
    bool airKnown = false;                    ///< whether the access points could be listed
    std::vector<AirAccessPoint> accessPoints; ///< the strongest first
    std::vector<ProfileFacts> profiles;
    std::vector<CandidateFacts> candidates; ///< of ConnectBestAP
    std::vector<ChoiceFacts> choices;
    HistoryFacts history;
    std::vector<MissingPart> missing;
};

} // namespace calvix::host
