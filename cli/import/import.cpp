#include "import/import.h"

#include "files/file_path.h"
#include "import/captured_air.h"
#include "import/made_profile.h"
#include "output/text_forms.h"

#include <algorithm>
#include <array>

namespace calvix::host
{

namespace
{

using simulation::AccessPoint;
using simulation::AdapterDescription;
using simulation::StoredProfile;

/// The PHY types in the order of their standards; an adapter knows those before its newest.
constexpr std::array<std::uint32_t, 7> kPhyTypes{5, 4, 6, 7, 8, 10, 11};

/// The index of a PHY type, 0 for any other.
std::size_t Generation(std::uint32_t phyType)
{
    const auto found = std::find(kPhyTypes.begin(), kPhyTypes.end(), phyType);
    return found == kPhyTypes.end() ? 0 : static_cast<std::size_t>(found - kPhyTypes.begin());
}

/// As many as a scenario holds.
constexpr std::size_t kMostAdapters = 64;

std::vector<CapturedInterface> AdaptersOf(const Captures& captures)
{
    if (captures.interfaces)
        return captures.interfaces->adapters;
    std::vector<CapturedInterface> madeUp;
    if (captures.networks)
        for (const std::string& name : captures.networks->adapterNames)
            if (madeUp.size() < kMostAdapters)
                madeUp.push_back(MadeUpInterface(name, madeUp.size()));
    if (madeUp.empty())
        madeUp.push_back(MadeUpInterface("", 0));
    if (captures.networks && !captures.networks->connections.empty())
        madeUp.front().connection = captures.networks->connections.front();
    return madeUp;
}

/// Index into `adapters`, or their number where the file's name names none.
std::size_t AdapterOfFile(const std::string& fileName, const std::vector<CapturedInterface>& adapters)
{
    std::size_t best = adapters.size();
    for (std::size_t i = 0; i < adapters.size(); ++i)
    {
        const bool longer = best == adapters.size() || adapters[i].name.size() > adapters[best].name.size();
        if (!adapters[i].name.empty() && fileName.starts_with(adapters[i].name + "-") && longer)
            best = i;
    }
    return best;
}

/// A file's name without its folder, which is private.
std::string ShortName(const std::string& path)
{
    return VisibleText(PathText(PathOf(path).filename()));
}

class Assembly
{
public:
    Assembly(const Captures& captures, bool makeProfiles) : m_captures(captures), m_captured(AdaptersOf(captures))
    {
        m_result.warnings = captures.warnings;
        if (captures.networks)
            m_result.scenario.accessPoints = AirOf(captures.networks->accessPoints, m_result);
        m_result.scenario.description = Description();
        AddAdapters();
        for (const ExportedProfile& profile : captures.profiles)
            AddExported(profile);
        for (std::size_t i = 0; i < m_captured.size(); ++i)
            if (m_captured[i].connection)
                AddConnection(i, *m_captured[i].connection);
        for (std::size_t i = 0; makeProfiles && i < m_captured.size(); ++i)
            MakeProfiles(i);
    }

    MadeScenario result() { return std::move(m_result); }

private:
    std::vector<AccessPoint>& air() { return m_result.scenario.accessPoints; }
    std::vector<StoredProfile>& ProfilesOf(std::size_t index) { return m_result.scenario.adapters[index].profiles; }

    std::string Description() const
    {
        std::string sources = m_captures.networks ? ShortName(m_captures.networks->source) : "";
        if (m_captures.interfaces)
            sources += (sources.empty() ? "" : " and ") + ShortName(m_captures.interfaces->source);
        return "Imported from " + (sources.empty() ? "exported profiles" : sources);
    }

    /// Drivers report only PHY types that they support, so every type that is heard is one of the adapter's.
    std::size_t NewestGeneration(const CapturedInterface& captured)
    {
        constexpr std::uint32_t kLeast = 7;
        std::size_t newest = Generation(kLeast);
        for (const AccessPoint& accessPoint : air())
            newest = std::max(newest, Generation(accessPoint.phyType));
        return captured.connection ? std::max(newest, Generation(captured.connection->accessPoint.phyType)) : newest;
    }

