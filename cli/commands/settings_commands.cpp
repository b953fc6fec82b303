#include "commands/commands.h"
#include "host/host.h"
#include "host/service_view.h"
#include "output/failure.h"
#include "output/json_output.h"
#include "output/table.h"
#include "output/text_forms.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

struct SettingsFacts
{
    unsigned powerLevel = 0;
    std::string powerSetting; ///< the platform's name of the level
    std::optional<bool> automaticConnection;
    std::optional<bool> backgroundScan;
    std::optional<bool> safeMode; ///< whether it is supported
};

JsonRecord Describe(const SettingsFacts& settings)
{
    return JsonRecord()
        .Add("powerLevel", settings.powerLevel, {"The platform's number"})
        .Add("powerSetting", settings.powerSetting)
        .Add("automaticConnection", settings.automaticConnection)
        .Add("backgroundScan", settings.backgroundScan)
        .Add("safeMode", settings.safeMode, {"Whether it is supported"});
}

/// A driver's request and answer, in hexadecimal.
JsonRecord DriverRecord(const std::string& request, const std::string& answer)
{
    return Under("ihv", JsonRecord("In hexadecimal")
                            .Add("request", request, {.pattern = "^([0-9A-F]{2})+$"})
                            .Add("answer", answer, {.pattern = "^([0-9A-F]{2})*$"}));
}

struct SettingsOptions
{
    bool enableAuto = false;
    bool enableBackgroundScan = false;
};

struct IhvOptions
{
    std::string request;
    unsigned size = 0;
    bool grant = false;
};

SettingsFacts ReadSettings(Host& host)
{
    const GUID* const adapter = host.adapterGuid();
    SettingsFacts facts;
    unsigned long level = wlan_power_setting_invalid;
    host.Require("GetPowerSetting", host.manager().GetPowerSetting(level));
    facts.powerLevel = static_cast<unsigned>(level);
    facts.powerSetting = host.manager().GetPowerSettingStr(level);
    facts.automaticConnection = host.service().IsEnabled(adapter, wlan_intf_opcode_autoconf_enabled);
    facts.backgroundScan = host.service().IsEnabled(adapter, wlan_intf_opcode_background_scan_enabled);
    const int safeMode = host.manager().SupportedSafeMode(adapter);
    if (safeMode >= 0)
        facts.safeMode = safeMode != 0;
    return facts;
}

std::string YesOrNo(const std::optional<bool>& value, const char* yes, const char* no)
{
    if (!value)
        return "unknown";
    return *value ? yes : no;
}

void Settings(Host& host, const SettingsOptions& options)
{
    const GUID* const adapter = host.adapterGuid();
    if (options.enableAuto)
        host.Require("EnableAutoCfg", host.manager().EnableAutoCfg(adapter));
    if (options.enableBackgroundScan)
        host.Require("EnableBackgroundScan", host.manager().EnableBackgroundScan(adapter));
    const SettingsFacts facts = ReadSettings(host);
    if (host.json())
        return PrintJson(host.out(), Under("settings", facts));
    PrintPairs(host.out(), {{"Power saving", facts.powerSetting},
                            {"Automatic connection", YesOrNo(facts.automaticConnection, "on", "off")},
                            {"Background scan", YesOrNo(facts.backgroundScan, "on", "off")},
                            {"Safe mode", YesOrNo(facts.safeMode, "supported", "not supported")}});
}

void AskDriver(Host& host, const IhvOptions& options)
{
    constexpr unsigned largest = 1U << 16;
    if (options.size > largest)
        throw BadInput("--size takes at most " + std::to_string(largest) + " bytes");
    const auto bytes = BytesOfHexText(options.request);
    if (!bytes)
        throw BadInput("\"" + options.request + "\" is not a valid request: it needs pairs of hexadecimal digits",
                       "write it like 00A1F2 or \"00 A1 F2\"");
    std::string buffer = *bytes;
    buffer.resize((std::max)(buffer.size(), static_cast<std::size_t>(options.size)));
    const std::string request = HexText(buffer);
    const GUID* const adapter = host.adapterGuid();
    if (options.grant)
        host.Require("SetIhvSecuritySettings", static_cast<long>(host.manager().SetIhvSecuritySettings()));
    unsigned long returned = 0;
    host.Require("IhvControl", static_cast<long>(host.manager().IhvControl(
                                   adapter, buffer.data(), static_cast<unsigned long>(buffer.size()), returned)));
    const std::string answer = HexText(buffer.substr(0, returned));
    if (host.json())
        return PrintJson(host.out(), DriverRecord(request, answer));
    host.out() << answer << '\n';
}

} // namespace

void AddSettingsCommands(CommandSet& commands)
{
    const auto settings = std::make_shared<SettingsOptions>();
    commands.Add("settings", "Show the adapter's settings, or switch some on", settings, Settings)
        .Flag("--enable-auto", settings->enableAuto, "Switch automatic connection on")
        .Flag("--enable-background-scan", settings->enableBackgroundScan, "Switch scanning while connected on")
        .Prints("settings", [] { return std::vector{Under("settings", SettingsFacts{})}; })
        .Examples("Let the service connect by itself:\n"
                  "  calvix settings --enable-auto");

    const auto ihv = std::make_shared<IhvOptions>();
    commands.Add("ihv", "Send a vendor's request to the adapter's driver and print its answer", ihv, AskDriver)
        .Text("HEX", ihv->request, "The request's bytes in hexadecimal")
        .Number("--size", ihv->size, "Pad the request with zeros: the answer cannot be longer than the request")
        .Flag("--grant", ihv->grant, "First let ordinary users send requests to drivers (needs an administrator)")
        .Prints("ihv", [] { return std::vector{DriverRecord("", "")}; })
        .Examples("A request of two bytes, an answer of up to eight:\n"
                  "  calvix ihv 01FF --size 8");
}

} // namespace calvix::host
