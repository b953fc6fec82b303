#pragma once

#include "output/facts.h"
#include "output/failure.h"

#include <ostream>
#include <string>

namespace calvix::host
{

/// One JSON object per command, followed by a line break. The member names are a contract with other programs: members
/// may be added, none is renamed or removed.

void PrintJson(std::ostream& out, const std::vector<AdapterFacts>& adapters);
void PrintJson(std::ostream& out, const std::vector<NetworkFacts>& networks);
void PrintJson(std::ostream& out, const std::vector<AccessPointFacts>& accessPoints);
void PrintJson(std::ostream& out, const std::vector<ProfileFacts>& profiles);
void PrintJson(std::ostream& out, const ScanFacts& scan);
void PrintJson(std::ostream& out, const StatusFacts& status);
void PrintJson(std::ostream& out, const MatchFacts& match);
void PrintJson(std::ostream& out, const BestFacts& best);
void PrintJson(std::ostream& out, const RadioFacts& radio);
void PrintJson(std::ostream& out, const SettingsFacts& settings);
void PrintJson(std::ostream& out, const PowerFacts& power);
void PrintJson(std::ostream& out, const SoftApFacts& softAps);
/// A decision and what it led to.
void PrintJson(std::ostream& out, const RoamFacts& roam, const StatusFacts& status);
void PrintJson(std::ostream& out, const ImportFacts& import);

/// What happened at a moment, in one line; the moment in milliseconds since the beginning.
void PrintLiveJson(std::ostream& out, unsigned long long milliseconds, const SignalFacts& signal);
void PrintLiveJson(std::ostream& out, unsigned long long milliseconds, const NoticeFacts& notice);
void PrintLiveJson(std::ostream& out, unsigned long long milliseconds, const RoamFacts& roam);
/// The link has moved to another access point.
void PrintMoveJson(std::ostream& out, unsigned long long milliseconds, const std::string& from, const std::string& to);

/// A driver's request and answer, in hexadecimal.
void PrintIhvJson(std::ostream& out, const std::string& request, const std::string& answer);
/// A listing of the library's, line by line.
void PrintListingJson(std::ostream& out, const std::string& text);
/// One profile's document.
void PrintProfileJson(std::ostream& out, const std::string& name, const std::string& xml);
/// A change to the profile store: what was done ("added", "deleted", "moved") to which profile.
void PrintChangeJson(std::ostream& out, const std::string& change, const std::string& profile);

/// A privilege that was enabled.
void PrintPrivilegeJson(std::ostream& out, const std::string& name);
/// What was started and has ended: a command line, or a program's path.
void PrintRunJson(std::ostream& out, const std::string& what);
/// The processes that were ended.
void PrintEndedJson(std::ostream& out, const std::vector<unsigned long>& processes);
/// The internet can be reached.
void PrintOnlineJson(std::ostream& out);

/// A text of the program's own under a name.
void PrintTextJson(std::ostream& out, const char* name, const std::string& text);

/// {"error": {...}}, in the place of a result; with "candidates" where some were asked for in vain.
void PrintJson(std::ostream& out, const FailureReport& failure);

} // namespace calvix::host
