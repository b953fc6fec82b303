#pragma once

#include "operations/answered.h"

#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

namespace calvix::test
{

/// A provider without a computer: every call is noted by name, succeeds, and answers with a number of its
/// own (error numbers and NTSTATUS included), so that a forwarding layer can be seen to forward to the right operation.
class FakePlatform final : public platform::Platform
{
public:
    FakePlatform() : Platform(operations::AnsweredBy(*this)) {}
    FakePlatform(const FakePlatform&) = delete;
    FakePlatform& operator=(const FakePlatform&) = delete;

    template <typename Description, typename... Arguments>
    typename Description::Result Answer(const Description& operation, Arguments...)
    {
        using Result = typename Description::Result;
        m_called.emplace_back(operation.name);
        ++m_number;
        if constexpr (std::is_pointer_v<Result>)
            return reinterpret_cast<Result>(static_cast<std::intptr_t>(0x1000 + m_number));
        else
            return static_cast<Result>(m_number);
    }

    std::vector<std::string>& called() { return m_called; }
    /// Of the last call, from 1.
    long long number() const { return m_number; }

private:
    std::vector<std::string> m_called;
    long long m_number = 0;
};

} // namespace calvix::test
