#pragma once

#include "files/file_path.h"
#include "forms/address_text.h"
#include "import/import.h"
#include "output/text_forms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace calvix::host::test
{

inline std::string DataPath(const std::string& name)
{
    return std::string(CALVIX_SOURCE_DIR) + "/tests/data/captures/" + name;
}

inline std::string Sample(const std::string& name)
{
    return ReadWholeFile(DataPath(name));
}

inline const std::string kNetworks = Sample("plain/networks.txt");
inline const std::string kInterfaces = Sample("plain/interfaces.txt");
inline const std::string kProfile = Sample("plain/profile.xml");

/// `text` with its first `from` replaced by `to`, which must be there.
inline std::string Replaced(std::string text, const std::string& from, const std::string& to)
{
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

/// `text` with every `from` replaced by `to`.
inline std::string AllReplaced(std::string text, const std::string& from, const std::string& to)
{
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
        text.replace(at, from.size(), to);
    return text;
}

inline std::string WithCarriageReturns(const std::string& text)
{
    return AllReplaced(text, "\n", "\r\n");
}

/// Without a byte order mark.
inline std::string Utf16(const std::string& text, bool bigEndian)
{
    std::string bytes;
    for (const wchar_t letter : Widen(text)) // nothing in the samples takes two units
    {
        const char low = static_cast<char>(letter & 0xFF);
        const char high = static_cast<char>(letter >> 8 & 0xFF);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

/// What `read` complains about, empty if it does not.
template <typename Read>
std::string Complaint(Read read)
{
    try
    {
        read();
    }
    catch (const CaptureError& error)
    {
        return error.what();
    }
    return {};
}

/// Everything that the bytes of one file hold.
inline Captures Read(const std::string& bytes, const CaptureHints& hints = {})
{
    Captures captures;
    ReadCapture(bytes, "file", hints, captures);
    return captures;
}

inline NetworksCapture ReadNetworks(const std::string& bytes)
{
    return Read(bytes).networks.value();
}

inline InterfacesCapture ReadInterfaces(const std::string& bytes)
{
    return Read(bytes).interfaces.value();
}

inline MadeScenario Import(const std::string& bytes, const CaptureHints& hints = {})
{
    return AssembleScenario(Read(bytes, hints), false);
}

/// "02:00:00:00:00:01 Juniper, 5180000 kHz, -60 dBm, PHY 10, BSS 1, WPA2PSK AES, 100 TU"
inline std::string Summary(const simulation::AccessPoint& heard)
{
    const std::string name = heard.hidden ? "(hidden)" : std::string(heard.ssid.begin(), heard.ssid.end());
    const std::string width = heard.channelWidth != 0 ? ", " + std::to_string(heard.channelWidth) + " MHz" : "";
    return forms::AddressText(heard.bssid) + " " + name + ", " + std::to_string(heard.frequencyKhz) + " kHz, " +
           std::to_string(heard.rssi) + " dBm, PHY " + std::to_string(heard.phyType) + ", BSS " +
           std::to_string(heard.bssType) + ", " + heard.authentication + " " + heard.encryption + ", " +
           std::to_string(heard.beaconPeriod) + " TU" + width;
}

/// The access points in the order of their addresses.
inline std::vector<std::string> Summaries(const std::vector<simulation::AccessPoint>& air)
{
    std::vector<std::string> summaries;
    for (const simulation::AccessPoint& heard : air)
        summaries.push_back(Summary(heard));
    std::sort(summaries.begin(), summaries.end());
    return summaries;
}

/// Whether one of the warnings begins like this.
inline bool Warns(const std::vector<std::string>& warnings, const std::string& beginning)
{
    return std::any_of(warnings.begin(), warnings.end(),
                       [&](const std::string& warning) { return warning.starts_with(beginning); });
}

} // namespace calvix::host::test
