#include "simulation/wlan_service.h"

#include <mutex>
#include <string>

namespace calvix::simulation
{

// What waits for a callback does so with nothing locked, because the callback may be inside an operation.

DWORD SimulatedWlanService::WlanRegisterNotification(HANDLE client,
                                                     DWORD source,
                                                     BOOL ignoreDuplicate,
                                                     WLAN_NOTIFICATION_CALLBACK callback,
                                                     PVOID context,
                                                     PVOID reserved,
                                                     DWORD* previousSource)
{
    Notifier::Replaced replaced;
    {
        const Request request(m_machine, "WlanRegisterNotification", client, {}, reserved);
        if (request.error != ERROR_SUCCESS)
            return request.error;
        if (source != WLAN_NOTIFICATION_SOURCE_NONE && callback == nullptr)
            return ERROR_INVALID_PARAMETER;
        replaced = m_machine.notifier.Register(client, {source, ignoreDuplicate != FALSE, callback, context});
        if (previousSource != nullptr)
            *previousSource = replaced.sources;
    }
    WaitForCallback(replaced, "WlanRegisterNotification");
    return ERROR_SUCCESS;
}

// Chosen: handles outlive a stop of the service and can be closed meanwhile.
DWORD SimulatedWlanService::WlanCloseHandle(HANDLE client, PVOID reserved)
{
    if (client == nullptr || reserved != nullptr)
        return ERROR_INVALID_PARAMETER;
    Notifier::Replaced replaced;
    {
        const std::lock_guard lock(m_machine.mutex);
        if (!m_machine.handles.Close(client, HandleKind::wlanClient, "WlanCloseHandle"))
            return ERROR_INVALID_HANDLE;
        replaced = m_machine.notifier.Register(client, {});
    }
    WaitForCallback(replaced, "WlanCloseHandle");
    return ERROR_SUCCESS;
}

// Inside a callback the real service would wait for ever. This one notes that, and does not wait.
void SimulatedWlanService::WaitForCallback(const Notifier::Replaced& replaced, const char* operation)
{
    if (!m_machine.notifier.IsServiceThread())
    {
        m_machine.notifier.WaitFor(replaced.running);
        return;
    }
    const std::lock_guard lock(m_machine.mutex);
    m_machine.defects.push_back(std::string(operation) + ": called inside a notification callback, a deadlock");
}

} // namespace calvix::simulation
