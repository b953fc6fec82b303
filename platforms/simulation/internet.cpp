#include "simulation/facility.h"

#include "platform/records/error_numbers.h"
#include "simulation/ascii_case.h"

#include <cstring>
#include <string_view>

namespace calvix::simulation
{

namespace
{

constexpr DWORD kInvalidUrl = 12005;
constexpr DWORD kUnrecognizedScheme = 12006;
constexpr DWORD kNameNotResolved = 12007;
constexpr DWORD kInvalidOption = 12009;
constexpr DWORD kBadOptionLength = 12010;
constexpr DWORD kCannotConnect = 12029;

/// The error that an address is refused with, before anybody tries to reach it.
DWORD AddressError(std::string_view url)
{
    const std::size_t separator = url.find("://");
    if (separator == std::string_view::npos || separator + 3 == url.size())
        return kInvalidUrl;
    const std::string_view scheme = url.substr(0, separator);
    const bool known =
        SameButForCase(scheme, "http") || SameButForCase(scheme, "https") || SameButForCase(scheme, "ftp");
    return known ? ERROR_SUCCESS : kUnrecognizedScheme;
}

/// The internet connection, which does not depend on the wireless adapters: there may be a cable. No handle is ever given
/// out, so every option is the whole process's.
class SimulatedInternet final : public Facility
{
public:
    using Facility::Facility;

    BOOL InternetSetOptionA(HINTERNET internet, DWORD option, PVOID buffer, DWORD bufferSize)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (internet != nullptr)
            return Fail(ERROR_INVALID_HANDLE);
        if (option != INTERNET_OPTION_CONNECT_TIMEOUT)
            return Fail(kInvalidOption);
        if (buffer == nullptr)
            return Fail(ERROR_INVALID_PARAMETER);
        if (bufferSize != sizeof(m_connectTimeout))
            return Fail(kBadOptionLength);
        std::memcpy(&m_connectTimeout, buffer, sizeof(m_connectTimeout));
        return TRUE;
    }

    BOOL InternetCheckConnectionA(const char* url, DWORD flags, DWORD reserved)
    {
        if (reserved != 0 || (flags & ~DWORD{FLAG_ICC_FORCE_CONNECTION}) != 0)
            return Fail(ERROR_INVALID_PARAMETER);
        // Without an address the platform tries one of its own.
        if (const DWORD error = url != nullptr ? AddressError(url) : ERROR_SUCCESS; error != ERROR_SUCCESS)
            return Fail(error);
        InternetAccess access{};
        DWORD timeout = 0;
        {
            const std::lock_guard lock(m_machine.mutex);
            access = m_machine.present.internet;
            timeout = m_connectTimeout;
        }
        if (access == InternetAccess::unresolved)
            return Fail(kNameNotResolved);
        if (access == InternetAccess::reachable)
            return TRUE;
        PassTime(std::chrono::milliseconds(timeout));
        return Fail(kCannotConnect);
    }

private:
    DWORD m_connectTimeout = 60'000; ///< chosen: that of a program which has not set one
};

} // namespace

platform::Internet MakeInternet(Machine& machine, Parts& parts)
{
    auto& internet = AddPart<SimulatedInternet>(machine, parts);
    return {
        .InternetSetOptionA = CallsTo<&SimulatedInternet::InternetSetOptionA>(internet),
        .InternetCheckConnectionA = CallsTo<&SimulatedInternet::InternetCheckConnectionA>(internet),
    };
}

} // namespace calvix::simulation
