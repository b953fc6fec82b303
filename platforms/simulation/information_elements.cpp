#include "simulation/information_elements.h"

#include "forms/channel.h"
#include "simulation/channel_elements.h"
#include <calvix/platform_records.h>

#include <initializer_list>
#include <optional>

namespace calvix::simulation
{

namespace
{

enum ElementId : std::uint8_t
{
    ssidElement = 0,
    ratesElement = 1,
    channelElement = 3,
    rsnElement = 48,
    extendedRatesElement = 50,
    vendorElement = 221
};

constexpr std::size_t mostRates = 8;

bool IsIn24GhzBand(const AccessPoint& accessPoint)
{
    return accessPoint.frequencyKhz < 3'000'000;
}

void AppendRates(Bytes& elements, const Bytes& rates)
{
    const std::size_t first = rates.size() < mostRates ? rates.size() : mostRates;
    const auto split = rates.begin() + static_cast<std::ptrdiff_t>(first);
    AppendElement(elements, ratesElement, Bytes(rates.begin(), split));
    if (split != rates.end())
        AppendElement(elements, extendedRatesElement, Bytes(split, rates.end()));
}

// The numbers of 802.11's RSN element, after its OUI.
std::optional<std::uint8_t> KeyManagement(DOT11_AUTH_ALGORITHM authentication)
{
    if (authentication == DOT11_AUTH_ALGO_RSNA || authentication == DOT11_AUTH_ALGO_WPA)
        return std::uint8_t{1};
    if (authentication == DOT11_AUTH_ALGO_RSNA_PSK || authentication == DOT11_AUTH_ALGO_WPA_PSK)
        return std::uint8_t{2};
    if (authentication == DOT11_AUTH_ALGO_WPA3_ENT)
        return std::uint8_t{5};
    if (authentication == DOT11_AUTH_ALGO_WPA3_SAE)
        return std::uint8_t{8};
    if (authentication == DOT11_AUTH_ALGO_WPA3_ENT_192)
        return std::uint8_t{12};
    if (authentication == DOT11_AUTH_ALGO_OWE)
        return std::uint8_t{18};
    return std::nullopt;
}

std::uint8_t CipherSuite(DOT11_CIPHER_ALGORITHM encryption)
{
    return encryption == DOT11_CIPHER_ALGO_TKIP ? 2 : encryption == DOT11_CIPHER_ALGO_GCMP_256 ? 9 : 4;
}

// Version, group cipher, one pairwise cipher, one way of managing keys: the same in both elements but for the OUI.
Bytes SecurityContent(std::initializer_list<std::uint8_t> oui, std::uint8_t cipherSuite, std::uint8_t keyManagement)
{
    Bytes content = {1, 0};
    const auto appendSuite = [&](std::uint8_t number)
    {
        content.insert(content.end(), oui);
        content.push_back(number);
    };
    appendSuite(cipherSuite);
    content.insert(content.end(), {1, 0});
    appendSuite(cipherSuite);
    content.insert(content.end(), {1, 0});
    appendSuite(keyManagement);
    return content;
}

void AppendSecurity(Bytes& elements, SecuritySuite security)
{
    const auto keyManagement = KeyManagement(security.authentication);
    if (!keyManagement)
        return;
    const std::uint8_t cipherSuite = CipherSuite(security.encryption);
    const bool isFirstWpa =
        security.authentication == DOT11_AUTH_ALGO_WPA || security.authentication == DOT11_AUTH_ALGO_WPA_PSK;
    if (isFirstWpa)
    {
        Bytes content = {0x00, 0x50, 0xf2, 1};
        const Bytes rest = SecurityContent({0x00, 0x50, 0xf2}, cipherSuite, *keyManagement);
        content.insert(content.end(), rest.begin(), rest.end());
        AppendElement(elements, vendorElement, content);
        return;
    }
    Bytes content = SecurityContent({0x00, 0x0f, 0xac}, cipherSuite, *keyManagement);
    content.insert(content.end(), {0, 0}); // RSN capabilities
    AppendElement(elements, rsnElement, content);
}

} // namespace

Bytes SupportedRates(const AccessPoint& accessPoint)
{
    return IsIn24GhzBand(accessPoint) ? Bytes{0x82, 0x84, 0x8b, 0x96, 12, 18, 24, 36, 48, 72, 96, 108}
                                      : Bytes{0x8c, 18, 0x98, 36, 0xb0, 72, 96, 108};
}

Bytes InformationElements(const HeardBss& bss)
{
    if (!bss.accessPoint.informationElements.empty())
        return bss.accessPoint.informationElements;
    Bytes elements;
    AppendElement(elements, ssidElement, bss.Ssid());
    AppendRates(elements, SupportedRates(bss.accessPoint));
    if (IsIn24GhzBand(bss.accessPoint))
    {
        AppendElement(elements, channelElement,
                      {static_cast<std::uint8_t>(forms::ChannelNumber(bss.accessPoint.frequencyKhz))});
    }
    AppendSecurity(elements, bss.security);
    const Bytes channel = ChannelElements(bss.accessPoint);
    elements.insert(elements.end(), channel.begin(), channel.end());
    return elements;
}

} // namespace calvix::simulation
