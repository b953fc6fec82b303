#pragma once

#include <calvix/platform_records.h>

#include <string_view>
#include <vector>

namespace calvix::simulation
{

/// How a network authenticates and encrypts, in the WLAN API's numbers.
struct SecuritySuite
{
    DOT11_AUTH_ALGORITHM authentication = DOT11_AUTH_ALGO_80211_OPEN;
    DOT11_CIPHER_ALGORITHM encryption = DOT11_CIPHER_ALGO_NONE;

    bool operator==(const SecuritySuite&) const = default;
};

/// The suite of the names that a profile uses ("WPA2PSK", "AES"). A name that is not known gets a number of the
/// range that the API leaves to vendors, which no adapter of this computer supports.
SecuritySuite SuiteFromNames(std::string_view authentication, std::string_view encryption);

/// The names of the suite; an algorithm that has none gives null.
const char* AuthenticationName(DOT11_AUTH_ALGORITHM algorithm);
const char* EncryptionName(DOT11_CIPHER_ALGORITHM algorithm);

/// Whether the names mean something at all, whether or not they go together.
bool IsAuthenticationName(std::string_view name);
bool IsEncryptionName(std::string_view name);

/// Whether this computer's adapters can use the suite.
bool IsSupported(SecuritySuite suite);

/// Everything that IsSupported accepts, in the order in which the adapters list it.
const std::vector<SecuritySuite>& SupportedSuites();

/// Whether frames are protected at all.
bool IsSecured(SecuritySuite suite);

/// Whether the suite is used with a passphrase of 8 to 63 characters.
bool UsesPassphrase(SecuritySuite suite);

/// Whether users authenticate one by one, with 802.1X.
bool UsesOneX(SecuritySuite suite);

} // namespace calvix::simulation
