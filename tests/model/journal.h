#pragma once

#include "model/outcome.h"
#include "model/world.h"
#include "support/forwarding_platform.h"
#include "wrappers/intercepted_wlan_service.h"

namespace calvix::test
{

/// Writes down how the library calls the service, and answers as the world says: requests and moves are judged here and
/// never reach the computer, so that it stays the same for every method.
class JournalService final : public wrappers::InterceptedWlanService
{
public:
    JournalService(platform::WlanService& inner, wrappers::InterceptionPoint& point, const World& world)
        : InterceptedWlanService(inner, point), m_service(inner), m_world(world)
    {
    }

    /// Begins a new page.
    void Clear();
    const std::vector<Event>& Events() const { return m_events; }

    DWORD WlanOpenHandle(DWORD clientVersion, PVOID reserved, DWORD* negotiatedVersion, HANDLE* client) override;
    DWORD WlanEnumInterfaces(HANDLE client, PVOID reserved, WLAN_INTERFACE_INFO_LIST** list) override;
    DWORD WlanGetAvailableNetworkList(HANDLE client,
                                      const GUID* interfaceGuid,
                                      DWORD flags,
                                      PVOID reserved,
                                      WLAN_AVAILABLE_NETWORK_LIST** list) override;
    DWORD WlanGetNetworkBssList(HANDLE client,
                                const GUID* interfaceGuid,
                                const DOT11_SSID* ssid,
                                DOT11_BSS_TYPE bssType,
                                BOOL securityEnabled,
                                PVOID reserved,
                                WLAN_BSS_LIST** list) override;
    DWORD WlanQueryInterface(HANDLE client,
                             const GUID* interfaceGuid,
                             WLAN_INTF_OPCODE opcode,
                             PVOID reserved,
                             DWORD* dataSize,
                             PVOID* data,
                             WLAN_OPCODE_VALUE_TYPE* valueType) override;
    DWORD WlanGetProfileList(HANDLE client,
                             const GUID* interfaceGuid,
                             PVOID reserved,
                             WLAN_PROFILE_INFO_LIST** list) override;
    DWORD WlanGetProfile(HANDLE client,
                         const GUID* interfaceGuid,
                         const wchar_t* name,
                         PVOID reserved,
                         wchar_t** xml,
                         DWORD* flags,
                         DWORD* grantedAccess) override;
    DWORD WlanSetProfilePosition(
        HANDLE client, const GUID* interfaceGuid, const wchar_t* name, DWORD position, PVOID reserved) override;
    DWORD WlanConnect(HANDLE client,
                      const GUID* interfaceGuid,
                      const WLAN_CONNECTION_PARAMETERS* parameters,
                      PVOID reserved) override;

private:
    Event& Note(std::string_view operation, HANDLE client, const GUID* interfaceGuid, PVOID reserved);

    platform::WlanService& m_service;
    const World& m_world;
    std::vector<Event> m_events;
    unsigned m_requests = 0;
};

/// Takes or refuses MB_PRECOMPOSED with UTF-8, as the world says.
class WorldText final : public platform::Text
{
public:
    WorldText(platform::Text& inner, const World& world) : m_inner(inner), m_world(world) {}

    int MultiByteToWideChar(UINT codePage,
                            DWORD flags,
                            const char* source,
                            int sourceLength,
                            wchar_t* destination,
                            int destinationLength) override;
    int WideCharToMultiByte(UINT codePage,
                            DWORD flags,
                            const wchar_t* source,
                            int sourceLength,
                            char* destination,
                            int destinationLength,
                            const char* defaultCharacter,
                            BOOL* usedDefaultCharacter) override
    {
        return m_inner.WideCharToMultiByte(codePage, flags, source, sourceLength, destination, destinationLength,
                                           defaultCharacter, usedDefaultCharacter);
    }
    int StringFromGUID2(const GUID& guid, wchar_t* text, int capacity) override
    {
        return m_inner.StringFromGUID2(guid, text, capacity);
    }

private:
    platform::Text& m_inner;
    const World& m_world;
};

class JournalPlatform final : public ForwardingPlatform
{
public:
    explicit JournalPlatform(const World& world)
        : m_point(m_nobody), m_service(inner().wlan(), m_point, world), m_text(inner().text(), world)
    {
    }

    platform::WlanService& wlan() override { return m_service; }
    platform::Text& text() override { return m_text; }
    JournalService& journal() { return m_service; }

private:
    wrappers::Interceptor m_nobody;
    wrappers::InterceptionPoint m_point;
    JournalService m_service;
    WorldText m_text;
};

} // namespace calvix::test
