#pragma once

#include <stdexcept>
#include <string>

namespace calvix::recording
{

/// A field of a recording that is not what it must be.
class Damage : public std::runtime_error
{
public:
    Damage(const std::string& field, const std::string& what) : std::runtime_error('"' + field + "\" " + what) {}
};

} // namespace calvix::recording
