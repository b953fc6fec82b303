#include "simulation/scenario_system.h"

#include "forms/utf8.h"

namespace calvix::simulation
{

namespace
{

const char kSleepSubgroup[] = "{238C9FA8-0AAD-41ED-83F4-97BE242C8F20}";
const char kSleepAfter[] = "{29F6C1DB-86DA-48C5-9FDB-F2B67B1F44DA}";
const char kUnattendedSleepAfter[] = "{7BC4A2F9-D8FC-4469-B07B-33EB785AACA0}";

constexpr std::uint32_t kFirstAfterBasicPlane = 0x10000;
constexpr std::uint32_t kHighSurrogate = 0xD800;
constexpr std::uint32_t kLowSurrogate = 0xDC00;
constexpr std::uint32_t kFirstAfterSurrogates = 0xE000;

PowerScheme DefaultScheme(const char* guid, const char* name, std::uint32_t sleepAc, std::uint32_t sleepDc)
{
    return {guid,
            FriendlyName(name),
            {{kSleepSubgroup, kSleepAfter, sleepAc, sleepDc}, {kSleepSubgroup, kUnattendedSleepAfter, 120, 120}}};
}

void AppendUnit(std::vector<std::uint8_t>& bytes, std::uint32_t unit)
{
    bytes.push_back(static_cast<std::uint8_t>(unit & 0xFF));
    bytes.push_back(static_cast<std::uint8_t>(unit >> 8));
}

std::uint32_t UnitAt(const std::vector<std::uint8_t>& bytes, std::size_t index)
{
    return bytes[index * 2] | static_cast<std::uint32_t>(bytes[index * 2 + 1]) << 8;
}

/// Wide text is UTF-16 on one platform and UTF-32 on the other; only the latter needs pairs put together.
void AppendUtf16Unit(std::wstring& text, std::uint32_t unit)
{
    const std::uint32_t last = text.empty() ? 0 : static_cast<std::uint32_t>(text.back());
    if (sizeof(wchar_t) > 2 && unit >= kLowSurrogate && unit < kFirstAfterSurrogates && last >= kHighSurrogate &&
        last < kLowSurrogate)
        text.back() =
            static_cast<wchar_t>(kFirstAfterBasicPlane + ((last - kHighSurrogate) << 10) + (unit - kLowSurrogate));
    else
        text += static_cast<wchar_t>(unit);
}

} // namespace

std::vector<std::uint8_t> FriendlyName(const std::string& text)
{
    std::vector<std::uint8_t> bytes;
    for (const wchar_t character : forms::WideFromUtf8(text))
    {
        const std::uint32_t value = static_cast<char32_t>(character);
        if (value < kFirstAfterBasicPlane)
        {
            AppendUnit(bytes, value);
            continue;
        }
        AppendUnit(bytes, kHighSurrogate + ((value - kFirstAfterBasicPlane) >> 10));
        AppendUnit(bytes, kLowSurrogate + ((value - kFirstAfterBasicPlane) & 0x3FF));
    }
    AppendUnit(bytes, 0);
    return bytes;
}

std::optional<std::string> TextOfFriendlyName(const std::vector<std::uint8_t>& bytes)
{
    std::wstring wide;
    for (std::size_t index = 0; index < bytes.size() / 2; ++index)
        AppendUtf16Unit(wide, UnitAt(bytes, index));
    if (wide.empty() || wide.back() != L'\0')
        return std::nullopt;
    wide.pop_back();
    std::string text = forms::Utf8FromWide(wide);
    // What is not terminated once, at its end, or not well-formed does not come out as it went in.
    return wide.find(L'\0') == std::wstring::npos && FriendlyName(text) == bytes ? std::optional(text) : std::nullopt;
}

std::vector<PowerScheme> DefaultPowerSchemes()
{
    return {DefaultScheme("{381B4222-F694-41F0-9685-FF5BB260DF2E}", "Balanced", 1800, 900),
            DefaultScheme("{8C5E7FDA-E8BF-4A96-9A85-A6E23A8C635C}", "High performance", 0, 0),
            DefaultScheme("{A1841308-3541-4FAB-BC81-F71556F20B4A}", "Power saver", 900, 600)};
}

std::vector<LegacyPowerScheme> DefaultLegacyPowerSchemes()
{
    return {{0, "Home/Office Desk", 1800, 900, 600, 300},
            {1, "Portable/Laptop", 1200, 300, 900, 300},
            {3, "Always On", 0, 0, 1200, 900}};
}

std::vector<Privilege> DefaultPrivileges()
{
    return {{"SeShutdownPrivilege", false},
            {"SeChangeNotifyPrivilege", true},
            {"SeUndockPrivilege", false},
            {"SeIncreaseWorkingSetPrivilege", false},
            {"SeTimeZonePrivilege", false}};
}

} // namespace calvix::simulation
