#pragma once

#include "dropin/news.h"

#include <calvix/wireless_manage.h>

#include <filesystem>
#include <iosfwd>
#include <string>

namespace calvix::test
{

/// The library, as a program gets it.
inline CWirelessManage& Manager()
{
    return *CWirelessManage::Get();
}

/// Where this program lies, with everything that is shipped beside it.
std::filesystem::path OwnFolder();

/// The notifications that the library passes on while this object lives; it passes them on to one at a time.
class LibraryNews final : public News
{
public:
    LibraryNews();
    ~LibraryNews();
    LibraryNews(const LibraryNews&) = delete;
    LibraryNews& operator=(const LibraryNews&) = delete;
};

/// The GUID of the computer's first adapter, zeroes where it has none.
GUID FirstAdapter();

/// The network, profile and access point of the adapter's connection; empty where there is none.
struct Place
{
    std::string ssid;
    std::wstring profile;
    std::string bssid;

    bool operator==(const Place&) const = default;
};
void PrintTo(const Place& place, std::ostream* stream);

Place WhereConnected(const GUID& adapter);

/// Waits until the connection that was asked for after `from` is made, or given up; where the adapter is then.
Place ConnectedAfter(const News& news, std::size_t from, const GUID& adapter);

DOT11_SSID Ssid(const std::string& text);

} // namespace calvix::test
