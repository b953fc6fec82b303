#include "soak/scenario_text.h"

#include <algorithm>
#include <cstdint>

namespace calvix::test::soak
{

namespace
{

constexpr std::uint32_t kHour = 3'600'000;
/// Timetables count 32 bits of milliseconds; after their end nothing changes.
constexpr unsigned kLongestTimetable = 45;

/// Every day: this strength until noon, another until ten in the evening, and then the night's; 0 is off the air.
std::string Timetable(unsigned days, int morning, int afternoon, int night)
{
    const auto point = [](std::uint32_t at, int rssi)
    { return "{\"at\":" + std::to_string(at) + ",\"rssi\":" + (rssi != 0 ? std::to_string(rssi) : "null") + "}"; };
    std::string text;
    for (std::uint32_t day = 0; day < (std::min)(days + 1, kLongestTimetable); ++day)
    {
        const std::uint32_t midnight = day * 24 * kHour;
        text += (day != 0 ? "," : "") + point(midnight, morning) + "," + point(midnight + 12 * kHour, afternoon) + "," +
                point(midnight + 22 * kHour, night);
    }
    return "\"timetable\":[" + text + "]";
}

std::string AccessPoint(const std::string& ssid, const std::string& end, const std::string& channel, std::string more)
{
    return "{\"ssid\":\"" + ssid + "\",\"bssid\":\"02:50:a4:00:00:" + end + "\"," + channel +
           ",\"authentication\":\"open\",\"encryption\":\"none\"," + std::move(more) + "}";
}

std::string AccessPoints(unsigned days)
{
    const std::string low = "\"band\":\"2.4\",\"channel\":6";
    const std::string high = "\"band\":\"5\",\"channel\":44";
    return AccessPoint("Soak Home", "01", low, Timetable(days, -48, -79, -60)) + "," +
           AccessPoint("Soak Home", "02", high, Timetable(days, -75, -52, -60)) + "," +
           AccessPoint("Soak Office", "03", low, Timetable(days, -66, -58, 0)) + "," +
           AccessPoint("Soak Office", "04", high, Timetable(days, -58, -71, 0)) + "," +
           AccessPoint("Soak Cafe", "05", low, Timetable(days, 0, -70, 0)) + "," +
           AccessPoint("Strangers LC#7", "06", low, "\"rssi\":-62") + "," +
           AccessPoint("Strangers", "07", high, "\"rssi\":-80");
}

std::string Adapter(const std::string& end, const std::string& profiles)
{
    return "{\"guid\":\"{5CA1AB1E-50A4-4000-8000-00CA1F1C000" + end + "}\",\"description\":\"Wireless Adapter " + end +
           "\",\"address\":\"02:ca:1f:00:50:0" + end + "\",\"phys\":[{\"type\":\"ht\"},{\"type\":\"vht\"}]" + profiles +
           "}";
}

std::string Profiles()
{
    std::string text;
    for (const std::string name : kOwnNetworks)
    {
        text += text.empty() ? "" : ",";
        text += "{\"name\":\"" + name + "\",\"authentication\":\"open\",\"encryption\":\"none\"}";
    }
    return ",\"profiles\":[" + text + "]";
}

/// A computer whose power schemes are not listed and of which none is active: what would add one every time does not.
constexpr const char* kSystem =
    "\"power\":{\"enumerationError\":5,\"activeScheme\":null,\"schemes\":[],\"sleepMilliseconds\":600000},"
    "\"programPath\":\"C:\\\\Tools\\\\host.exe\","
    "\"programs\":[{\"path\":\"C:\\\\Tools\\\\worker.exe\",\"milliseconds\":4000}],";

} // namespace

std::string ScenarioText(unsigned days)
{
    return "{\"description\":\"A scenario to live in for a long time.\"," + std::string(kSystem) + "\"adapters\":[" +
           Adapter("A", Profiles()) + "," + Adapter("B", "") + "],\"accessPoints\":[" + AccessPoints(days) + "]}";
}

} // namespace calvix::test::soak
