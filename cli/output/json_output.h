#pragma once

#include "output/facts.h"
#include "output/failure.h"
#include "output/json_record.h"

#include <ostream>

namespace calvix::host
{

/// The records that several commands print. The member names are a contract with other programs: members may be added,
/// none is renamed or removed.

inline const Shape kBssid{.definition = "bssid"};
inline const Shape kTextOrNull{.emptyIsNull = true};

JsonRecord Describe(const AdapterFacts& adapter);
JsonRecord Describe(const NetworkFacts& network);
JsonRecord Describe(const AccessPointFacts& accessPoint);
JsonRecord Describe(const ProfileFacts& profile);
JsonRecord Describe(const ConnectionFacts& connection);
JsonRecord Describe(const StatusFacts& status);
JsonRecord Describe(const CandidateFacts& candidate);
JsonRecord Describe(const CheckFacts& check);
JsonRecord Describe(const RoamFacts& roam);
JsonRecord Describe(const SignalFacts& signal);
JsonRecord Describe(const NoticeFacts& notice);
JsonRecord Describe(const ImportFacts& import);
JsonRecord Describe(const IdlePolicyFacts& policy);
/// {"error": {...}}, in the place of a result; with "candidates" if requests were refused, with
/// "checks" where some failed.
JsonRecord Describe(const FailureReport& failure);

/// A value under a name.
template <typename Value>
JsonRecord Under(const char* name, const Value& value, const Shape& shape = {})
{
    return JsonRecord().Add(name, value, shape);
}

/// What happened at a moment, in milliseconds since the beginning.
JsonRecord LiveRecord(unsigned long long milliseconds, const SignalFacts& signal);
JsonRecord LiveRecord(unsigned long long milliseconds, const NoticeFacts& notice);
JsonRecord LiveRecord(unsigned long long milliseconds, const RoamFacts& roam);
/// The link has moved to another access point.
JsonRecord MoveRecord(unsigned long long milliseconds, const std::string& from, const std::string& to);
/// One of each.
std::vector<JsonRecord> LiveRecords();
/// In one line that a reader can take in as soon as it is there.
void PrintLine(std::ostream& out, const JsonRecord& record);

} // namespace calvix::host
