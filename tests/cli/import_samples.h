#pragma once

#include "files/file_path.h"
#include "import/import.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace calvix::host::test
{

inline std::string DataPath(const std::string& name)
{
    return std::string(CALVIX_SOURCE_DIR) + "/tests/data/captures/" + name;
}

/// `text` with its first `from` replaced by `to`, which must be there.
inline std::string Replaced(std::string text, const std::string& from, const std::string& to)
{
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

inline std::string WithCarriageReturns(const std::string& text)
{
    std::string result;
    for (const char letter : text)
        result += letter == '\n' ? "\r\n" : std::string(1, letter);
    return result;
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

inline NetworksCapture ReadNetworks(const std::string& bytes, const CaptureHints& hints = {})
{
    return Read(bytes, hints).networks.value();
}

inline MadeScenario Import(const std::string& bytes, const CaptureHints& hints = {})
{
    return AssembleScenario(Read(bytes, hints), false);
}

/// Whether one of the warnings begins like this.
inline bool Warns(const std::vector<std::string>& warnings, const std::string& beginning)
{
    return std::any_of(warnings.begin(), warnings.end(),
                       [&](const std::string& warning) { return warning.starts_with(beginning); });
}

/// A folder that is gone after the test.
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        static std::atomic<unsigned> number{0};
        const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
        m_path = std::filesystem::temp_directory_path() /
                 ("calvix-import-" + std::to_string(now) + "-" + std::to_string(++number));
        std::filesystem::create_directories(m_path);
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string path() const { return PathText(m_path); }
    std::string operator/(const std::string& name) const { return PathText(m_path / name); }

    /// Writes a file into the folder and returns its path.
    std::string Write(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(m_path / name, std::ios::binary) << bytes;
        return *this / name;
    }

    std::size_t FileCount() const
    {
        const std::filesystem::directory_iterator files(m_path);
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }

private:
    std::filesystem::path m_path;
};

/// Line 1 is blank, as in what the tool prints.
inline const std::string kNetworks = R"(
Interface name : Wi-Fi
There are 2 networks currently visible.

SSID 1 : Juniper
    Network type            : Infrastructure
    Authentication          : WPA2-Personal
    Encryption              : CCMP
    BSSID 1                 : 02:00:00:00:00:01
         Signal             : 80%
         Radio type         : 802.11ax
         Band               : 5 GHz
         Channel            : 36
         Other rates (Mbps) : 9 18 36 48 54
    BSSID 2                 : 02:00:00:00:00:02
         Signal             : 61%
         Radio type         : 802.11n
         Channel            : 6

SSID 2 : Open: all day
    Network type            : Infrastructure
    Authentication          : Open
    Encryption              : None
    BSSID 1                 : 02:00:00:00:00:03
         Signal             : 40%
         Radio type         : 802.11g
         Channel            : 11
)";

inline const std::string kInterfaces = R"(
There are 2 interfaces on the system:

    Name                   : Wi-Fi
    Description            : First: the inner one
    GUID                   : 11111111-2222-3333-4444-55556666abcd
    Physical address       : 02:00:00:00:10:01
    State                  : connected
    SSID                   : Juniper
    AP BSSID               : 02:00:00:00:00:01
    Band                   : 5 GHz
    Channel                : 36
    Network type           : Infrastructure
    Radio type             : 802.11ax
    Authentication         : WPA2-Personal
    Cipher                 : CCMP
    Connection mode        : Auto Connect
    Signal                 : 82%
    Profile                : Juniper

    Name                   : Wi-Fi 2
    Description            : Second
    GUID                   : 11111111-2222-3333-4444-55556666abce
    Physical address       : 02:00:00:00:10:02
    State                  : disconnected
    Radio status           : Hardware On
                             Software Off
)";

inline const std::string kProfile = R"(<?xml version="1.0"?>
<WLANProfile xmlns="http://www.microsoft.com/networking/WLAN/profile/v1">
	<name>Juniper</name>
	<SSIDConfig><SSID><hex>4A756E69706572</hex><name>Juniper</name></SSID></SSIDConfig>
	<connectionType>ESS</connectionType>
	<connectionMode>auto</connectionMode>
	<MSM><security>
		<authEncryption>
			<authentication>WPA2PSK</authentication><encryption>AES</encryption><useOneX>false</useOneX>
		</authEncryption>
		<sharedKey>
			<keyType>passPhrase</keyType><protected>false</protected><keyMaterial>under the juniper</keyMaterial>
		</sharedKey>
	</security></MSM>
</WLANProfile>
)";

} // namespace calvix::host::test
