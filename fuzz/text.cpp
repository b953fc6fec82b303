// Texts, SSIDs, addresses, numbers: the conversions write what they promise and nothing beyond, and what can be turned
// back comes back. Every buffer is of the size that is stated, on the heap, where the sanitizers see a byte too many.

#include "forms/address_text.h"
#include "forms/guid_text.h"
#include "forms/hex_text.h"
#include "forms/utf8.h"
#include "input.h"
#include "promise.h"
#include "targets.h"

#include "simulation/computer.h"
#include "support/fatal_errors.h"
#include "testing/program.h"

#include <cstring>
#include <memory>
#include <vector>

namespace calvix::fuzz
{

namespace
{

using Manager = CWirelessManage;
using ByteVector = std::vector<unsigned char>;

template <typename Character>
bool IsTerminated(const std::vector<Character>& text)
{
    return std::find(text.begin(), text.end(), Character{}) != text.end();
}

ByteVector AsBytes(std::string_view text)
{
    return {text.begin(), text.end()};
}

std::wstring WideText(Input& input)
{
    std::wstring text;
    const std::string_view units = input.Bytes(200);
    for (std::size_t i = 0; i + 1 < units.size(); i += 2)
        text += static_cast<wchar_t>((units[i] & 0xFF) << 8 | (units[i + 1] & 0xFF));
    return text.c_str();
}

void CheckHexRoundTrip(Manager& manager, Input& input)
{
    const ByteVector bytes = AsBytes(input.Bytes(80));
    const int count = static_cast<int>(bytes.size());
    const int digits = 2 * count;
    std::vector<char> fromStart(static_cast<std::size_t>(digits));
    std::vector<char> fromEnd(fromStart.size());
    manager.HexToString(bytes.data(), count, fromStart.data(), digits, true);
    manager.HexToString(bytes.data(), count, fromEnd.data(), digits, false);
    Promise(fromStart == fromEnd, "digits that fill the capacity are the same from both ends");

    ByteVector straight(bytes.size());
    ByteVector reversed(bytes.size());
    manager.StringToHex(fromStart.data(), digits, straight.data(), count, false);
    manager.StringToHex(fromStart.data(), digits, reversed.data(), count, true);
    Promise(straight == bytes, "bytes come back from their digits");
    Promise(std::equal(bytes.rbegin(), bytes.rend(), reversed.begin()), "and the other way round in reverse");
    const auto read = forms::BytesFromHex({fromStart.data(), fromStart.size()});
    Promise(read && *read == bytes, "the digits are hexadecimal");
}

void CheckHexOfAnything(Manager& manager, Input& input)
{
    const bool reversed = input.OneIn(2);
    const std::size_t size = input.Below(40);
    const std::string text(input.Bytes(80));
    ByteVector bytes(size, 0xEE);
    manager.StringToHex(text.data(), static_cast<int>(text.size()), bytes.data(), static_cast<int>(size), reversed);
    const std::size_t pairs = (std::min)((text.size() + 1) / 2, size);
    for (std::size_t i = pairs; i < size; ++i)
        Promise(bytes[reversed ? i : size - 1 - i] == 0, "what no digit reaches is zero");
    std::vector<char> room(size, '#');
    manager.HexToString(AsBytes(text).data(), static_cast<int>(text.size()), room.data(), static_cast<int>(size),
                        false);
    for (const char digit : room)
        Promise(digit == '\0' || std::strchr("0123456789ABCDEF", digit) != nullptr, "the capacity is all digits");
}

void CheckTextAsHex(Manager& manager, Input& input)
{
    std::string text(input.Bytes(80));
    ByteVector digits(2 * text.size());
    const int capacity = static_cast<int>(digits.size());
    manager.StringToHexString(text.data(), static_cast<int>(text.size()), digits.data(), capacity);
    for (char& character : text)
        character = static_cast<char>(character & 0x7F);
    const auto read = forms::BytesFromHex({reinterpret_cast<const char*>(digits.data()), digits.size()});
    Promise(read && *read == AsBytes(text), "text comes back from its digits, without the top bits");
}

/// The room that a stated capacity stands for: a negative one has a place for the terminator.
template <typename Character>
std::vector<Character> RoomFor(int capacity)
{
    return std::vector<Character>(static_cast<std::size_t>(capacity < 0 ? 1 : capacity), Character{'#'});
}

DOT11_SSID SsidOf(Input& input)
{
    DOT11_SSID ssid{};
    const std::uint8_t stated = input.Byte();
    ssid.uSSIDLength = stated == 0xFF ? 0xFFFFFFFFUL : stated;
    const std::string_view bytes = input.Bytes(sizeof(ssid.ucSSID));
    std::memcpy(ssid.ucSSID, bytes.data(), bytes.size());
    return ssid;
}

template <typename Character>
void CheckSsid(Manager& manager, const DOT11_SSID& ssid, int capacity)
{
    constexpr ULONG kLongestTaken = 64;
    std::vector<Character> text = RoomFor<Character>(capacity);
    int result = 0;
    const bool fatal = test::EndsFatally([&] { result = manager.GetSSID(&ssid, text.data(), capacity); });
    Promise(fatal == (ssid.uSSIDLength > kLongestTaken), "an SSID of more than 64 bytes is fatal, no other");
    Promise(result != 1 || capacity == 0 || IsTerminated(text), "the SSID is terminated");
}

void CheckSsids(Manager& manager, Input& input)
{
    const int capacity = static_cast<int>(input.Below(80)) - 2;
    const DOT11_SSID ssid = SsidOf(input);
    CheckSsid<char>(manager, ssid, capacity);
    CheckSsid<wchar_t>(manager, ssid, capacity);
}

/// In UTF-8 nothing is lost on the way.
void CheckSsidInUtf8(Manager& manager, Input& input)
{
    const std::string text(input.Bytes(sizeof(DOT11_SSID::ucSSID)));
    DOT11_SSID ssid{static_cast<ULONG>(text.size()), {}};
    std::memcpy(ssid.ucSSID, text.data(), text.size());
    std::vector<char> narrow(64);
    const int result = manager.GetSSID(&ssid, narrow.data(), static_cast<int>(narrow.size()));
    if (forms::IsUtf8(text))
        Promise(result == 1 && std::strcmp(narrow.data(), text.c_str()) == 0, "an SSID is its own UTF-8 text");
}

void CheckNarrowing(Manager& manager, Input& input)
{
    const std::wstring wide = WideText(input);
    const int capacity = static_cast<int>(input.Below(250));
    std::vector<char> exact = RoomFor<char>(capacity);
    int size = 0;
    const bool fatal = test::EndsFatally([&] { size = manager.WideCharToChar(wide.c_str(), exact.data(), capacity); });
    Promise(fatal || (size >= 1 && size <= capacity && IsTerminated(exact)), "narrow text fits, or ends the program");

    constexpr std::size_t kStated = 1024;
    std::vector<char> stated(kStated, '#');
    if (manager.UnicodeToAnsi(wide.c_str(), stated.data()))
        Promise(IsTerminated(stated), "narrow text is terminated");
}

void CheckAddresses(Manager& manager, Input& input)
{
    unsigned char address[6] = {};
    for (unsigned char& byte : address)
        byte = input.Byte();
    std::vector<char> whole(18, '#');
    manager.FormMAC(address, whole.data());
    const auto read = forms::AddressFromText(whole.data());
    Promise(read && std::equal(read->begin(), read->end(), address), "an address comes back from its text");
    const int capacity = static_cast<int>(input.Below(30)) - 2;
    std::vector<char> cut = RoomFor<char>(capacity);
    manager.GetBSSID(address, cut.data(), capacity);
    const std::size_t kept = cut.empty() ? 0 : (std::min)(cut.size() - 1, whole.size() - 1);
    Promise(cut.empty() || capacity < 0 || (cut[kept] == '\0' && std::memcmp(cut.data(), whole.data(), kept) == 0),
            "a cut address is the beginning of the whole one");
}

void CheckNumbers(Manager& manager, Input& input)
{
    const std::uint32_t number = input.Number();
    const std::uint32_t megahertz = 1001 + number % 9000;
    Promise(manager.GetChannel(megahertz) == manager.GetChannel(megahertz * 1000UL) &&
                manager.GetChannel(megahertz) == manager.GetChannel(megahertz * 10UL),
            "a frequency is the same in every unit");
    manager.GetChannel(number);
    const int rssi = static_cast<std::int32_t>(number);
    const int strength = manager.GetSignalStrength(rssi);
    Promise(strength >= 0 && strength <= 100, "a signal strength is 0 to 100");
    if (rssi > -1000 && rssi < 1000)
        Promise(strength <= manager.GetSignalStrength(rssi + 1), "a stronger signal is no weaker");
    Promise(std::strlen(manager.GetWlanInterfaceState(number)) < 256, "a state's text fits");
    Promise(std::strlen(manager.GetPowerSettingStr(number)) < 128, "a power setting's text fits");
}

void CheckGuids(Manager& manager, Input& input)
{
    GUID guid{};
    auto* const bytes = reinterpret_cast<unsigned char*>(&guid);
    for (std::size_t i = 0; i < sizeof(guid); ++i)
        bytes[i] = input.Byte();
    const auto read = forms::GuidFromText(manager.GUID2String(guid));
    Promise(read && std::memcmp(&*read, &guid, sizeof(guid)) == 0, "a GUID comes back from its text");
    const std::string text(input.Bytes(60));
    const auto other = forms::GuidFromText(text);
    Promise(!other || forms::GuidText(*other).size() == text.size(), "a GUID's text has one length");
}

void CheckReasons(Manager& manager, Input& input)
{
    const std::uint32_t reason = input.OneIn(2) ? input.Number() : 0x20000U + input.Byte();
    const int size = static_cast<int>(input.Below(100));
    std::vector<char> text(static_cast<std::size_t>(size), '#');
    if (manager.ReasonCode2String(reason, text.data(), size) && size != 0)
        Promise(IsTerminated(text), "a reason's text is terminated");
}

void CheckUtf8(Manager&, Input& input)
{
    const std::string text(input.Bytes(200));
    bool illFormed = false;
    const std::wstring wide = forms::WideFromUtf8(text, &illFormed);
    Promise(illFormed == !forms::IsUtf8(text), "what is no UTF-8 is noticed");
    const std::string back = forms::Utf8FromWide(wide);
    Promise(illFormed || back == text, "UTF-8 comes back from wide text");
    Promise(forms::IsUtf8(back) && forms::WideFromUtf8(back) == wide, "what comes out is UTF-8");
    const auto hex = forms::BytesFromHex(text);
    Promise(!hex || forms::HexText(*hex).size() == text.size(), "hexadecimal digits come in pairs");
    const std::vector<std::uint8_t> name = simulation::FriendlyName(back);
    const auto friendly = simulation::TextOfFriendlyName(name);
    Promise(back.find('\0') != std::string::npos || (friendly && *friendly == back), "a scheme's name comes back");
}

/// The platform's own conversions, with any code page, flags and lengths.
void CheckPlatformText(Manager&, Input& input)
{
    constexpr UINT kCodePages[] = {0, 1, 3, 42, 437, 932, 936, 949, 950, 1250, 1252, 65000, 65001};
    const UINT codePage = input.OneOf(kCodePages);
    const DWORD flags = input.OneIn(4) ? input.Byte() : 0;
    const int room = static_cast<int>(input.Below(100));
    const std::string narrow(input.Bytes(100));
    std::vector<wchar_t> wide(static_cast<std::size_t>(room));
    platform::Text& text = platform::CurrentPlatform().text();
    const int length = static_cast<int>(narrow.size());
    const int size = text.MultiByteToWideChar(codePage, flags, narrow.data(), length, wide.data(), room);
    Promise(room == 0 || size <= room, "decoded text fits");
    std::vector<char> again(static_cast<std::size_t>(room));
    const int filled = room == 0 ? 0 : size;
    const int encoded =
        text.WideCharToMultiByte(codePage, flags, wide.data(), filled, again.data(), room, nullptr, nullptr);
    Promise(room == 0 || encoded <= room, "encoded text fits");
}

simulation::Computer& ComputerWith(std::uint32_t codePage)
{
    static std::map<std::uint32_t, std::unique_ptr<simulation::Computer>> computers;
    std::unique_ptr<simulation::Computer>& computer = computers[codePage];
    if (computer == nullptr)
    {
        simulation::Scenario scenario;
        scenario.codePage = codePage;
        computer = std::make_unique<simulation::Computer>(scenario);
    }
    return *computer;
}

constexpr std::uint32_t kUtf8 = 65001;

using Check = void (*)(Manager& manager, Input& input);
// In the order of the seeds' bytes.
constexpr Check kChecks[] = {CheckHexRoundTrip, CheckHexOfAnything, CheckTextAsHex, CheckSsids,
                             CheckSsidInUtf8,   CheckNarrowing,     CheckAddresses, CheckNumbers,
                             CheckGuids,        CheckReasons,       CheckUtf8,      CheckPlatformText};

} // namespace

void RunText(const std::uint8_t* data, std::size_t size)
{
    constexpr std::uint32_t kCodePages[] = {1252, 932, 936, kUtf8};
    Input input(data, size);
    const std::uint32_t codePage = input.OneOf(kCodePages);
    const test::FatalErrorsCaught caught;
    test::Program program(ComputerWith(codePage));
    while (!input.IsEmpty())
    {
        const Check check = input.OneOf(kChecks);
        const bool applies = check != CheckSsidInUtf8 || codePage == kUtf8;
        (applies ? check : CheckSsids)(program.Manager(), input);
    }
}

} // namespace calvix::fuzz
