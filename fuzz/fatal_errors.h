#pragma once

#include "core/copies.h"

namespace calvix::fuzz
{

/// What a fatal caller error becomes while a FatalErrorsCaught stands.
struct FatalError
{
};

/// Turns fatal caller errors into exceptions for as long as it lives.
class FatalErrorsCaught
{
public:
    FatalErrorsCaught() : m_previous(SetStrictCopyHandler([](const char*) { throw FatalError(); })) {}
    ~FatalErrorsCaught() { SetStrictCopyHandler(m_previous); }
    FatalErrorsCaught(const FatalErrorsCaught&) = delete;
    FatalErrorsCaught& operator=(const FatalErrorsCaught&) = delete;

private:
    StrictCopyHandler m_previous;
};

/// Whether `body` ends in a fatal caller error.
template <typename Body>
bool IsFatal(Body body)
{
    try
    {
        body();
        return false;
    }
    catch (const FatalError&)
    {
        return true;
    }
}

} // namespace calvix::fuzz
