#include "operations/records.h"
#include "wrappers/recording/given_arguments.h"
#include "wrappers/recording/handed_out.h"

#include <cstring>

namespace calvix::recording
{

using wrappers::HandleFamily;

namespace
{

using IsWow64Function = BOOL(WINAPI*)(HANDLE, BOOL*);

BOOL WINAPI SayWow64(HANDLE, BOOL* wow64)
{
    *wow64 = TRUE;
    return TRUE;
}

BOOL WINAPI SayNoWow64(HANDLE, BOOL* wow64)
{
    *wow64 = FALSE;
    return TRUE;
}

enum class Function
{
    none,
    saysNo,
    saysYes,
    other
};

Function KindOf(FARPROC address, const char* name, HANDLE process)
{
    if (address == nullptr)
        return Function::none;
    if (std::string_view(name) != "IsWow64Process")
        return Function::other;
    BOOL wow64 = FALSE;
    reinterpret_cast<IsWow64Function>(reinterpret_cast<void (*)()>(address))(process, &wow64);
    return wow64 != FALSE ? Function::saysYes : Function::saysNo;
}

FARPROC FunctionOf(Function kind)
{
    const auto address = [](IsWow64Function function)
    { return reinterpret_cast<FARPROC>(reinterpret_cast<void (*)()>(function)); };
    if (kind == Function::saysYes)
        return address(SayWow64);
    return kind == Function::saysNo ? address(SayNoWow64) : nullptr;
}

void GiveBssids(Fields& fields, const DOT11_BSSID_LIST* list)
{
    if (list == nullptr)
        return;
    const auto* const first = reinterpret_cast<const UCHAR*>(list->BSSIDs);
    const std::size_t count = fields.Count("bssids", list->uNumOfEntries);
    for (std::size_t i = 0; i < count; ++i)
    {
        UCHAR address[6];
        std::memcpy(address, first + i * sizeof address, sizeof address);
        fields.Element("bssids", i).Address("address", address);
    }
}

} // namespace

void GiveFields(Fields& fields, const WLAN_CONNECTION_PARAMETERS* parameters)
{
    if (parameters == nullptr)
        return;
    fields.Given("mode", parameters->wlanConnectionMode);
    // A temporary profile comes as its text.
    if (parameters->wlanConnectionMode == wlan_connection_mode_profile)
        fields.GivenName("profile", parameters->strProfile);
    else
        fields.GivenText("profile", parameters->strProfile);
    fields.GivenRecord("ssid", static_cast<const DOT11_SSID*>(parameters->pDot11Ssid));
    GiveBssids(fields, parameters->pDesiredBssidList);
    fields.Given("bssType", parameters->dot11BssType);
    fields.Given("flags", parameters->dwFlags);
}

void GiveFields(Fields& fields, const STARTUPINFOA* startup)
{
    if (startup == nullptr)
        return;
    fields.Given("startupFlags", startup->dwFlags);
    fields.Given("showWindow", startup->wShowWindow);
}

void GiveFields(Fields& fields, const TOKEN_PRIVILEGES* privileges)
{
    fields.Given("privileges", privileges != nullptr ? privileges->PrivilegeCount : 0);
    if (privileges == nullptr || privileges->PrivilegeCount == 0)
        return;
    fields.Given("luid", privileges->Privileges[0].Luid.LowPart);
    fields.Given("attributes", privileges->Privileges[0].Attributes);
}

void GiveFields(Fields& fields, const FILETIME* time)
{
    fields.Given("low", time != nullptr ? time->dwLowDateTime : 0);
    fields.Given("high", time != nullptr ? time->dwHighDateTime : 0);
}

void DescribeFields(Fields& fields, SERVICE_STATUS& status)
{
    fields.Number("dwServiceType", status.dwServiceType);
    fields.Number("dwCurrentState", status.dwCurrentState);
    fields.Number("dwControlsAccepted", status.dwControlsAccepted);
    fields.Number("dwWin32ExitCode", status.dwWin32ExitCode);
    fields.Number("dwServiceSpecificExitCode", status.dwServiceSpecificExitCode);
    fields.Number("dwCheckPoint", status.dwCheckPoint);
    fields.Number("dwWaitHint", status.dwWaitHint);
}

void DescribeFields(Fields& fields, PROCESS_INFORMATION& information)
{
    fields.HandedOut("process", HandleFamily::object, information.hProcess);
    fields.HandedOut("thread", HandleFamily::object, information.hThread);
    fields.Number("processId", information.dwProcessId);
    fields.Number("threadId", information.dwThreadId);
}

void DescribeFields(Fields& fields, LUID& luid)
{
    fields.Number("low", luid.LowPart);
    fields.Number("high", luid.HighPart);
}

void DescribeFields(Fields& fields, TOKEN_PRIVILEGES& previous)
{
    fields.Number("previousCount", previous.PrivilegeCount);
    if (previous.PrivilegeCount == 0)
        return;
    DescribeFields(fields, previous.Privileges[0].Luid);
    fields.Number("attributes", previous.Privileges[0].Attributes);
}

void DescribeFields(Fields& fields, SYSTEMTIME& time)
{
    fields.Number("wYear", time.wYear);
    fields.Number("wMonth", time.wMonth);
    fields.Number("wDayOfWeek", time.wDayOfWeek);
    fields.Number("wDay", time.wDay);
    fields.Number("wHour", time.wHour);
    fields.Number("wMinute", time.wMinute);
    fields.Number("wSecond", time.wSecond);
    fields.Number("wMilliseconds", time.wMilliseconds);
}

void DescribeInformation(Fields& fields, POWER_INFORMATION_LEVEL level, PVOID output, ULONG size)
{
    const auto describe = [&]<typename Record>(operations::RecordType<Record>)
    {
        if constexpr (std::is_void_v<Record>)
            fields.Into("output", output, size);
        else if (size < sizeof(Record))
            return;
        else if constexpr (std::is_integral_v<Record>)
            fields.Number("output", *static_cast<Record*>(output));
        else
            Describe(fields.Object("output"), *static_cast<Record*>(output));
    };
    operations::VisitAnswer(level, describe);
}

void DescribeScheme(Fields& fields, GUID** scheme)
{
    if (fields.isReading())
        *scheme = static_cast<GUID*>(fields.holdings().Make(sizeof(GUID)));
    fields.Guid("scheme", **scheme);
    if (!fields.isReading())
        fields.Given("block", fields.holdings().Keep(*scheme));
}

void DescribeBuffer(Fields& fields, UCHAR* buffer, DWORD& size)
{
    const DWORD room = size;
    fields.Number("bufferSize", size);
    if (buffer != nullptr)
        fields.Into("buffer", buffer, fields.isReading() ? (std::min)(room, size) : size);
}

void DescribeModulePath(Fields& fields, char* path, DWORD room, DWORD& length)
{
    std::string text = fields.isReading() ? std::string() : std::string(path, length);
    fields.Text("fileName", text);
    if (!fields.isReading())
        return;
    length = static_cast<DWORD>((std::min)(text.size(), static_cast<std::size_t>(room)));
    text.copy(path, length);
    if (length < room)
        path[length] = '\0';
}

void DescribeFunction(Fields& fields, const char* name, FARPROC& address, platform::Platform* recorded)
{
    Function kind = Function::none;
    if (!fields.isReading())
        kind = KindOf(address, name, recorded->GetCurrentProcess());
    fields.Number("function", kind);
    if (fields.isReading())
        address = FunctionOf(kind);
}

} // namespace calvix::recording
