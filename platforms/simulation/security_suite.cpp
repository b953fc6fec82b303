#include "simulation/security_suite.h"

#include <calvix/platform_records.h>

#include <algorithm>
#include <iterator>

namespace calvix::simulation
{

namespace
{

template <typename Number>
struct AlgorithmName
{
    const char* name;
    Number number;
};

constexpr AlgorithmName<DOT11_AUTH_ALGORITHM> authentications[] = {
    {"open", DOT11_AUTH_ALGO_80211_OPEN},   {"shared", DOT11_AUTH_ALGO_80211_SHARED_KEY},
    {"WPA", DOT11_AUTH_ALGO_WPA},           {"WPAPSK", DOT11_AUTH_ALGO_WPA_PSK},
    {"WPA2", DOT11_AUTH_ALGO_RSNA},         {"WPA2PSK", DOT11_AUTH_ALGO_RSNA_PSK},
    {"WPA3", DOT11_AUTH_ALGO_WPA3_ENT_192}, {"WPA3ENT192", DOT11_AUTH_ALGO_WPA3_ENT_192},
    {"WPA3ENT", DOT11_AUTH_ALGO_WPA3_ENT},  {"WPA3SAE", DOT11_AUTH_ALGO_WPA3_SAE},
    {"OWE", DOT11_AUTH_ALGO_OWE},
};

constexpr AlgorithmName<DOT11_CIPHER_ALGORITHM> encryptions[] = {
    {"none", DOT11_CIPHER_ALGO_NONE}, {"WEP", DOT11_CIPHER_ALGO_WEP},          {"TKIP", DOT11_CIPHER_ALGO_TKIP},
    {"AES", DOT11_CIPHER_ALGO_CCMP},  {"GCMP256", DOT11_CIPHER_ALGO_GCMP_256},
};

// Null for a name that is not there.
template <typename Number, std::size_t count>
const AlgorithmName<Number>* Find(const AlgorithmName<Number> (&table)[count], std::string_view name)
{
    const auto found =
        std::find_if(std::begin(table), std::end(table), [name](const auto& entry) { return entry.name == name; });
    return found == std::end(table) ? nullptr : found;
}

// The first one of those that mean the same.
template <typename Number, std::size_t count>
const char* NameOf(const AlgorithmName<Number> (&table)[count], Number number)
{
    const auto found = std::find_if(std::begin(table), std::end(table),
                                    [number](const auto& entry) { return entry.number == number; });
    return found == std::end(table) ? nullptr : found->name;
}

} // namespace

SecuritySuite SuiteFromNames(std::string_view authentication, std::string_view encryption)
{
    const auto* const foundAuthentication = Find(authentications, authentication);
    const auto* const foundEncryption = Find(encryptions, encryption);
    return {foundAuthentication != nullptr ? foundAuthentication->number : DOT11_AUTH_ALGO_IHV_START,
            foundEncryption != nullptr ? foundEncryption->number : DOT11_CIPHER_ALGO_IHV_START};
}

const char* AuthenticationName(DOT11_AUTH_ALGORITHM algorithm)
{
    return NameOf(authentications, algorithm);
}

const char* EncryptionName(DOT11_CIPHER_ALGORITHM algorithm)
{
    return NameOf(encryptions, algorithm);
}

bool IsAuthenticationName(std::string_view name)
{
    return Find(authentications, name) != nullptr;
}

bool IsEncryptionName(std::string_view name)
{
    return Find(encryptions, name) != nullptr;
}

bool IsSupported(SecuritySuite suite)
{
    const auto& suites = SupportedSuites();
    return std::find(suites.begin(), suites.end(), suite) != suites.end();
}

const std::vector<SecuritySuite>& SupportedSuites()
{
    static const std::vector<SecuritySuite> suites = {
        {DOT11_AUTH_ALGO_80211_OPEN, DOT11_CIPHER_ALGO_NONE},
        {DOT11_AUTH_ALGO_80211_OPEN, DOT11_CIPHER_ALGO_WEP},
        {DOT11_AUTH_ALGO_80211_SHARED_KEY, DOT11_CIPHER_ALGO_WEP},
        {DOT11_AUTH_ALGO_WPA, DOT11_CIPHER_ALGO_TKIP},
        {DOT11_AUTH_ALGO_WPA, DOT11_CIPHER_ALGO_CCMP},
        {DOT11_AUTH_ALGO_WPA_PSK, DOT11_CIPHER_ALGO_TKIP},
        {DOT11_AUTH_ALGO_WPA_PSK, DOT11_CIPHER_ALGO_CCMP},
        {DOT11_AUTH_ALGO_RSNA, DOT11_CIPHER_ALGO_TKIP},
        {DOT11_AUTH_ALGO_RSNA, DOT11_CIPHER_ALGO_CCMP},
        {DOT11_AUTH_ALGO_RSNA_PSK, DOT11_CIPHER_ALGO_TKIP},
        {DOT11_AUTH_ALGO_RSNA_PSK, DOT11_CIPHER_ALGO_CCMP},
        {DOT11_AUTH_ALGO_WPA3_ENT_192, DOT11_CIPHER_ALGO_GCMP_256},
        {DOT11_AUTH_ALGO_WPA3_ENT, DOT11_CIPHER_ALGO_CCMP},
        {DOT11_AUTH_ALGO_WPA3_ENT, DOT11_CIPHER_ALGO_GCMP_256},
        {DOT11_AUTH_ALGO_WPA3_SAE, DOT11_CIPHER_ALGO_CCMP},
        {DOT11_AUTH_ALGO_WPA3_SAE, DOT11_CIPHER_ALGO_GCMP_256},
        {DOT11_AUTH_ALGO_OWE, DOT11_CIPHER_ALGO_CCMP},
        {DOT11_AUTH_ALGO_OWE, DOT11_CIPHER_ALGO_GCMP_256},
    };
    return suites;
}

bool IsSecured(SecuritySuite suite)
{
    return suite != SecuritySuite{};
}

bool UsesPassphrase(SecuritySuite suite)
{
    return suite.authentication == DOT11_AUTH_ALGO_WPA_PSK || suite.authentication == DOT11_AUTH_ALGO_RSNA_PSK;
}

bool UsesOneX(SecuritySuite suite)
{
    return suite.authentication == DOT11_AUTH_ALGO_WPA || suite.authentication == DOT11_AUTH_ALGO_RSNA ||
           suite.authentication == DOT11_AUTH_ALGO_WPA3_ENT_192 || suite.authentication == DOT11_AUTH_ALGO_WPA3_ENT;
}

} // namespace calvix::simulation
