#pragma once

#include "support/edited_answers.h"
#include "support/library_test.h"

#include <algorithm>
#include <cwchar>

namespace calvix::test
{

using Lines = std::vector<std::string>;

inline constexpr simulation::MacAddress kBssid = {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E};

/// One adapter, not connected, that hears one access point.
inline simulation::Scenario SmallScenario()
{
    simulation::Scenario scenario = SilentScenario();
    scenario.adapters.resize(1);
    scenario.accessPoints = {MakeAccessPoint("HomeNet", kBssid, 2437000, -60)};
    return scenario;
}

class ListingsTest : public LibraryTest
{
public:
    ListingsTest() : LibraryTest(SmallScenario()) {}

    Lines Networks(AnswerChanges changes = {})
    {
        ClearCalls();
        const EditedAnswers altered(std::move(changes));
        EXPECT_EQ(0, manager().GetAvailableNetwork());
        return traced();
    }

    /// The listing of the network, which a test has changed.
    Lines Network(std::function<void(WLAN_AVAILABLE_NETWORK&)> change)
    {
        return Networks({.networks = [&change](WLAN_AVAILABLE_NETWORK_LIST& list) { change(list.Network[0]); }});
    }

    Lines Bss(AnswerChanges changes = {})
    {
        ClearCalls();
        const EditedAnswers altered(std::move(changes));
        EXPECT_EQ(0, manager().GetNetworkBss());
        return traced();
    }

    Lines Entry(std::function<void(WLAN_BSS_ENTRY&)> change)
    {
        return Bss({.bss = [&change](WLAN_BSS_LIST& list) { change(list.wlanBssEntries[0]); }});
    }
};

/// The line after a label that ends its own.
inline std::string After(const Lines& lines, const std::string& label)
{
    const auto found = std::find(lines.begin(), lines.end(), label);
    return found == lines.end() || found + 1 == lines.end() ? "no line behind \"" + label + '"' : found[1];
}

/// A value and what the listings call it.
struct NamedValue
{
    unsigned value;
    const char* text;
};

inline bool AnyStartsWith(const Lines& lines, const std::string& start)
{
    return std::any_of(lines.begin(), lines.end(), [&](const std::string& line) { return line.starts_with(start); });
}

template <std::size_t Size>
void Fill(wchar_t (&text)[Size], wchar_t character)
{
    std::wmemset(text, character, Size);
}

} // namespace calvix::test
