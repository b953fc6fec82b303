#pragma once

#include "direct/hand_written.h"
#include "simulation/computer.h"

#include <calvix/wireless_manage.h>

#include <memory>
#include <string>
#include <vector>

namespace calvix::benchmarks
{

/// What a call writes, as far as it can be compared byte by byte.
struct PlainOutputs
{
    char text[2048];
    wchar_t wide[2048];
    unsigned char bytes[64];
    unsigned long number;
    unsigned long other;
    int integer;
    int otherInteger;
    unsigned int software;
    unsigned int hardware;
    GUID guid;
    WLAN_CONNECTION_ATTRIBUTES connection;
    _WIFI_TXRX_COUNT frames;
};

/// Everything that a call writes.
struct Outputs
{
    PlainOutputs plain{};
    std::vector<WLAN_INTERFACE_INFO> adapters;
    std::vector<WLAN_BSS_ENTRY> entries;
    std::vector<std::wstring> names;
    std::vector<std::string> softAccessPoints;
    const char* returned = nullptr; ///< text inside the side's object
};

/// The arguments of the calls, and the place for what they write.
struct Scene
{
    CWirelessManage* calvix = nullptr;
    HandWritten* direct = nullptr;
    simulation::Computer* computer = nullptr; ///< null where the service is the list service

    GUID guid{};
    wchar_t profile[WLAN_MAX_NAME_LENGTH] = {};
    char narrowProfile[128] = {};
    DOT11_SSID ssid{};
    std::wstring xml;
    WLAN_CONNECTION_ATTRIBUTES connection{};
    WLAN_CONNECTION_NOTIFICATION_DATA notification{};
    std::vector<WLAN_BSS_ENTRY> excluded;
    unsigned char request[4] = {1, 2, 3, 4}; ///< which the driver answers with itself
    char command[64] = "tool.exe";
    unsigned long processId = 1;
    alignas(16) unsigned char anotherObject[8192] = {};
    Outputs out;
};

/// Makes the scene's platform the current one and starts both sides anew: no object but a fresh one, no client handle but
/// an open one. Ends the other way round.
class Staging
{
public:
    Staging(Scene& scene, platform::Platform& platform);
    Staging(const Staging&) = delete;
    Staging& operator=(const Staging&) = delete;
    ~Staging();

private:
    platform::Platform* m_previous;
};

/// Both sides' objects anew, their client handles open.
void StartAnew(Scene& scene);

/// The scene on a platform of ten profiles and twenty visible networks, three of which have a profile.
class Household
{
public:
    enum class Service
    {
        list,
        computer
    };

    explicit Household(Service service);
    ~Household();

    Scene& scene() { return m_scene; }

private:
    std::unique_ptr<platform::Platform> m_platform;
    Scene m_scene;
    std::unique_ptr<Staging> m_staging;
};

} // namespace calvix::benchmarks
