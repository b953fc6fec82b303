#include <calvix/testing/scenario.h>

#include <nlohmann/json.hpp>

#include <cstdio>

namespace calvix::testing
{

namespace
{

using nlohmann::json;

json Object(const std::string& fields)
{
    return json::parse("{" + fields + "}");
}

/// The number of a list's next element, as two hexadecimal digits.
std::string NextNumber(const json& list)
{
    char text[3];
    std::snprintf(text, sizeof text, "%02X", static_cast<unsigned char>(list.size() + 1));
    return text;
}

void Append(json& list, json element, const std::string& fields)
{
    element.update(Object(fields));
    list.push_back(std::move(element));
}

} // namespace

Scenario::Scenario(const std::string& fields) : m_text(Object(fields).dump()) {}

Scenario& Scenario::Adapter(const std::string& fields)
{
    json scenario = json::parse(m_text);
    json& adapters = scenario["adapters"];
    const std::string number = NextNumber(adapters);
    Append(adapters,
           {{"guid", "{5CA1AB1E-0000-4000-8000-0000000000" + number + "}"},
            {"address", "02:CA:1F:00:00:" + number},
            {"description", "Adapter " + number}},
           fields);
    m_text = scenario.dump();
    return *this;
}

Scenario& Scenario::Profile(const std::string& name, const std::string& fields)
{
    json scenario = json::parse(m_text);
    json& adapters = scenario["adapters"];
    Append(adapters.at(adapters.size() - 1)["profiles"], {{"name", name}}, fields);
    m_text = scenario.dump();
    return *this;
}

Scenario& Scenario::AccessPoint(const std::string& ssid, int rssi, const std::string& fields)
{
    json scenario = json::parse(m_text);
    json& accessPoints = scenario["accessPoints"];
    Append(accessPoints, {{"ssid", ssid}, {"rssi", rssi}, {"bssid", "02:00:00:00:00:" + NextNumber(accessPoints)}},
           fields);
    m_text = scenario.dump();
    return *this;
}

} // namespace calvix::testing
