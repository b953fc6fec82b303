#include "autoconnect/profile_network_match.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace calvix::test::profile_network_match_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

template <typename Record>
void SetName(Record& record, const std::wstring& name)
{
    std::copy_n(name.c_str(), (std::min)(name.size() + 1, std::size_t{WLAN_MAX_NAME_LENGTH}), record.strProfileName);
}

WLAN_PROFILE_INFO Profile(const std::wstring& name)
{
    WLAN_PROFILE_INFO profile{};
    SetName(profile, name);
    return profile;
}

/// Available networks of these profile names, as one list of the service.
class Networks
{
public:
    explicit Networks(const std::vector<std::wstring>& names) : m_lists(names.size() + 1, WLAN_AVAILABLE_NETWORK_LIST{})
    {
        for (const std::wstring& name : names)
            SetName(*(m_lists[0].Network + m_lists[0].dwNumberOfItems++), name);
    }

    const WLAN_AVAILABLE_NETWORK_LIST& List() const { return m_lists[0]; }

    /// Places in the list of the networks that match.
    std::vector<std::ptrdiff_t> PlacesOf(const std::wstring& profile) const
    {
        NetworksByProfile networks;
        EXPECT_EQ(0u, networks.Take(List()));
        std::vector<std::ptrdiff_t> places;
        for (const WLAN_AVAILABLE_NETWORK* network : networks.Of(Profile(profile)))
            places.push_back(network - List().Network);
        return places;
    }

private:
    std::vector<WLAN_AVAILABLE_NETWORK_LIST> m_lists;
};

} // namespace

TEST(NetworksByProfileTest, NetworksKeepTheirListOrder)
{
    const Networks networks({L"A", L"", L"B", L"A", L"", L"A"});
    EXPECT_THAT(networks.PlacesOf(L"A"), ElementsAre(0, 3, 5));
    EXPECT_THAT(networks.PlacesOf(L"B"), ElementsAre(2));
    EXPECT_THAT(networks.PlacesOf(L"C"), IsEmpty());
}

TEST(NetworksByProfileTest, NamesMatchExactly)
{
    const Networks networks({L"Net", L"net", L"Net ", L"Ne"});
    EXPECT_THAT(networks.PlacesOf(L"Net"), ElementsAre(0));
    EXPECT_THAT(networks.PlacesOf(L"net"), ElementsAre(1));
    EXPECT_THAT(networks.PlacesOf(L"NET"), IsEmpty());
}

TEST(NetworksByProfileTest, TextAfterTheTerminatorIsIgnored)
{
    const Networks networks({std::wstring(L"Net\0rest", 8)});
    EXPECT_THAT(networks.PlacesOf(std::wstring(L"Net\0else", 8)), ElementsAre(0));
}

TEST(NetworksByProfileTest, ANameThatFillsItsRecordNeedsNoTerminator)
{
    const std::wstring full(WLAN_MAX_NAME_LENGTH, L'n');
    const Networks networks({full, full.substr(1)});
    EXPECT_THAT(networks.PlacesOf(full), ElementsAre(0));
    EXPECT_THAT(networks.PlacesOf(full.substr(1)), ElementsAre(1));
}

TEST(NetworksByProfileTest, ProfilesMayBeAskedForInAnyOrderAndWalksMayBeLeft)
{
    const Networks networks({L"A", L"B", L"A", L"C", L"B", L"A"});
    NetworksByProfile byProfile;
    ASSERT_EQ(0u, byProfile.Take(networks.List()));
    const auto placesOf = [&](const std::wstring& name, std::size_t most)
    {
        std::vector<std::ptrdiff_t> places;
        for (const WLAN_AVAILABLE_NETWORK* network : byProfile.Of(Profile(name)))
        {
            places.push_back(network - networks.List().Network);
            if (places.size() == most)
                break;
        }
        return places;
    };
    EXPECT_THAT(placesOf(L"A", 1), ElementsAre(0));
    EXPECT_THAT(placesOf(L"C", 9), ElementsAre(3));
    EXPECT_THAT(placesOf(L"B", 1), ElementsAre(1));
    EXPECT_THAT(placesOf(L"A", 9), ElementsAre(0, 2, 5));
    EXPECT_THAT(placesOf(L"D", 9), IsEmpty());
    EXPECT_THAT(placesOf(L"B", 9), ElementsAre(1, 4));
}

TEST(NetworksByProfileTest, ManyNamesAreDistinguished)
{
    std::vector<std::wstring> names;
    for (int index = 0; index < 3000; ++index)
        names.push_back(L"Network " + std::to_wstring(index % 1500));
    const Networks networks(names);
    NetworksByProfile byProfile;
    ASSERT_EQ(0u, byProfile.Take(networks.List()));
    for (int index = 1499; index >= 0; --index)
    {
        std::vector<std::ptrdiff_t> places;
        for (const WLAN_AVAILABLE_NETWORK* network : byProfile.Of(Profile(L"Network " + std::to_wstring(index))))
            places.push_back(network - networks.List().Network);
        ASSERT_THAT(places, ElementsAre(index, index + 1500));
    }
}

TEST(NetworksByProfileTest, AnEmptyListMatchesNothing)
{
    EXPECT_THAT(Networks({}).PlacesOf(L"A"), IsEmpty());
}

} // namespace calvix::test::profile_network_match_test
