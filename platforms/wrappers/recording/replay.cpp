#include "wrappers/recording/replay.h"

#include "wrappers/recording/key_mask.h"
#include "wrappers/recording/lines.h"
#include "wrappers/recording/recorded_lines.h"
#include "wrappers/recording/taped_platform.h"
#include "wrappers/recording/wlan_results.h"

#include <map>
#include <mutex>

namespace calvix::recording
{

namespace
{

using nlohmann::ordered_json;

/// A call in words, no longer than what is of use in a message.
std::string CallText(const std::string& operation, const ordered_json& arguments)
{
    constexpr std::size_t longest = 300;
    std::string text = operation + " " + arguments.dump(-1, ' ', true);
    if (text.size() > longest)
        text.replace(longest, std::string::npos, "...");
    return text;
}

} // namespace

struct Replay::Parts final : Tape
{
    Parts(std::istream& recording, const std::string& itsName)
        : Tape(Holdings::Source::recording), name(itsName), recorded(ReadRecording(recording, itsName))
    {
    }

    bool Pass(TapedCall& call) override
    {
        while (const RecordedLine* const news = TakeNews(true))
            Tell(*news);
        const RecordedLine* const line = TakeCall(call);
        if (line == nullptr || !Answer(*line, call))
            return false;
        while (const RecordedLine* const event = TakeEvent())
            Tell(*event);
        return true;
    }

    /// The recorded call that is this one; null after a difference.
    const RecordedLine* TakeCall(TapedCall& call)
    {
        ordered_json asked = ordered_json::object();
        std::unique_lock lock(mutex);
        if (trouble)
            return nullptr;
        Fields arguments(asked, Fields::Direction::writing, surroundings);
        call.Give(arguments);
        const RecordedLine* const next = Next();
        if (next != nullptr && next->Has(key::call) && next->content[key::call] == call.operation() &&
            next->content[key::arguments] == asked)
        {
            ++position;
            return next;
        }
        const std::string does = "it calls " + CallText(call.operation(), asked);
        lock.unlock();
        if (next != nullptr || recorded.complete)
            EndWithDifference(does, next);
        else
            BreakOff();
        return nullptr;
    }

    /// A notification that came in the next call.
    const RecordedLine* TakeNews(bool inCall)
    {
        const std::lock_guard lock(mutex);
        const RecordedLine* const next = trouble ? nullptr : Next();
        if (next == nullptr || !next->Has(key::notification) || next->Has(key::during) != inCall)
            return nullptr;
        ++position;
        return next;
    }

    /// What happened before the next call.
    const RecordedLine* TakeEvent()
    {
        {
            const std::lock_guard lock(mutex);
            const RecordedLine* const next = trouble ? nullptr : Next();
            if (next != nullptr && next->Has(key::mark))
            {
                ++position;
                return next;
            }
        }
        return TakeNews(false);
    }

    const RecordedLine* Next() const { return position < recorded.lines.size() ? &recorded.lines[position] : nullptr; }

    bool Answer(const RecordedLine& line, TapedCall& call)
    {
        try
        {
            ordered_json content = line.content[key::results];
            Fields results(content, Fields::Direction::reading, surroundings);
            call.Describe(results);
            return true;
        }
        catch (const Damage& damage)
        {
            BeDamaged(line.number, "in " + std::string(call.operation()) + ", " + damage.what());
            return false;
        }
    }

    void Tell(const RecordedLine& line)
    {
        if (line.Has(key::mark))
        {
            if (atMark)
                atMark(line.content[key::mark].get<std::string>());
            return;
        }
        try
        {
            TellNews(line.content[key::notification]);
        }
        catch (const Damage& damage)
        {
            BeDamaged(line.number, std::string("in the notification, ") + damage.what());
        }
    }

    void TellNews(ordered_json content)
    {
        // Notifications have no blocks of the service, whose numbers they must not use up.
        Holdings own(Holdings::Source::recording);
        const Fields::Surroundings itsSurroundings{own};
        Fields fields(content, Fields::Direction::reading, itsSurroundings);
        int client = 0;
        WLAN_NOTIFICATION_DATA news{};
        fields.Number("client", client);
        DescribeNews(fields, news);
        Listener listener;
        {
            const std::lock_guard lock(mutex);
            listener = listeners[client];
        }
        if (listener.callback != nullptr)
            listener.callback(&news, listener.context);
    }

    Listener Listen(HANDLE client, const Listener& listener) override
    {
        const int number = holdings().NumberOf(wrappers::HandleFamily::client, client);
        const std::lock_guard lock(mutex);
        listeners[number] = listener;
        return listener;
    }

    void Remark(TapedCall&, const char*) override {}

    /// `line` is what the recording has there; null: its end.
    void EndWithDifference(const std::string& does, const RecordedLine* line)
    {
        const std::string has = line == nullptr ? "the end of the session"
                                : line->Has(key::call)
                                    ? CallText(line->content[key::call], line->content[key::arguments])
                                    : line->content.dump(-1, ' ', true);
        End({ReplayTrouble::Kind::differs, At(line != nullptr ? line->number : recorded.lastLine) +
                                               "the program differs from the recording here: " + does +
                                               "; the recording has " + has});
    }

    void BreakOff()
    {
        End({ReplayTrouble::Kind::damaged,
             At(recorded.lastLine) + "the recording ends after this line, before the end of the session"});
    }

    void BeDamaged(std::size_t line, const std::string& what)
    {
        End({ReplayTrouble::Kind::damaged, At(line) + "the recording is damaged: " + what});
    }

    std::string At(std::size_t line) const { return name + ":" + std::to_string(line) + ": "; }

    void End(const ReplayTrouble& what)
    {
        {
            const std::lock_guard lock(mutex);
            if (trouble)
                return;
            trouble = what;
        }
        if (atTrouble)
            atTrouble();
    }

    std::string name;
    RecordedLines recorded;
    mutable std::mutex mutex;
    std::size_t position = 0;
    std::optional<ReplayTrouble> trouble;
    std::map<int, Listener> listeners; ///< by the number of their client
    std::function<void()> atTrouble;
    std::function<void(const std::string&)> atMark;
    KeyMask keys; ///< what is asked is compared as it would have been recorded
    Fields::Surroundings surroundings{holdings(), &keys};
    TapedPlatform taped{*this, nullptr};
};

Replay::Replay(std::istream& recording, const std::string& name) : m_parts(std::make_unique<Parts>(recording, name)) {}

Replay::~Replay() = default;

const Header& Replay::header() const
{
    return m_parts->recorded.header;
}

platform::Platform& Replay::platform()
{
    return m_parts->taped;
}

void Replay::AtTrouble(std::function<void()> action)
{
    m_parts->atTrouble = std::move(action);
}

void Replay::AtMark(std::function<void(const std::string&)> action)
{
    m_parts->atMark = std::move(action);
}

std::optional<ReplayTrouble> Replay::Trouble() const
{
    const std::lock_guard lock(m_parts->mutex);
    return m_parts->trouble;
}

std::optional<ReplayTrouble> Replay::Finish()
{
    if (auto trouble = Trouble())
        return trouble;
    if (const RecordedLine* const next = m_parts->Next())
        m_parts->EndWithDifference("it ends", next);
    else if (!m_parts->recorded.complete)
        m_parts->BreakOff();
    return Trouble();
}

} // namespace calvix::recording
