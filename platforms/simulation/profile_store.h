#pragma once

#include "simulation/profile_document.h"

#include <calvix/platform_records.h>

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
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

/// Reads a profile as a program hands it in, its key protected or not. Nothing is returned, and `refusal` says why, when
/// it cannot be used.
std::optional<Profile> ReadProfile(const wchar_t* xml, DWORD flags, ProfileRefusal& refusal);

/// The same profile under another name.
Profile WithName(const Profile& profile, const std::wstring& name);

/// One adapter's profiles, in preference order. Operations answer with the service's error numbers.
class ProfileStore
{
public:
    using List = std::vector<std::shared_ptr<const Profile>>;

    const List& InOrder() const { return m_order; }

    /// The profile of exactly this name, or null.
    std::shared_ptr<const Profile> Find(const std::wstring& name) const;

    /// Adds a profile after all others; false if the name is taken.
    bool Append(Profile profile);

    /// Stores a profile: a new one before all others that no group policy set, a known one in its place.
    /// ERROR_ALREADY_EXISTS for a known one unless `overwrite`.
    DWORD Store(Profile profile, bool overwrite);

    /// ERROR_NOT_FOUND for an unknown name.
    DWORD Delete(const std::wstring& name);

    /// Moves a profile; 0 is the first position. ERROR_NOT_FOUND for an unknown name and for a position out of range.
    DWORD Move(const std::wstring& name, DWORD position);

    /// Puts all profiles in the order of `names`. ERROR_INVALID_PARAMETER unless it has each name once, and those of group
    /// policies where they are now (chosen); ERROR_NOT_FOUND for an unknown name.
    DWORD Arrange(const std::vector<std::wstring>& names);

    /// ERROR_NOT_FOUND for an unknown name, ERROR_ALREADY_EXISTS for a new one that is taken (chosen).
    DWORD Rename(const std::wstring& name, const std::wstring& newName);

    /// What programs keep with a profile: bytes that only they understand, none by default. They go with the profile.
    Bytes CustomData(const std::wstring& name) const;
    void SetCustomData(const std::wstring& name, Bytes data) { m_customData[name] = std::move(data); }

private:
    List::iterator FindInOrder(const std::wstring& name);

    List m_order;
    std::unordered_map<std::wstring, std::shared_ptr<const Profile>> m_byName;
    std::unordered_map<std::wstring, Bytes> m_customData;
};

} // namespace calvix::simulation
