#pragma once

#include "simulation/scenario.h"
#include "simulation/security_suite.h"

#include <calvix/platform_records.h>

#include <optional>
#include <string>
#include <string_view>

namespace calvix::simulation
{

/// What the service reads out of a profile's XML.
struct ProfileDocument
{
    std::wstring name;
    Bytes ssid;
    bool hidden = false; ///< <nonBroadcast>: the network is requested by name, because its beacons do not contain it
    DOT11_BSS_TYPE bssType = dot11_BSS_type_infrastructure;
    bool automatic = true; ///< <connectionMode>
    SecuritySuite security;
    std::string key; ///< as in the document; empty if there is none or it is protected
};

/// Why a profile was refused: the error of WlanSetProfile and its reason code.
struct ProfileRefusal
{
    DWORD error;
    WLAN_REASON_CODE reason;
};

/// Reads a profile's XML (UTF-8). Namespaces and elements that the service has no use for are passed over. Nothing is
/// returned and `refusal` says why when the document is not a usable profile.
std::optional<ProfileDocument> ParseProfile(const std::string& xml, ProfileRefusal& refusal);

/// The profile with its key as the service hands it out to callers who may not see it, and back. Both leave a
/// document without such a key as it is.
std::wstring WithProtectedKey(const std::wstring& xml);
std::wstring WithPlainKey(const std::wstring& xml);

/// Whether a profile can be called so.
bool IsProfileName(std::wstring_view name);

/// The profile with another name, which is its first element.
std::wstring WithName(const std::wstring& xml, const std::wstring& name);

} // namespace calvix::simulation