    void AddAdapters()
    {
        for (const CapturedInterface& captured : m_captured)
        {
            AdapterDescription described;
            described.guid = captured.guid;
            described.description = captured.description;
            described.address = captured.address;
            described.phys.clear();
            for (std::size_t i = 0; i <= NewestGeneration(captured); ++i)
                described.phys.push_back({kPhyTypes[i], captured.software, captured.hardware});
            m_result.scenario.adapters.push_back(std::move(described));
        }
    }

    void AddExported(const ExportedProfile& profile)
    {
        const std::size_t only = AdapterOfFile(profile.fileName, m_captured);
        for (std::size_t i = 0; i < m_captured.size(); ++i)
        {
            if (only != m_captured.size() && only != i)
                continue;
            if (FindProfile(ProfilesOf(i), profile.name) == nullptr)
                ProfilesOf(i).push_back({profile.xml});
            else
                m_result.Warn(profile.fileName + ": another profile has the name \"" + profile.name +
                              "\"; this one is left out");
        }
    }

    /// Null when no profile can be made for the network.
    const StoredProfile*
    AddMadeUp(std::size_t index, const std::string& name, const AccessPoint& accessPoint, bool automatic)
    {
        if (std::optional<StoredProfile> made = MakeProfile(name, accessPoint, automatic))
            return &ProfilesOf(index).emplace_back(std::move(*made));
        m_result.Warn("the profile \"" + name + "\" cannot be made: no profile has " + accessPoint.authentication +
                      " with " + accessPoint.encryption);
        return nullptr;
    }

    void AddConnection(std::size_t index, const CapturedConnection& connection)
    {
        const AccessPoint* accessPoint = AccessPointOf(connection);
        const StoredProfile* profile = FindProfile(ProfilesOf(index), connection.profile);
        if (profile == nullptr)
            profile = AddMadeUp(index, connection.profile,
                                accessPoint != nullptr ? *accessPoint : connection.accessPoint, connection.automatic);
        if (accessPoint == nullptr)
            WarnOfLostConnection(index, "the captured networks do not list its access point");
        else if (profile == nullptr || !FitsProfile(*profile, *accessPoint))
            WarnOfLostConnection(index, "its profile is for another kind of network");
        else
            m_result.scenario.adapters[index].connection = simulation::Connection{
                connection.profile, accessPoint->bssid, connection.receiveKbps, connection.transmitKbps};
    }

    void WarnOfLostConnection(std::size_t index, const std::string& why)
    {
        const CapturedConnection& connection = *m_captured[index].connection;
        const std::string& name = m_captured[index].name;
        m_result.Warn("the connection " + (name.empty() ? "" : "of \"" + name + "\" ") + "to \"" + connection.ssid +
                      "\" is left out: " + why);
    }

    /// The air's access point that an adapter was connected to, or null. A hidden one gets the name that the connection
    /// knows. Without a list of networks, the connected access points are all that is known of the air.
    const AccessPoint* AccessPointOf(const CapturedConnection& connection)
    {
        AccessPoint* found = FindAccessPoint(air(), connection.accessPoint.bssid);
        if (found == nullptr && !m_captures.networks)
            return &air().emplace_back(connection.accessPoint);
        if (found != nullptr && found->ssid.empty())
            found->ssid = connection.accessPoint.ssid;
        return found != nullptr && found->ssid == connection.accessPoint.ssid ? found : nullptr;
    }

    void MakeProfiles(std::size_t index)
    {
        for (const AccessPoint& accessPoint : air())
        {
            const std::vector<StoredProfile>& known = ProfilesOf(index);
            const std::string name(accessPoint.ssid.begin(), accessPoint.ssid.end());
            const auto fits = [&](const StoredProfile& profile) { return FitsProfile(profile, accessPoint); };
            const bool has = FindProfile(known, name) != nullptr || std::any_of(known.begin(), known.end(), fits);
            if (!accessPoint.hidden && !has)
                AddMadeUp(index, name, accessPoint, true);
        }
    }

    const Captures& m_captures;
    std::vector<CapturedInterface> m_captured;
    MadeScenario m_result;
};

} // namespace

MadeScenario AssembleScenario(const Captures& captures, bool makeProfiles)
{
    return Assembly(captures, makeProfiles).result();
}

} // namespace calvix::host
