#pragma once

#include "core/copies.h"

#include <gtest/gtest.h>

#include <source_location>
#include <stdexcept>
#include <string>

namespace calvix::test
{

/// What a fatal caller error becomes while a StrictCopyGuard stands.
class FatalCallerErrorCaught : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Turns fatal caller errors into exceptions for as long as it lives, so that a test survives them.
class StrictCopyGuard
{
public:
    StrictCopyGuard() : m_previous(SetStrictCopyHandler(&Throw)) {}
    ~StrictCopyGuard() { SetStrictCopyHandler(m_previous); }
    StrictCopyGuard(const StrictCopyGuard&) = delete;
    StrictCopyGuard& operator=(const StrictCopyGuard&) = delete;

private:
    static void Throw(const char* message) { throw FatalCallerErrorCaught(message); }

    StrictCopyHandler m_previous;
};

/// Runs `body` and expects it to end in a fatal caller error whose message contains `part`.
template <typename Body>
void ExpectFatal(Body body, const std::string& part, const std::source_location where = std::source_location::current())
{
    const StrictCopyGuard guard;
    try
    {
        body();
    }
    catch (const FatalCallerErrorCaught& error)
    {
        const std::string message = error.what();
        if (message.find(part) == std::string::npos)
            ADD_FAILURE_AT(where.file_name(), static_cast<int>(where.line()))
                << "fatal caller error without \"" << part << "\": " << message;
        return;
    }
    ADD_FAILURE_AT(where.file_name(), static_cast<int>(where.line()))
        << "no fatal caller error; expected one with \"" << part << "\"";
}

} // namespace calvix::test
