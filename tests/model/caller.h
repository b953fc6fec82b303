#pragma once

#include "model/outcome.h"
#include "model/situation.h"

namespace calvix::test
{

/// What the situation's caller passes to the library's methods, and what they answer with.
struct Caller
{
    explicit Caller(const Situation& situation);

    /// Everything that a method answers with as it was before.
    void ForgetAnswers();
    Outcome Answers(long long code, std::vector<Event> events) const;

    const GUID* adapter;
    std::wstring name;
    int mode;
    std::vector<WLAN_BSS_ENTRY> excluded;
    WLAN_CONNECTION_ATTRIBUTES attributes{};
    WLAN_CONNECTION_NOTIFICATION_DATA notification{};

    std::vector<WLAN_BSS_ENTRY> entries;
    std::vector<std::wstring> names;
    char text[128];
};

} // namespace calvix::test
