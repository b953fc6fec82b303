#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace calvix::simulation
{

/// The part of a scenario that describes the computer itself: power, privileges, processes and the internet. Texts are
/// UTF-8.

/// A legacy power scheme, which has a number. What its policy says beyond this is the platform's default.
struct LegacyPowerScheme
{
    std::uint32_t id = 0;
    std::string name{};
    std::uint32_t idleTimeoutAc = 1800; ///< seconds without use until the computer sleeps, 0: never
    std::uint32_t idleTimeoutDc = 900;
    std::uint32_t videoTimeoutAc = 600; ///< seconds without use until the display is switched off
    std::uint32_t videoTimeoutDc = 300;

    bool operator==(const LegacyPowerScheme&) const = default;
};

/// One setting of a power scheme; the GUIDs are written with braces.
struct PowerValue
{
    std::string subgroup;
    std::string setting;
    std::uint32_t ac = 0;
    std::uint32_t dc = 0;

    bool operator==(const PowerValue&) const = default;
};

/// A power scheme of the present kind, which has a GUID.
struct PowerScheme
{
    std::string guid;                 ///< "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}"
    std::vector<std::uint8_t> name{}; ///< friendly name as stored: what a program wrote; see FriendlyName
    std::vector<PowerValue> values{};

    bool operator==(const PowerScheme&) const = default;
};

/// A friendly name as the platform's own schemes have it: terminated UTF-16, and back; nothing for bytes that are not
/// that.
std::vector<std::uint8_t> FriendlyName(const std::string& text);
std::optional<std::string> TextOfFriendlyName(const std::vector<std::uint8_t>& bytes);

/// What every computer comes with: "Balanced", which is active, "High performance" and "Power saver".
std::vector<PowerScheme> DefaultPowerSchemes();
std::vector<LegacyPowerScheme> DefaultLegacyPowerSchemes();

struct PowerDescription
{
    bool suspendAllowed = true;
    bool hibernateAllowed = true;
    bool shutdownAllowed = true;
    bool modernStandby = false; ///< "always on, always connected"
    bool battery = false;

    std::uint64_t upMilliseconds = 0; ///< how long the computer has been up when the scenario begins
    std::uint64_t lastSleepTime = 0;  ///< in units of 100 ns since it came up, 0: has not slept since
    std::uint64_t lastWakeTime = 0;
    std::uint32_t sleepMilliseconds = 60'000; ///< how long it sleeps when a program puts it to sleep
    bool resumesAutomatically = false;        ///< whether not its user but a timer or a device wakes it, last time, too

    std::vector<LegacyPowerScheme> legacySchemes = DefaultLegacyPowerSchemes();
    std::optional<std::uint32_t> activeLegacyScheme = 0; ///< none: reading the active one fails
    std::vector<PowerScheme> schemes = DefaultPowerSchemes();
    std::optional<std::string> activeScheme = DefaultPowerSchemes().front().guid;
    std::uint32_t enumerationError = 0; ///< if not 0, listing the schemes fails with it, although they are there

    bool operator==(const PowerDescription&) const = default;
};

/// A privilege that the programs' token holds.
struct Privilege
{
    std::string name; ///< "SeShutdownPrivilege"
    bool enabled = false;

    bool operator==(const Privilege&) const = default;
};

/// Those of every user.
std::vector<Privilege> DefaultPrivileges();

/// A program that is installed.
struct Program
{
    std::string path;
    std::optional<std::uint32_t> milliseconds = 1000; ///< how long it runs; none: until it is ended
    std::uint32_t exitCode = 0;

    bool operator==(const Program&) const = default;
};

/// A process that runs, beside the program that uses the computer.
struct RunningProcess
{
    std::uint32_t id = 0;
    std::string path{};
    std::optional<std::uint32_t> milliseconds{}; ///< how long it will still run; none: until it is ended
    std::uint32_t exitCode = 0;
    bool foreign = false; ///< of another user: only SeDebugPrivilege opens it

    bool operator==(const RunningProcess&) const = default;
};

/// What becomes of an attempt to reach something on the internet.
enum class InternetAccess
{
    reachable,
    unresolved, ///< names cannot be resolved
    unreachable ///< nothing answers
};

} // namespace calvix::simulation
