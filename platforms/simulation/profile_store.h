#pragma once

#include "simulation/profile_document.h"

#include <calvix/platform_records.h>

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace calvix::simulation
{

/// A profile as the service keeps it, its key in plain text.
struct Profile
{
    std::wstring xml;
    ProfileDocument document;
    DWORD flags = 0; ///< WLAN_PROFILE_GROUP_POLICY, WLAN_PROFILE_USER; 0: for all users
};

/// One adapter's profiles, in preference order. Operations answer with the service's error numbers.
class ProfileStore
{
public:
    using List = std::vector<std::shared_ptr<const Profile>>;

    const List& InOrder() const { return m_order; }

    /// The profile of exactly this name, or null.
    std::shared_ptr<const Profile> Find(const std::wstring& name) const;

    /// Adds a profile behind all others; false if the name is taken.
    bool Append(Profile profile);

    /// Stores a profile: a new one before all others that no group policy set, a known one in its place.
    /// ERROR_ALREADY_EXISTS for a known one unless `overwrite`.
    DWORD Store(Profile profile, bool overwrite);

    /// ERROR_NOT_FOUND for an unknown name.
    DWORD Delete(const std::wstring& name);

    /// Moves a profile; 0 is the first position. ERROR_NOT_FOUND for an unknown name and for a position out of range.
    DWORD Move(const std::wstring& name, DWORD position);

private:
    List::iterator FindInOrder(const std::wstring& name);

    List m_order;
    std::unordered_map<std::wstring, std::shared_ptr<const Profile>> m_byName;
};

} // namespace calvix::simulation
