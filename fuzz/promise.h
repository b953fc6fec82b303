#pragma once

#include <stdexcept>
#include <string>

namespace calvix::fuzz
{

/// Something that must hold whatever the input is, and did not.
class BrokenPromise : public std::logic_error
{
public:
    using std::logic_error::logic_error;
};

inline void Promise(bool holds, const char* promise)
{
    if (!holds)
        throw BrokenPromise(std::string("broken promise: ") + promise);
}

} // namespace calvix::fuzz
