#include "support/test_worlds.h"
#include "sweep/method_call.h"

#include <algorithm>
#include <cstdio>

namespace calvix::test::sweep
{

using Manager = CWirelessManage;

namespace
{

constexpr unsigned char kAddress[] = {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E};
constexpr DOT11_SSID kHome = {4, {'H', 'o', 'm', 'e'}};

Outcome ToAnsi(Manager& manager)
{
    TextOutput<1024> text;
    return Told(manager.UnicodeToAnsi(L"Home", text.value.data()), text);
}

/// Longer than what conversions keep on the stack.
const wchar_t* LongText()
{
    static const auto text = []
    {
        std::array<wchar_t, 301> filled{};
        std::fill_n(filled.begin(), filled.size() - 1, L'x');
        return filled;
    }();
    return text.data();
}

Outcome ToNarrow(Manager& manager)
{
    TextOutput<512> text;
    return Told(manager.WideCharToChar(LongText(), text.value.data(), sizeof(text.value)), text);
}

Outcome SsidText(Manager& manager)
{
    TextOutput<33> text;
    return Told(manager.GetSSID(&kHome, text.value.data(), sizeof(text.value)), text);
}

Outcome WideSsidText(Manager& manager)
{
    Output<std::array<wchar_t, 33>> text;
    return Told(manager.GetSSID(&kHome, text.value.data(), 33), text);
}

Outcome FromHex(Manager& manager)
{
    unsigned char bytes[4] = {};
    return Told(manager.StringToHex("4142", 4, bytes, 2, false));
}

Outcome ToHex(Manager& manager)
{
    char text[5] = {};
    return Told(manager.HexToString(kAddress + 1, 2, text, 4, false));
}

Outcome TextToHex(Manager& manager)
{
    unsigned char text[5] = {};
    return Told(manager.StringToHexString("A", 1, text, 4));
}

Outcome AddressText(Manager& manager)
{
    char text[18] = {};
    manager.FormMAC(kAddress, text);
    return Told(+text);
}

Outcome BssidText(Manager& manager)
{
    char text[18] = {};
    manager.GetBSSID(kAddress, text, sizeof(text));
    return Told(+text);
}

Outcome EndProcess(Manager& manager)
{
    manager.CloseProcess(kProcess);
    return Nothing();
}

Outcome RunCommand(Manager& manager)
{
    std::array<char, 64> commandLine{};
    std::snprintf(commandLine.data(), commandLine.size(), "\"C:\\Tools\\%s\" now", kProgram);
    manager.CreateProcRunCmd(commandLine.data());
    return Nothing();
}

Outcome RunProgram(Manager& manager)
{
    auto program = std::to_array(kProgram);
    return Told(manager.CreateProcRunExe(program.data()));
}

void TakePrivilege(Manager& manager)
{
    manager.GetPrivileges();
}

void SaveScheme(Manager& manager)
{
    manager.SetPowerScheme();
}

std::vector<MethodCall> TextMethods()
{
    return {
        {"UnicodeToAnsi(wchar_t const*, char*)", ToAnsi},
        {"WideCharToChar(wchar_t const*, char*, int)", ToNarrow},
        {"GetSSID(DOT11_SSID const*, char*, int)", SsidText},
        {"GetSSID(DOT11_SSID const*, wchar_t*, int)", WideSsidText},
        {"StringToHex(char const*, int, unsigned char*, int, bool)", FromHex},
        {"HexToString(unsigned char const*, int, char*, int, bool)", ToHex},
        {"StringToHexString(char const*, int, unsigned char*, int)", TextToHex},
        {"FormMAC(unsigned char const*, char*)", AddressText},
        {"GetBSSID(unsigned char const*, char*, int)", BssidText},
    };
}

std::vector<MethodCall> SystemMethods()
{
    return {
        {"GetPrivileges()", [](Manager& m) { return Told(m.GetPrivileges()); }},
        {"EnablePriviledge(char const*)", [](Manager& m) { return Told(m.EnablePriviledge("SeShutdownPrivilege")); }},
        {"ForceComputerSleep()", [](Manager& m) { return Told(m.ForceComputerSleep()); }, TakePrivilege},
        {"SetPowerScheme()", [](Manager& m) { return Told(m.SetPowerScheme()); }},
        {"ResetPowerScheme()", [](Manager& m) { return Told(m.ResetPowerScheme()); }, SaveScheme},
        {"GetPowerScheme()", [](Manager& m) { return Told(m.GetPowerScheme()); }},
        {"GetSystemPowerPolicy()", [](Manager& m) { return Told(m.GetSystemPowerPolicy()); }},
        {"IsSurpportAoAc()", [](Manager& m) { return Told(m.IsSurpportAoAc()); }},
        {"IsPowerHibernateAllowed()", [](Manager& m) { return Told(m.IsPowerHibernateAllowed()); }},
        {"GetLastWakeTime()", [](Manager& m) { return Told(m.GetLastWakeTime()); }},
        {"GetLastSleepTime()", [](Manager& m) { return Told(m.GetLastSleepTime()); }},
        {"IsWow64()", [](Manager& m) { return Told(m.IsWow64()); }},
        {"CloseProcess(unsigned long)", EndProcess},
        {"CreateProcRunCmd(char*)", RunCommand},
        {"CreateProcRunExe(char*)", RunProgram},
        {"GetAppPath()", [](Manager& m) { return Told(m.GetAppPath()); }},
        {"OpenUrl()", [](Manager& m) { return Told(m.OpenUrl()); }},
    };
}

} // namespace

std::vector<MethodCall> ComputerMethods()
{
    std::vector<MethodCall> methods = TextMethods();
    const std::vector<MethodCall> system = SystemMethods();
    methods.insert(methods.end(), system.begin(), system.end());
    return methods;
}

} // namespace calvix::test::sweep
