#pragma once

#include "core/copies.h"

#include <optional>
#include <stdexcept>
#include <string>

namespace calvix::test
{

/// What a fatal caller error becomes while a FatalErrorsCaught exists.
class FatalError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Turns fatal caller errors into exceptions for as long as it lives.
class FatalErrorsCaught
{
public:
    FatalErrorsCaught() : m_previous(SetStrictCopyHandler([](const char* message) { throw FatalError(message); })) {}
    ~FatalErrorsCaught() { SetStrictCopyHandler(m_previous); }
    FatalErrorsCaught(const FatalErrorsCaught&) = delete;
    FatalErrorsCaught& operator=(const FatalErrorsCaught&) = delete;

private:
    StrictCopyHandler m_previous;
};

/// The message of the fatal caller error in which `body` ends, if it does.
template <typename Body>
std::optional<std::string> FatalErrorOf(Body body)
{
    const FatalErrorsCaught caught;
    try
    {
        body();
        return std::nullopt;
    }
    catch (const FatalError& error)
    {
        return error.what();
    }
}

template <typename Body>
bool EndsFatally(Body body)
{
    return FatalErrorOf(body).has_value();
}

} // namespace calvix::test
