#pragma once

#include "support/fatal_errors.h"

#include <gtest/gtest.h>

#include <string>

namespace calvix::test
{

/// Runs `body` and expects it to end in a fatal caller error whose message contains `part`. A failure shows the caller's
/// line, as std::source_location would, which clang 14 does not have.
template <typename Body>
void ExpectFatal(Body body, const std::string& part, const char* file = __builtin_FILE(), int line = __builtin_LINE())
{
    const std::optional<std::string> message = FatalErrorOf(body);
    if (!message)
        ADD_FAILURE_AT(file, line) << "no fatal caller error; expected one with \"" << part << "\"";
    else if (message->find(part) == std::string::npos)
        ADD_FAILURE_AT(file, line) << "fatal caller error without \"" << part << "\": " << *message;
}

} // namespace calvix::test
