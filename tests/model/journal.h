#pragma once

#include "model/outcome.h"
#include "model/situation.h"
#include "support/changed_platform.h"

namespace calvix::test
{

/// Writes down how the library calls the service, and answers as the situation says: requests and moves are judged here and
/// never reach the computer, so that it stays the same for every method.
class Journal final : public ChangedPlatform
{
public:
    explicit Journal(const Situation& situation);

    /// The calls since the last one; the situation begins to refuse requests anew.
    std::vector<Event> TakeEvents();

private:
    void NoteLists();
    void NoteQuestions();
    void JudgeRequests();
    void ConvertAsTheSituationSays();
    /// Notes each call, and fails it if the situation says so.
    template <auto operation, typename Look>
    void Noted(const char* name, Look look);

    Event& Note(std::string_view operation, HANDLE client, const GUID* interfaceGuid, PVOID reserved);

    const Situation& m_situation;
    std::vector<Event> m_events;
    unsigned m_requests = 0;
};

} // namespace calvix::test
