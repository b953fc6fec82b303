#pragma once

#include "wrappers/interceptor.h"

#include <functional>
#include <mutex>

namespace calvix::wrappers
{

/// Which calls of an operation fail, and how.
struct Fault
{
    static constexpr unsigned kUnlimited = 0xFFFFFFFF;

    DWORD error = 5;             ///< a platform error number, or an NTSTATUS for the operations that return one
    unsigned fromCall = 1;       ///< the first call that fails, counted from the rule's beginning
    unsigned times = kUnlimited; ///< how many calls fail from there
};

/// Makes calls fail by rule. The rules are independent: each counts the calls of its operation from the moment
/// when it was made, and the first one that applies decides. Calls may come from any thread.
class FaultInjection final : public Interceptor
{
public:
    /// Answers with the error that a call fails with, or with nothing to let it pass. May do what a test wants done
    /// at that moment, too.
    using Predicate = std::function<std::optional<DWORD>(const Call&)>;

    void Fail(std::string operation, Fault fault = {});
    void FailWhen(Predicate predicate);

    /// Forgets all rules.
    void Clear();

    /// How often calls were made to fail since the last Clear, to see that a rule was met at all.
    unsigned Injected() const;

    bool WantsArguments() const override;
    std::optional<DWORD> Before(const Call& call) override;

private:
    struct Rule
    {
        std::string operation;
        Fault fault;
        unsigned seen = 0;

        bool Applies(const Call& call);
    };

    std::optional<DWORD> ErrorFor(const Call& call);

    mutable std::mutex m_mutex;
    std::vector<Rule> m_rules;
    std::vector<Predicate> m_predicates;
    unsigned m_injected = 0;
};

} // namespace calvix::wrappers
