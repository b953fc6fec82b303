#pragma once

#include "simulation/scenario.h"

#include <calvix/platform_records.h>

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace calvix::test
{

/// A made-up computer, how its service behaves while a method runs, and what the caller asks for.
struct Situation
{
    std::uint64_t seed = 0;
    simulation::Scenario scenario; ///< adapter number 0 is first in the service's list

    // The service and the platform.
    bool clientIsOpen = true;
    bool convertsUtf8 = true; ///< whether it takes MB_PRECOMPOSED with UTF-8, which the operating system refuses
    std::map<std::string_view, DWORD> failures; ///< by operation
    std::set<std::string> failingSsids;         ///< whose BSS lists cannot be had
    std::set<std::string> silentSsids;          ///< whose BSS lists are empty
    std::set<std::wstring> unreadableProfiles;  ///< by name
    std::set<std::wstring> untaggedProfiles;    ///< that the available networks do not name yet
    unsigned refusals = 0;                      ///< connection requests that are refused first

    // The caller.
    int asked = 0; ///< number of the adapter whose GUID the caller passes
    std::vector<std::string> excludedSsids;
    std::wstring name;
    int mode = 0;
    std::wstring rememberedProfile;
    std::string rememberedSsid;
    unsigned rememberedBssType = 1;
    bool rememberedSecured = true;

    DWORD FailureOf(std::string_view operation) const
    {
        const auto found = failures.find(operation);
        return found == failures.end() ? 0 : found->second;
    }
    /// What a connection request is answered with, counted from 1. Requests by no profile are always refused.
    DWORD AnswerToRequest(unsigned number, bool namesProfile) const
    {
        return number <= refusals || !namesProfile ? 1000 + number : 0;
    }
};

Situation MakeSituation(std::uint64_t seed);

/// The situation as a scenario file, and the rest of it as text.
std::string Describe(const Situation& situation);

/// GUID of the adapter with a number.
const GUID& AdapterGuid(int number);
/// Number of the adapter with a GUID, -1: none of the situation's.
int AdapterNumber(const GUID& guid);

/// Wide text for people: other than ASCII characters as numbers.
std::string Readable(std::wstring_view text);
std::string Readable(std::string_view bytes);

} // namespace calvix::test
