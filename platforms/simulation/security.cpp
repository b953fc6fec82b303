#include "simulation/facility.h"

#include "platform/records/error_numbers.h"
#include "simulation/privileges.h"

#include <cstddef>
#include <map>
#include <optional>

namespace calvix::simulation
{

namespace
{

constexpr DWORD kNoSuchSystem = 1722;

std::size_t SizeOfPrivileges(std::size_t count)
{
    return offsetof(TOKEN_PRIVILEGES, Privileges) + count * sizeof(LUID_AND_ATTRIBUTES);
}

/// The token of the programs that use the computer, and its privileges. All handles to it are handles to the same token.
class SimulatedSecurity final : public Facility
{
public:
    using Facility::Facility;

    BOOL OpenProcessToken(HANDLE process, DWORD access, HANDLE* token)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (!m_machine.present.tokens)
            return Fail(ERROR_CALL_NOT_IMPLEMENTED);
        if (token == nullptr)
            return Fail(ERROR_INVALID_PARAMETER);
        if (process != kOwnProcess)
        {
            if (!m_machine.handles.Use(process, HandleKind::process, "OpenProcessToken"))
                return Fail(ERROR_INVALID_HANDLE);
            // Chosen: no other process's token is to be had.
            return Fail(ERROR_ACCESS_DENIED);
        }
        std::erase_if(m_rights,
                      [this](const auto& each) { return !m_machine.handles.IsOpen(each.first, HandleKind::token); });
        *token = m_machine.handles.Open(HandleKind::token);
        m_rights[*token] = access;
        return TRUE;
    }

    BOOL LookupPrivilegeValueA(const char* system, const char* name, LUID* luid)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (!m_machine.present.tokens)
            return Fail(ERROR_CALL_NOT_IMPLEMENTED);
        if (name == nullptr || luid == nullptr)
            return Fail(ERROR_INVALID_PARAMETER);
        if (system != nullptr && *system != '\0')
            return Fail(kNoSuchSystem);
        const std::optional<LUID> known = PrivilegeLuid(name);
        if (!known)
            return Fail(ERROR_NO_SUCH_PRIVILEGE);
        *luid = *known;
        return TRUE;
    }

    BOOL AdjustTokenPrivileges(HANDLE token,
                               BOOL disableAll,
                               TOKEN_PRIVILEGES* newState,
                               DWORD previousSize,
                               TOKEN_PRIVILEGES* previous,
                               DWORD* returnLength)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (const DWORD error = TokenError(token, previous != nullptr); error != ERROR_SUCCESS)
            return Fail(error);
        if ((!disableAll && newState == nullptr) || (previous != nullptr && returnLength == nullptr))
            return Fail(ERROR_INVALID_PARAMETER);
        const Change change = PlanChange(disableAll ? nullptr : newState);
        const std::size_t needed = SizeOfPrivileges(change.enabled.size());
        if (previous != nullptr)
        {
            *returnLength = static_cast<DWORD>(needed);
            if (previousSize < needed)
                return Fail(ERROR_INSUFFICIENT_BUFFER);
            WritePrevious(change, *previous);
        }
        for (const auto& [index, enabled] : change.enabled)
            m_machine.present.privileges[index].enabled = enabled;
        m_machine.lastError = change.allHeld ? ERROR_SUCCESS : ERROR_NOT_ALL_ASSIGNED;
        return TRUE;
    }

private:
    /// What becomes of the privileges: their switches as they are to stand, and whether one was named that is not held.
    struct Change
    {
        std::map<std::size_t, bool> enabled; ///< by position, only those that change
        bool allHeld = true;
    };

    DWORD TokenError(HANDLE token, bool wantsPrevious)
    {
        if (!m_machine.present.tokens)
            return ERROR_CALL_NOT_IMPLEMENTED;
        if (!m_machine.handles.Use(token, HandleKind::token, "AdjustTokenPrivileges"))
            return ERROR_INVALID_HANDLE;
        const DWORD needed = TOKEN_ADJUST_PRIVILEGES | (wantsPrevious ? TOKEN_QUERY : 0);
        return (m_rights[token] & needed) == needed ? ERROR_SUCCESS : ERROR_ACCESS_DENIED;
    }

    Change PlanChange(const TOKEN_PRIVILEGES* newState) const
    {
        Change change;
        const std::vector<Privilege>& held = m_machine.present.privileges;
        if (newState == nullptr)
            for (std::size_t index = 0; index < held.size(); ++index)
                change.enabled[index] = false;
        for (DWORD entry = 0; newState != nullptr && entry < newState->PrivilegeCount; ++entry)
        {
            const LUID_AND_ATTRIBUTES& wanted = newState->Privileges[entry];
            const std::string name = PrivilegeName(wanted.Luid);
            std::size_t index = 0;
            while (index < held.size() && held[index].name != name)
                ++index;
            if (index < held.size())
                change.enabled[index] = (wanted.Attributes & SE_PRIVILEGE_ENABLED) != 0;
            else
                change.allHeld = false;
        }
        std::erase_if(change.enabled, [&held](const auto& each) { return held[each.first].enabled == each.second; });
        return change;
    }

    void WritePrevious(const Change& change, TOKEN_PRIVILEGES& previous) const
    {
        LUID_AND_ATTRIBUTES* entry = previous.Privileges;
        for (const auto& [index, enabled] : change.enabled)
        {
            entry->Luid = *PrivilegeLuid(m_machine.present.privileges[index].name);
            entry->Attributes = enabled ? 0 : SE_PRIVILEGE_ENABLED;
            ++entry;
        }
        previous.PrivilegeCount = static_cast<DWORD>(change.enabled.size());
    }

    std::map<HANDLE, DWORD> m_rights; ///< by token handle, which never comes again
};

} // namespace

platform::Security MakeSecurity(Machine& machine, Parts& parts)
{
    auto& security = AddPart<SimulatedSecurity>(machine, parts);
    return {
        .OpenProcessToken = CallsTo<&SimulatedSecurity::OpenProcessToken>(security),
        .LookupPrivilegeValueA = CallsTo<&SimulatedSecurity::LookupPrivilegeValueA>(security),
        .AdjustTokenPrivileges = CallsTo<&SimulatedSecurity::AdjustTokenPrivileges>(security),
    };
}

} // namespace calvix::simulation
