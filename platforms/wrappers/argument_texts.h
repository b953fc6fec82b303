#pragma once

#include "platform/platform.h"
#include "wrappers/handle_numbers.h"

#include <string>
#include <string_view>

namespace calvix::wrappers
{

/// How the arguments of platform operations are described: each type names an argument and tells its text when asked.
/// What an operation only writes to is a Pointer; what it reads is told by its content.
namespace argument
{

struct Pointer
{
    std::string_view name;
    const void* value;
    std::string Text(HandleNumbers& numbers) const;
};

struct Function
{
    std::string_view name;
    bool given;
    std::string Text(HandleNumbers& numbers) const;
};

struct Number
{
    template <typename Integer>
    Number(std::string_view itsName, Integer itsValue) : name(itsName), value(static_cast<long long>(itsValue))
    {
    }
    std::string_view name;
    long long value;
    std::string Text(HandleNumbers& numbers) const;
};

struct Flag
{
    std::string_view name;
    int value;
    std::string Text(HandleNumbers& numbers) const;
};

/// A number that the operation both reads and writes.
struct NumberAt
{
    std::string_view name;
    const DWORD* value;
    std::string Text(HandleNumbers& numbers) const;
};

struct SchemeAt
{
    std::string_view name;
    const UINT* value;
    std::string Text(HandleNumbers& numbers) const;
};

struct Handle
{
    std::string_view name;
    HandleFamily family;
    const void* value;
    std::string Text(HandleNumbers& numbers) const;
};

struct Guid
{
    std::string_view name;
    const GUID* value;
    std::string Text(HandleNumbers& numbers) const;
};

struct Ssid
{
    std::string_view name;
    const DOT11_SSID* value;
    std::string Text(HandleNumbers& numbers) const;
};

/// Text; a negative length means that it is terminated.
struct Narrow
{
    std::string_view name;
    const char* value;
    int length = -1;
    std::string Text(HandleNumbers& numbers) const;
};

struct Wide
{
    std::string_view name;
    const wchar_t* value;
    int length = -1;
    std::string Text(HandleNumbers& numbers) const;
};

struct BssType
{
    std::string_view name;
    DOT11_BSS_TYPE value;
    std::string Text(HandleNumbers& numbers) const;
};

struct Opcode
{
    std::string_view name;
    WLAN_INTF_OPCODE value;
    std::string Text(HandleNumbers& numbers) const;
};

struct AutoConfigOpcode
{
    std::string_view name;
    WLAN_AUTOCONF_OPCODE value;
    std::string Text(HandleNumbers& numbers) const;
};

struct PowerLevel
{
    std::string_view name;
    POWER_INFORMATION_LEVEL value;
    std::string Text(HandleNumbers& numbers) const;
};

/// A record that belongs to an opcode or an information level; no name where none is known.
struct RecordShape
{
    std::string_view name;
    std::size_t size = 0;
};
RecordShape QueriedRecord(WLAN_INTF_OPCODE opcode);
RecordShape SetRecord(WLAN_INTF_OPCODE opcode);
RecordShape QueriedRecord(WLAN_AUTOCONF_OPCODE opcode);
RecordShape QueriedRecord(POWER_INFORMATION_LEVEL level);

/// A size, told as that of the record when it is that: sizes differ between Windows and other systems.
struct Size
{
    std::string_view name;
    DWORD value;
    RecordShape record;
    std::string Text(HandleNumbers& numbers) const;
};

struct SizeAt
{
    std::string_view name;
    const DWORD* value;
    RecordShape record;
    std::string Text(HandleNumbers& numbers) const;
};

/// What WlanSetInterface is given.
struct InterfaceData
{
    std::string_view name;
    WLAN_INTF_OPCODE opcode;
    DWORD size;
    const void* value;
    std::string Text(HandleNumbers& numbers) const;
};

struct ConnectionParameters
{
    std::string_view name;
    const WLAN_CONNECTION_PARAMETERS* value;
    std::string Text(HandleNumbers& numbers) const;
};

struct Startup
{
    std::string_view name;
    const STARTUPINFOA* value;
    std::string Text(HandleNumbers& numbers) const;
};

struct Privileges
{
    std::string_view name;
    const TOKEN_PRIVILEGES* value;
    std::string Text(HandleNumbers& numbers) const;
};

struct FileTime
{
    std::string_view name;
    const FILETIME* value;
    std::string Text(HandleNumbers& numbers) const;
};

} // namespace argument

} // namespace calvix::wrappers
