// Scenarios put together in code, for the tests that need an adapter and a few networks.
#pragma once

#include <string>

namespace calvix::testing
{

/// A scenario for Computer, at first without adapters and access points. `fields` are further fields as
/// scenario.schema.json describes them, such as R"("band": "5", "channel": 36)"; they replace those that are made up
/// here. If they are not valid JSON, a std::exception says why.
class Scenario
{
public:
    explicit Scenario(const std::string& fields = {});

    /// An adapter, with a GUID, an address and a description of its own.
    Scenario& Adapter(const std::string& fields = {});
    /// A profile of the last adapter, which connects automatically; the first profile is preferred.
    Scenario& Profile(const std::string& name, const std::string& fields = {});
    /// An access point in the 2.4 GHz band with a BSSID of its own, heard with `rssi` dBm.
    Scenario& AccessPoint(const std::string& ssid, int rssi, const std::string& fields = {});

    /// The content of the scenario file.
    const std::string& Text() const { return m_text; }

private:
    std::string m_text;
};

} // namespace calvix::testing
