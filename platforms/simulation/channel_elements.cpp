#include "simulation/channel_elements.h"

#include "forms/channel.h"
#include <calvix/platform_records.h>

#include <algorithm>

namespace calvix::simulation
{

namespace
{

enum ChannelElementId : std::uint8_t
{
    htCapabilities = 45,
    htOperation = 61,
    vhtCapabilities = 191,
    vhtOperation = 192,
    extension = 255
};

enum ExtensionId : std::uint8_t
{
    heCapabilities = 35,
    heOperation = 36,
    ehtOperation = 106,
    ehtCapabilities = 108
};

/// The primary channel among the 20 MHz channels of its band.
struct Primary
{
    explicit Primary(const AccessPoint& accessPoint)
        : mhz(accessPoint.frequencyKhz / 1000), base(forms::ChannelBaseMhz(mhz))
    {
    }

    bool IsIn24GhzBand() const { return mhz < 3000; }
    bool IsIn6GhzBand() const { return mhz >= 5925; }
    std::uint8_t Number() const { return static_cast<std::uint8_t>(forms::ChannelNumber(mhz * 1000)); }

    /// Number of the middle of the channel of this width that the primary one is a part of. Wide channels begin at 5180,
    /// 5745 and 5955 MHz, each as far from the next as it is wide.
    std::uint8_t Centre(std::uint32_t width) const
    {
        if (width <= 20)
            return Number();
        if (IsIn24GhzBand())
            return static_cast<std::uint8_t>(Number() + (Number() <= 7 ? 2 : -2));
        const std::uint32_t first = IsIn6GhzBand() ? 5955 : mhz < 5735 ? 5180 : 5745;
        const std::uint32_t begin = first + (mhz < first ? 0 : (mhz - first) / width * width);
        return static_cast<std::uint8_t>((begin + width / 2 - 10 - base) / 5);
    }

    std::uint32_t mhz;
    std::uint32_t base;
};

void AppendExtension(Bytes& elements, ExtensionId id, Bytes content)
{
    content.insert(content.begin(), id);
    AppendElement(elements, extension, content);
}

void AppendHt(Bytes& elements, const Primary& primary, std::uint32_t width)
{
    const bool wide = width >= 40;
    Bytes capabilities(26);
    capabilities[0] = wide ? 0x62 : 0x20; // 40 MHz, short guard intervals
    capabilities[3] = capabilities[4] = 0xff;
    AppendElement(elements, htCapabilities, capabilities);
    Bytes operation(22);
    operation[0] = primary.Number();
    if (wide)
        operation[1] = primary.Centre(40) > primary.Number() ? 0x05 : 0x07; // second channel above or below
    AppendElement(elements, htOperation, operation);
}

/// A wide channel as VHT operation gives it, and HE operation for the 5 GHz band.
Bytes WideChannel(const Primary& primary, std::uint32_t width)
{
    if (width < 80)
        return {0, 0, 0};
    return {1, primary.Centre(80), static_cast<std::uint8_t>(width >= 160 ? primary.Centre(160) : 0)};
}

void AppendVht(Bytes& elements, const Primary& primary, std::uint32_t width)
{
    const auto supportedWidths = static_cast<std::uint8_t>(width >= 160 ? 0x04 : 0);
    AppendElement(elements, vhtCapabilities,
                  {supportedWidths, 0, 0, 0, 0xfa, 0xff, 0, 0, 0xfa, 0xff, 0, 0}); // MCS 0 to 9
    Bytes operation = WideChannel(primary, width);
    operation.insert(operation.end(), {0xfc, 0xff});
    AppendElement(elements, vhtOperation, operation);
}

std::uint8_t WidthCode(std::uint32_t width)
{
    return width >= 320 ? 4 : width >= 160 ? 3 : width >= 80 ? 2 : width >= 40 ? 1 : 0;
}

void AppendHe(Bytes& elements, const Primary& primary, std::uint32_t width)
{
    Bytes capabilities(17);
    capabilities[6] = static_cast<std::uint8_t>(primary.IsIn24GhzBand() ? 0x02 : width >= 160 ? 0x0c : 0x04);
    capabilities.insert(capabilities.end(), {0xfa, 0xff, 0xfa, 0xff}); // MCS 0 to 11
    if (width >= 160)
        capabilities.insert(capabilities.end(), {0xfa, 0xff, 0xfa, 0xff});
    AppendExtension(elements, heCapabilities, capabilities);
    Bytes operation = {0, 0, static_cast<std::uint8_t>(primary.IsIn6GhzBand() ? 0x02 : 0), 1, 0xfc, 0xff};
    if (primary.IsIn6GhzBand())
    {
        const std::uint32_t told = (std::min)(width, 160u);
        const std::uint8_t second = told >= 160 ? primary.Centre(160) : std::uint8_t{0};
        operation.insert(operation.end(),
                         {primary.Number(), WidthCode(told), primary.Centre((std::min)(told, 80u)), second, 6});
    }
    AppendExtension(elements, heOperation, operation);
}

void AppendEht(Bytes& elements, const Primary& primary, std::uint32_t width)
{
    Bytes capabilities(11);
    capabilities[2] = static_cast<std::uint8_t>(width >= 320 ? 0x02 : 0);
    capabilities.insert(capabilities.end(), 3, 0x22); // two streams at every modulation
    if (width >= 160)
        capabilities.insert(capabilities.end(), 3, 0x22);
    if (width >= 320)
        capabilities.insert(capabilities.end(), 3, 0x22);
    AppendExtension(elements, ehtCapabilities, capabilities);
    const std::uint8_t second = width >= 160 ? primary.Centre(width) : std::uint8_t{0};
    AppendExtension(
        elements, ehtOperation,
        {0x01, 0x44, 0x44, 0x44, 0x44, WidthCode(width), primary.Centre(width >= 160 ? width / 2 : width), second});
}

} // namespace

void AppendElement(Bytes& elements, std::uint8_t id, const Bytes& content)
{
    elements.push_back(id);
    elements.push_back(static_cast<std::uint8_t>(content.size()));
    elements.insert(elements.end(), content.begin(), content.end());
}

Bytes ChannelElements(const AccessPoint& accessPoint)
{
    const std::uint32_t width = accessPoint.channelWidth;
    const Primary primary(accessPoint);
    Bytes elements;
    if (width == 0)
        return elements;
    const auto phy = static_cast<DOT11_PHY_TYPE>(accessPoint.phyType);
    if (phy < dot11_phy_type_ht || phy > dot11_phy_type_eht || phy == dot11_phy_type_dmg)
        return elements;
    if (!primary.IsIn6GhzBand())
        AppendHt(elements, primary, width);
    if (phy >= dot11_phy_type_vht && !primary.IsIn6GhzBand() && !primary.IsIn24GhzBand())
        AppendVht(elements, primary, width);
    if (phy >= dot11_phy_type_he)
        AppendHe(elements, primary, width);
    if (phy >= dot11_phy_type_eht)
        AppendEht(elements, primary, width);
    return elements;
}

} // namespace calvix::simulation
