#include "simulation/service_records.h"
#include "simulation/wlan_service.h"

#include <algorithm>
#include <string>

namespace calvix::simulation
{

namespace
{

constexpr DWORD knownProfileFlags = WLAN_PROFILE_GROUP_POLICY | WLAN_PROFILE_USER;
constexpr DWORD knownSaveFlags =
    WLAN_PROFILE_USER | WLAN_PROFILE_CONNECTION_MODE_SET_BY_CLIENT | WLAN_PROFILE_CONNECTION_MODE_AUTO;

} // namespace

DWORD SimulatedWlanService::WlanGetProfileList(HANDLE client,
                                               const GUID* interfaceGuid,
                                               PVOID reserved,
                                               WLAN_PROFILE_INFO_LIST** list)
{
    const Request request(m_machine, "WlanGetProfileList", client, interfaceGuid, {list}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    const auto& profiles = request.adapter->Profiles().InOrder();
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
    const Request request(m_machine, "WlanGetProfile", client, interfaceGuid, {name, xml}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    const auto profile = request.adapter->Profiles().Find(name);
    if (profile == nullptr)
        return ERROR_NOT_FOUND;
    const DWORD plainKey = flags != nullptr ? *flags & WLAN_PROFILE_GET_PLAINTEXT_KEY : 0;
    *xml = NewText(m_machine.wlanBlocks, plainKey != 0 ? profile->xml : WithProtectedKey(profile->xml), "profile text");
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
    const Request request(m_machine, "WlanSetProfile", client, interfaceGuid, {xml, reasonCode}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    if ((flags & ~knownProfileFlags) != 0)
        return ERROR_INVALID_PARAMETER;
    ProfileRefusal refusal{};
    auto profile = ReadProfile(xml, flags, refusal);
    if (!profile)
    {
        *reasonCode = refusal.reason;
        return refusal.error;
    }
    *reasonCode = WLAN_REASON_CODE_SUCCESS;
    return request.adapter->StoreProfile(std::move(*profile), overwrite != FALSE);
}

DWORD SimulatedWlanService::WlanDeleteProfile(HANDLE client,
                                              const GUID* interfaceGuid,
                                              const wchar_t* name,
                                              PVOID reserved)
{
    const Request request(m_machine, "WlanDeleteProfile", client, interfaceGuid, {name}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    return request.adapter->DeleteProfile(name);
}

DWORD SimulatedWlanService::WlanSetProfilePosition(
    HANDLE client, const GUID* interfaceGuid, const wchar_t* name, DWORD position, PVOID reserved)
{
    const Request request(m_machine, "WlanSetProfilePosition", client, interfaceGuid, {name}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    return request.adapter->MoveProfile(name, position);
}

DWORD SimulatedWlanService::WlanSetProfileList(
    HANDLE client, const GUID* interfaceGuid, DWORD count, const wchar_t** names, PVOID reserved)
{
    const Request request(m_machine, "WlanSetProfileList", client, interfaceGuid, {names}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    const bool isAnyMissing = std::find(names, names + count, nullptr) != names + count;
    if (count == 0 || isAnyMissing)
        return ERROR_INVALID_PARAMETER;
    return request.adapter->ArrangeProfiles({names, names + count});
}

DWORD SimulatedWlanService::WlanRenameProfile(
    HANDLE client, const GUID* interfaceGuid, const wchar_t* name, const wchar_t* newName, PVOID reserved)
{
    const Request request(m_machine, "WlanRenameProfile", client, interfaceGuid, {name, newName}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    if (!IsProfileName(newName))
        return ERROR_INVALID_PARAMETER;
    return request.adapter->RenameProfile(name, newName);
}

// The security descriptor is not looked at, as in WlanSetProfile.
DWORD SimulatedWlanService::WlanSaveTemporaryProfile(HANDLE client,
                                                     const GUID* interfaceGuid,
                                                     const wchar_t* name,
                                                     const wchar_t*,
                                                     DWORD flags,
                                                     BOOL overwrite,
                                                     PVOID reserved)
{
    const Request request(m_machine, "WlanSaveTemporaryProfile", client, interfaceGuid, {}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    const bool needsName = (flags & WLAN_PROFILE_CONNECTION_MODE_AUTO) != 0;
    const bool isName = name != nullptr ? IsProfileName(name) : !needsName;
    if (!isName || (flags & ~knownSaveFlags) != 0)
        return ERROR_INVALID_PARAMETER;
    return request.adapter->SaveTemporaryProfile(name, flags & WLAN_PROFILE_USER, overwrite != FALSE);
}

DWORD SimulatedWlanService::WlanGetProfileCustomUserData(
    HANDLE client, const GUID* interfaceGuid, const wchar_t* name, PVOID reserved, DWORD* dataSize, BYTE** data)
{
    const Request request(m_machine, "WlanGetProfileCustomUserData", client, interfaceGuid, {name, dataSize, data},
                          reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    if (request.adapter->Profiles().Find(name) == nullptr)
        return ERROR_NOT_FOUND; // chosen
    const Bytes kept = request.adapter->Profiles().CustomData(name);
    if (kept.empty())
        return ERROR_FILE_NOT_FOUND;
    *data = NewRecord<BYTE>(m_machine.wlanBlocks, kept.size(), "custom data of a profile");
    std::copy(kept.begin(), kept.end(), *data);
    *dataSize = static_cast<DWORD>(kept.size());
    return ERROR_SUCCESS;
}

// Chosen: no bytes take away what was there.
DWORD SimulatedWlanService::WlanSetProfileCustomUserData(
    HANDLE client, const GUID* interfaceGuid, const wchar_t* name, DWORD dataSize, const BYTE* data, PVOID reserved)
{
    const Request request(m_machine, "WlanSetProfileCustomUserData", client, interfaceGuid, {name}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    if ((data == nullptr) != (dataSize == 0))
        return ERROR_INVALID_PARAMETER;
    if (request.adapter->Profiles().Find(name) == nullptr)
        return ERROR_NOT_FOUND; // chosen
    request.adapter->SetCustomData(name, data != nullptr ? Bytes(data, data + dataSize) : Bytes());
    return ERROR_SUCCESS;
}

} // namespace calvix::simulation
