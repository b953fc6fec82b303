#pragma once

#include "notification_recorder.h"
#include "simulation/computer.h"

#include "platform/records/error_numbers.h"
#include <calvix/platform_records.h>

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace calvix::simulation
{

/// A computer with two adapters and the homely network HomeNet, for the tests of its WLAN service. A test changes `scenario`
/// and then starts it; everything that it takes from the service goes back when it ends, and its accounts must be clear then.
class ServiceTest : public ::testing::Test
{
protected:
    ServiceTest();
    void TearDown() override;

    /// Starts the computer and opens a client handle. One that was started before ends as at the end of a test.
    void Start();

    platform::WlanService& Wlan() { return computer->wlan(); }

    using Networks = std::vector<WLAN_AVAILABLE_NETWORK>;
    using Stations = std::vector<WLAN_BSS_ENTRY>;
    using Lines = std::vector<std::string>;

    Networks ListNetworks(DWORD flags = 0);
    Stations
    ListStations(const DOT11_SSID* ssid = nullptr, DOT11_BSS_TYPE bssType = dot11_BSS_type_any, bool secured = false);
    std::vector<std::wstring> ProfileNames();
    std::wstring ProfileXml(const wchar_t* name, DWORD flags);
    DWORD SetProfile(const std::string& xml, bool overwrite = false, DWORD flags = 0);
    DWORD Connect(const wchar_t* profile);
    /// Scans, and lets time pass: a scan takes two seconds.
    void Scan(std::chrono::milliseconds duration = std::chrono::seconds(2));
    DWORD SetSoftwareRadio(DWORD phy, DOT11_RADIO_STATE state);
    WLAN_INTERFACE_STATE InterfaceState();
    DWORD Register(DWORD sources, bool ignoreDuplicates = false, DWORD* previous = nullptr);
    /// The notifications since the last time.
    Lines Told();
    std::optional<WLAN_CONNECTION_ATTRIBUTES> Connection();
    /// The error of a question that is refused.
    DWORD ErrorOf(WLAN_INTF_OPCODE opcode);

    template <typename Record>
    std::optional<Record> Query(WLAN_INTF_OPCODE opcode)
    {
        DWORD size = 0;
        PVOID data = nullptr;
        Wlan().WlanQueryInterface(client, &first, opcode, nullptr, &size, &data, nullptr);
        return Take<Record>(size, data);
    }

    template <typename Value>
    std::optional<Value> QueryService(WLAN_AUTOCONF_OPCODE opcode)
    {
        DWORD size = 0;
        PVOID data = nullptr;
        Wlan().WlanQueryAutoConfigParameter(client, opcode, nullptr, &size, &data, nullptr);
        return Take<Value>(size, data);
    }

    template <typename Value>
    DWORD Set(WLAN_INTF_OPCODE opcode, const Value& value)
    {
        return Wlan().WlanSetInterface(client, &first, opcode, sizeof(value), &value, nullptr);
    }

    Scenario scenario;
    NotificationRecorder recorder;
    std::unique_ptr<Computer> computer;
    HANDLE client = nullptr;

    const GUID first = {0xA0000001, 1, 1, {1, 1, 1, 1, 1, 1, 1, 1}};
    const GUID second = {0xB0000002, 2, 2, {2, 2, 2, 2, 2, 2, 2, 2}};
    const GUID missing = {0xC0000003, 3, 3, {3, 3, 3, 3, 3, 3, 3, 3}};

private:
    /// The record of an answer, which goes back, or nothing if there is none.
    template <typename Record>
    std::optional<Record> Take(DWORD size, void* data)
    {
        if (data == nullptr)
            return std::nullopt;
        EXPECT_EQ(size, sizeof(Record));
        const Record record = *static_cast<const Record*>(data);
        Wlan().WlanFreeMemory(data);
        return record;
    }
};

Bytes BytesOf(const std::string& text);
DOT11_SSID SsidOf(const std::string& text);
std::string TextOf(const DOT11_SSID& ssid);

/// An access point of HomeNet's kind, or one that is open to all.
AccessPoint MakeAccessPoint(const std::string& ssid, std::uint8_t lastBssidByte, std::int32_t rssi);
AccessPoint MakeOpenPoint(const std::string& ssid, std::uint8_t lastBssidByte, std::int32_t rssi);

/// A profile's settings and its document, of HomeNet's kind.
ProfileSettings MakeSettings(const std::string& name, const std::string& ssid);
std::string MakeProfile(const std::string& name, const std::string& ssid);

} // namespace calvix::simulation
