#pragma once

#include "wrappers/interceptor.h"

#include <mutex>

namespace calvix::wrappers
{

/// Records every call in the order in which they begin. Calls may come from any thread.
class CallLog final : public Interceptor
{
public:
    bool WantsArguments() const override { return true; }
    std::optional<DWORD> Before(const Call& call) override;

    /// The calls with their arguments, each one line (see Call::Line).
    std::vector<std::string> Lines() const;

    /// The names of the operations only.
    std::vector<std::string> Operations() const;

    /// The calls themselves, to look at single arguments. They name operations and arguments for as long as the program
    /// runs, not only while the log exists.
    std::vector<Call> Calls() const;

    /// How often an operation was called.
    std::size_t Count(std::string_view operation) const;

    void Clear();

private:
    mutable std::mutex m_mutex;
    std::vector<Call> m_calls;
};

} // namespace calvix::wrappers
