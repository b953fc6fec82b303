#include "simulation/profile_store.h"

#include "forms/utf8.h"
#include "platform/records/error_numbers.h"
#include <calvix/platform_records.h>

#include <algorithm>

namespace calvix::simulation
{

namespace
{

bool IsOfGroupPolicy(const std::shared_ptr<const Profile>& profile)
{
    return (profile->flags & WLAN_PROFILE_GROUP_POLICY) != 0;
}

} // namespace

// Text that is not valid wide text is no XML either.
std::optional<Profile> ReadProfile(const wchar_t* xml, DWORD flags, ProfileRefusal& refusal)
{
    bool isIllFormed = false;
    std::wstring text = WithPlainKey(xml);
    const std::string utf8 = forms::Utf8FromWide(text, &isIllFormed);
    auto document = ParseProfile(isIllFormed ? std::string() : utf8, refusal);
    if (!document)
        return std::nullopt;
    return Profile{std::move(text), std::move(*document), flags};
}

Profile WithName(const Profile& profile, const std::wstring& name)
{
    Profile renamed = profile;
    renamed.xml = WithName(profile.xml, name);
    renamed.document.name = name;
    return renamed;
}

std::shared_ptr<const Profile> ProfileStore::Find(const std::wstring& name) const
{
    const auto found = m_byName.find(name);
    return found == m_byName.end() ? nullptr : found->second;
}

bool ProfileStore::Append(Profile profile)
{
    auto stored = std::make_shared<const Profile>(std::move(profile));
    if (!m_byName.emplace(stored->document.name, stored).second)
        return false;
    m_order.push_back(std::move(stored));
    return true;
}

DWORD ProfileStore::Store(Profile profile, bool overwrite)
{
    auto stored = std::make_shared<const Profile>(std::move(profile));
    const auto known = FindInOrder(stored->document.name);
    if (known != m_order.end())
    {
        if (!overwrite)
            return ERROR_ALREADY_EXISTS;
        *known = stored;
    }
    else
    {
        // Profiles of a group policy stay on top.
        const auto top = std::find_if_not(m_order.begin(), m_order.end(), IsOfGroupPolicy);
        m_order.insert(IsOfGroupPolicy(stored) ? m_order.begin() : top, stored);
    }
    m_byName[stored->document.name] = stored;
    return ERROR_SUCCESS;
}

DWORD ProfileStore::Delete(const std::wstring& name)
{
    const auto known = FindInOrder(name);
    if (known == m_order.end())
        return ERROR_NOT_FOUND;
    m_order.erase(known);
    m_byName.erase(name);
    m_customData.erase(name);
    return ERROR_SUCCESS;
}

DWORD ProfileStore::Move(const std::wstring& name, DWORD position)
{
    const auto known = FindInOrder(name);
    if (known == m_order.end() || position >= m_order.size())
        return ERROR_NOT_FOUND;
    const auto target = m_order.begin() + static_cast<List::difference_type>(position);
    if (target < known)
        std::rotate(target, known, known + 1);
    else
        std::rotate(known, known + 1, target + 1);
    return ERROR_SUCCESS;
}

DWORD ProfileStore::Arrange(const std::vector<std::wstring>& names)
{
    List arranged;
    for (const std::wstring& name : names)
    {
        const auto profile = Find(name);
        if (profile == nullptr)
            return ERROR_NOT_FOUND;
        if (std::find(arranged.begin(), arranged.end(), profile) != arranged.end())
            return ERROR_INVALID_PARAMETER;
        arranged.push_back(profile);
    }
    if (arranged.size() != m_order.size())
        return ERROR_INVALID_PARAMETER;
    for (std::size_t index = 0; index < arranged.size(); ++index)
        if (IsOfGroupPolicy(m_order[index]) && arranged[index] != m_order[index])
            return ERROR_INVALID_PARAMETER;
    m_order = std::move(arranged);
    return ERROR_SUCCESS;
}

DWORD ProfileStore::Rename(const std::wstring& name, const std::wstring& newName)
{
    const auto known = FindInOrder(name);
    if (known == m_order.end())
        return ERROR_NOT_FOUND;
    if (Find(newName) != nullptr)
        return ERROR_ALREADY_EXISTS;
    *known = std::make_shared<const Profile>(WithName(**known, newName));
    m_byName.erase(name);
    m_byName[newName] = *known;
    if (auto data = m_customData.extract(name))
    {
        data.key() = newName;
        m_customData.insert(std::move(data));
    }
    return ERROR_SUCCESS;
}

Bytes ProfileStore::CustomData(const std::wstring& name) const
{
    const auto found = m_customData.find(name);
    return found == m_customData.end() ? Bytes() : found->second;
}

ProfileStore::List::iterator ProfileStore::FindInOrder(const std::wstring& name)
{
    const auto found = m_byName.find(name);
    return found == m_byName.end() ? m_order.end() : std::find(m_order.begin(), m_order.end(), found->second);
}

} // namespace calvix::simulation
