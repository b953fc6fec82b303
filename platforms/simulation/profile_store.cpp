#include "simulation/profile_store.h"

#include "platform/records/error_numbers.h"
#include "platform/records/wlan_constants.h"

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
        // Whatever a group policy set stays on top.
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

ProfileStore::List::iterator ProfileStore::FindInOrder(const std::wstring& name)
{
    const auto found = m_byName.find(name);
    return found == m_byName.end() ? m_order.end() : std::find(m_order.begin(), m_order.end(), found->second);
}

} // namespace calvix::simulation
