#pragma once

#include "simulation/scenario_value.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace calvix::simulation
{

/// What fields say together: refused where they contradict each other or the platform, and completed where one follows
/// from others. `place` is the record in the file, whose fields have been read.

void CompleteAccessPoint(const Value& place, const std::string& band, std::uint32_t channel, AccessPoint& point);
void CompleteProfile(const Value& place, ProfileSettings& shortForm, StoredProfile& profile);
void CompletePower(const Value& place, PowerDescription& power);
void CompletePrivilege(const Value& place, Privilege& privilege);

/// An element of an adapter's `ihv`.
struct IhvRequest
{
    Bytes request;
    std::optional<Bytes> answer;
    std::optional<std::uint32_t> error;
};
std::vector<IhvRequest> RequestsOf(const AdapterDescription& adapter);
void CompleteAdapter(const Value& place, const std::vector<IhvRequest>& requests, AdapterDescription& adapter);

std::string LowerCase(std::string text);

} // namespace calvix::simulation
