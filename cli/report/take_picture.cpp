#include "report/take_picture.h"

#include "host/service_view.h"
#include "output/text_forms.h"
#include "view/candidates.h"
#include "view/describe.h"
#include "view/profiles.h"
#include "view/status.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

/// Carries out `action`, and notes the failure that ends it.
template <typename Action>
bool TakePart(ReportFacts& report, const char* part, Action action)
{
    try
    {
        action();
        return true;
    }
    catch (const Failure& failure)
    {
        report.missing.push_back({part, failure.report()});
        return false;
    }
}

void TakeAdapters(Host& host, ReportFacts& report)
{
    host.adapter();
    for (const WLAN_INTERFACE_INFO& info : host.adapters())
        report.adapters.push_back(DescribeAdapter(info, static_cast<unsigned>(report.adapters.size() + 1)));
}

std::string BssidInUse(const ReportFacts& report)
{
    return report.status && report.status->connection ? report.status->connection->bssid : std::string();
}

/// Numbers the access points and their networks, the strongest first.
void Arrange(std::vector<AirAccessPoint>& accessPoints)
{
    const auto strongerFirst = [](const AirAccessPoint& left, const AirAccessPoint& right)
    {
        if (left.inView != right.inView)
            return left.inView;
        return left.facts.rssi != right.facts.rssi ? left.facts.rssi > right.facts.rssi
                                                   : left.facts.bssid < right.facts.bssid;
    };
    std::stable_sort(accessPoints.begin(), accessPoints.end(), strongerFirst);
    std::vector<std::string> networks;
    unsigned number = 0;
    for (AirAccessPoint& point : accessPoints)
    {
        point.number = ++number;
        if (point.facts.ssid.hex.empty())
            continue;
        const auto known = std::find(networks.begin(), networks.end(), point.facts.ssid.hex);
        point.network = static_cast<unsigned>(known - networks.begin());
        if (known == networks.end())
            networks.push_back(point.facts.ssid.hex);
    }
}

/// What was heard while the signal was followed, and is not any more.
void AddThoseThatLeft(const std::vector<AirAccessPoint>& heard, std::vector<AirAccessPoint>& accessPoints)
{
    for (AirAccessPoint point : heard)
    {
        const auto isSame = [&point](const AirAccessPoint& other) { return other.facts.bssid == point.facts.bssid; };
        if (std::any_of(accessPoints.begin(), accessPoints.end(), isSame))
            continue;
        point.inView = false;
        accessPoints.push_back(point);
    }
}

void TakeAccessPoints(Host& host, ReportFacts& report)
{
    report.accessPoints = ListAir(host);
    report.airKnown = true;
    std::uint64_t newest = 0;
    for (AirAccessPoint& point : report.accessPoints)
    {
        point.inUse = point.facts.bssid == BssidInUse(report);
        newest = (std::max)(newest, point.hostTime);
    }
    if (newest != 0)
        report.heardAt = MomentText(newest);
    AddThoseThatLeft(report.history.heard, report.accessPoints);
    Arrange(report.accessPoints);
}

} // namespace

std::vector<AirAccessPoint> ListAir(Host& host)
{
    std::vector<AirAccessPoint> air;
    for (const HeardAccessPoint& heard : host.service().AccessPoints(host.adapterGuid()))
    {
        AirAccessPoint point;
        point.facts = DescribeAccessPoint(heard.entry);
        point.beacon = ReadBeacon(heard.entry, heard.elements);
        point.hostTime = heard.entry.ullHostTimestamp;
        air.push_back(point);
    }
    return air;
}

std::vector<AirAccessPoint> ArrangedAir(Host& host)
{
    std::vector<AirAccessPoint> air = ListAir(host);
    const auto connection = host.service().Connection(host.adapterGuid());
    for (AirAccessPoint& point : air)
        point.inUse = connection && point.facts.bssid == MacText(connection->wlanAssociationAttributes.dot11Bssid);
    Arrange(air);
    return air;
}

ReportFacts TakePicture(Host& host, const PictureOptions& options)
{
    ReportFacts report;
    // Without an adapter there is nothing to ask of.
    if (!TakePart(report, "the adapters", [&] { TakeAdapters(host, report); }))
        return report;
    if (options.seconds > 0)
        TakePart(report, "the signal over time", [&] { report.history = FollowSignal(host, options); });
    TakePart(report, "the connection", [&] { report.status = ReadStatus(host); });
    TakePart(report, "the access points", [&] { TakeAccessPoints(host, report); });
    TakePart(report, "the stored profiles", [&] { report.profiles = ReadProfiles(host); });
    TakePart(report, "the ranking", [&] { report.candidates = BestCandidates(host); });
    TakePart(report, "the automatic methods", [&] { report.choices = RehearseChoices(host); });
    return report;
}

} // namespace calvix::host
