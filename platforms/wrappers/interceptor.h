#pragma once

#include "operations/description.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace calvix::wrappers
{

struct Argument
{
    std::string_view name;
    std::string text;
};

/// One call of a platform operation, as an interceptor sees it.
struct Call
{
    std::string_view operation;
    std::vector<Argument> arguments;          ///< empty unless some interceptor wants them
    const operations::Facts* facts = nullptr; ///< what is known about the operation

    /// "WlanScan(client=1, interface={...}, ssid=null, ieData=null, reserved=null)"
    std::string Line() const;

    /// The text of one argument, empty when there is none of this name.
    std::string_view operator[](std::string_view name) const;
};

/// Intercepts the calls of a program to the platform. It must not call the platform that it intercepts.
class Interceptor
{
public:
    virtual ~Interceptor() = default;

    /// Whether calls are to be described with their arguments; describing them allocates.
    virtual bool WantsArguments() const { return false; }

    /// Before a call is forwarded. With an error the call fails with it and is not forwarded; an operation that
    /// cannot fail is forwarded all the same.
    virtual std::optional<DWORD> Before(const Call& call)
    {
        static_cast<void>(call);
        return std::nullopt;
    }

    /// After a call, forwarded or failed. `result` is its result as a number; 0 for an operation without one, and for
    /// handles and other pointers 1, or 0 when null.
    virtual void After(const Call& call, long long result)
    {
        static_cast<void>(call);
        static_cast<void>(result);
    }
};

/// Several interceptors as one. Every one sees every call, in the order given (After: in reverse); the first error
/// counts. The interceptors stay the caller's.
class InterceptorChain final : public Interceptor
{
public:
    explicit InterceptorChain(std::vector<Interceptor*> interceptors) : m_interceptors(std::move(interceptors)) {}

    bool WantsArguments() const override;
    std::optional<DWORD> Before(const Call& call) override;
    void After(const Call& call, long long result) override;

private:
    std::vector<Interceptor*> m_interceptors;
};

} // namespace calvix::wrappers
