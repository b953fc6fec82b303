#pragma once

#include "support/fatal_errors.h"

#include <gtest/gtest.h>

#include <source_location>
#include <string>

namespace calvix::test
{

/// Runs `body` and expects it to end in a fatal caller error whose message contains `part`.
template <typename Body>
void ExpectFatal(Body body, const std::string& part, const std::source_location where = std::source_location::current())
{
    const std::optional<std::string> message = FatalErrorOf(body);
    if (!message)
        ADD_FAILURE_AT(where.file_name(), static_cast<int>(where.line()))
            << "no fatal caller error; expected one with \"" << part << "\"";
    else if (message->find(part) == std::string::npos)
        ADD_FAILURE_AT(where.file_name(), static_cast<int>(where.line()))
            << "fatal caller error without \"" << part << "\": " << *message;
}

} // namespace calvix::test
