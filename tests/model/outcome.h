#pragma once

#include <calvix/platform_records.h>

#include <string>
#include <string_view>
#include <vector>

namespace calvix::test
{

/// A call of the WLAN service with what matters in it.
struct Event
{
    std::string_view operation;
    int adapter = -1;
    std::wstring profile{};
    std::string ssid{};
    unsigned number = 0; ///< BSS type, position, opcode or version
    bool secured = false;
    std::string bssid{};  ///< the one desired, empty: any
    std::string oddity{}; ///< what is wrong with the arguments that are the same in every call

    bool operator==(const Event&) const = default;
};

/// An entry of a BSS list.
struct Heard
{
    std::string ssid;
    std::string bssid;
    unsigned long frequency = 0;
    unsigned long quality = 0;

    bool operator==(const Heard&) const = default;
};

/// The bytes of a network's name and of an address, as events and entries hold them.
std::string BytesOf(const DOT11_SSID& ssid);
std::string BytesOf(const DOT11_MAC_ADDRESS& address);
Heard HeardIn(const WLAN_BSS_ENTRY& entry);

/// What a method did. What it leaves untouched is as the caller passes it: an empty entry, an old name and text.
struct Outcome
{
    long long code = 0;
    std::vector<Event> events{};
    std::vector<Heard> entries = {HeardIn({})};
    std::vector<std::wstring> names = {L"old"};
    std::string text = "old";

    bool operator==(const Outcome&) const = default;
};

std::string Describe(const Outcome& outcome);

} // namespace calvix::test
