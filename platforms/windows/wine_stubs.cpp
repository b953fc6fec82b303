#include "windows/wine_stubs.h"

#include <cstdint>
#include <cstring>

namespace calvix::windows
{

namespace
{

bool SystemIsWine()
{
    static const bool isWine = ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    return isWine;
}

constexpr unsigned char kReserveStackAndLoadLibraryName[] = {0x48, 0x83, 0xEC, 0x28, 0x48, 0x8D, 0x0D};
constexpr unsigned char kLoadOwnName[] = {0x48, 0x8D, 0x15};
constexpr unsigned char kCall = 0xE8;
constexpr std::size_t kLoadOwnNameAt = sizeof(kReserveStackAndLoadLibraryName) + sizeof(std::int32_t);
constexpr std::size_t kOwnNameDistanceAt = kLoadOwnNameAt + sizeof(kLoadOwnName);
constexpr std::size_t kCallAt = kOwnNameDistanceAt + sizeof(std::int32_t);

} // namespace

// Only its code identifies a stub: it loads the name of its library and, as nothing else does, its own, and calls
// what ends the program.
bool IsWineStub(FARPROC function, const char* name)
{
    if (!SystemIsWine())
        return false;
    const auto* const code = reinterpret_cast<const unsigned char*>(function);
    if (std::memcmp(code, kReserveStackAndLoadLibraryName, sizeof(kReserveStackAndLoadLibraryName)) != 0 ||
        std::memcmp(code + kLoadOwnNameAt, kLoadOwnName, sizeof(kLoadOwnName)) != 0 || code[kCallAt] != kCall)
        return false;
    std::int32_t distance = 0;
    std::memcpy(&distance, code + kOwnNameDistanceAt, sizeof(distance));
    return std::strcmp(reinterpret_cast<const char*>(code + kCallAt) + distance, name) == 0;
}

} // namespace calvix::windows
