#include "forms/utf8.h"
#include "simulation/service_records.h"
#include "simulation/wlan_service.h"

#include <cwchar>
#include <string>

namespace calvix::simulation
{

namespace
{

constexpr DWORD knownProfileFlags = WLAN_PROFILE_GROUP_POLICY | WLAN_PROFILE_USER;

wchar_t* NewText(Blocks& blocks, const std::wstring& text)
{
    const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
    auto* const copy = static_cast<wchar_t*>(blocks.Allocate(size, "profile text"));
    std::wmemcpy(copy, text.c_str(), text.size() + 1);
    return copy;
}

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

} // namespace

DWORD SimulatedWlanService::WlanGetProfileList(HANDLE client,
                                               const GUID* interfaceGuid,
                                               PVOID reserved,
                                               WLAN_PROFILE_INFO_LIST** list)
{
    const std::lock_guard lock(m_machine.mutex);
    if (const DWORD error = Check("WlanGetProfileList", client, {interfaceGuid, list}, reserved))
        return error;
    const Adapter* const adapter = m_machine.FindAdapter(*interfaceGuid);
    if (adapter == nullptr)
        return ERROR_INVALID_PARAMETER;
    const auto& profiles = adapter->Profiles().InOrder();
    const std::size_t size =
        offsetof(WLAN_PROFILE_INFO_LIST, ProfileInfo) + profiles.size() * sizeof(WLAN_PROFILE_INFO);
    *list = NewRecord<WLAN_PROFILE_INFO_LIST>(m_machine.wlanBlocks, size, "profile list");
    (*list)->dwNumberOfItems = static_cast<DWORD>(profiles.size());
    WLAN_PROFILE_INFO* entry = (*list)->ProfileInfo;
    for (const auto& profile : profiles)
    {
        CopyText(profile->document.name, entry->strProfileName);
        entry->dwFlags = profile->flags;
        ++entry;
    }
    return ERROR_SUCCESS;
}

// Chosen: the flag for the plain key stays set on return where the key is handed out in plain text, which this
// service does for everybody who asks; and everybody is granted all access.
DWORD SimulatedWlanService::WlanGetProfile(HANDLE client,
                                           const GUID* interfaceGuid,
                                           const wchar_t* name,
                                           PVOID reserved,
                                           wchar_t** xml,
                                           DWORD* flags,
                                           DWORD* grantedAccess)
{
    const std::lock_guard lock(m_machine.mutex);
    if (const DWORD error = Check("WlanGetProfile", client, {interfaceGuid, name, xml}, reserved))
        return error;
    const Adapter* const adapter = m_machine.FindAdapter(*interfaceGuid);
    if (adapter == nullptr)
        return ERROR_INVALID_PARAMETER;
    const auto profile = adapter->Profiles().Find(name);
    if (profile == nullptr)
        return ERROR_NOT_FOUND;
    const DWORD plainKey = flags != nullptr ? *flags & WLAN_PROFILE_GET_PLAINTEXT_KEY : 0;
    *xml = NewText(m_machine.wlanBlocks, plainKey != 0 ? profile->xml : WithProtectedKey(profile->xml));
    if (flags != nullptr)
        *flags = profile->flags | plainKey;
    if (grantedAccess != nullptr)
        *grantedAccess = WLAN_WRITE_ACCESS;
    return ERROR_SUCCESS;
}

// The security descriptor for profiles of all users is taken and not looked at: every caller has every right.
DWORD SimulatedWlanService::WlanSetProfile(HANDLE client,
                                           const GUID* interfaceGuid,
                                           DWORD flags,
                                           const wchar_t* xml,
                                           const wchar_t*,
                                           BOOL overwrite,
                                           PVOID reserved,
                                           DWORD* reasonCode)
{
    const std::lock_guard lock(m_machine.mutex);
    if (const DWORD error = Check("WlanSetProfile", client, {interfaceGuid, xml, reasonCode}, reserved))
        return error;
    Adapter* const adapter = m_machine.FindAdapter(*interfaceGuid);
    if (adapter == nullptr || (flags & ~knownProfileFlags) != 0)
        return ERROR_INVALID_PARAMETER;
    ProfileRefusal refusal{};
    auto profile = ReadProfile(xml, flags, refusal);
    if (!profile)
    {
        *reasonCode = refusal.reason;
        return refusal.error;
    }
    *reasonCode = WLAN_REASON_CODE_SUCCESS;
    return adapter->StoreProfile(std::move(*profile), overwrite != FALSE);
}

DWORD SimulatedWlanService::WlanDeleteProfile(HANDLE client,
                                              const GUID* interfaceGuid,
                                              const wchar_t* name,
                                              PVOID reserved)
{
    const std::lock_guard lock(m_machine.mutex);
    if (const DWORD error = Check("WlanDeleteProfile", client, {interfaceGuid, name}, reserved))
        return error;
    Adapter* const adapter = m_machine.FindAdapter(*interfaceGuid);
    return adapter != nullptr ? adapter->DeleteProfile(name) : ERROR_INVALID_PARAMETER;
}

DWORD SimulatedWlanService::WlanSetProfilePosition(
    HANDLE client, const GUID* interfaceGuid, const wchar_t* name, DWORD position, PVOID reserved)
{
    const std::lock_guard lock(m_machine.mutex);
    if (const DWORD error = Check("WlanSetProfilePosition", client, {interfaceGuid, name}, reserved))
        return error;
    Adapter* const adapter = m_machine.FindAdapter(*interfaceGuid);
    return adapter != nullptr ? adapter->MoveProfile(name, position) : ERROR_INVALID_PARAMETER;
}

} // namespace calvix::simulation
