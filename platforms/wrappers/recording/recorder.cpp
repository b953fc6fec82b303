#include "wrappers/recording/recorder.h"

#include "wrappers/recording/anonymiser.h"
#include "wrappers/recording/key_mask.h"
#include "wrappers/recording/lines.h"
#include "wrappers/recording/taped_platform.h"
#include "wrappers/recording/wlan_results.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <vector>

namespace calvix::recording
{

namespace
{

using nlohmann::ordered_json;

constexpr std::chrono::seconds kPatience(1);

/// Whether this thread is delivering a notification. The calls of its callback are inside of another call.
thread_local int t_callbacks = 0;

/// Writing a file must not change what the program's GetLastError says.
struct [[maybe_unused]] LastErrorKept
{
#if defined(_WIN32)
    ~LastErrorKept()
    {
        ::SetLastError(error);
    }

    const DWORD error = ::GetLastError();
#endif
};

/// The lines, as they are written or kept for later.
class LineWriter
{
public:
    LineWriter(std::ostream& file, const Header& header) : m_file(file), m_held(header.anonymised)
    {
        ordered_json line;
        line[key::header] = kRecordingVersion;
        line[key::simulated] = header.simulated;
        line[key::anonymised] = header.anonymised;
        Put(line);
    }

    void Write(ordered_json line)
    {
        if (m_held)
            m_waiting.push_back(std::move(line));
        else
            Put(line);
    }

    void Finish(Anonymiser* names)
    {
        if (names != nullptr)
            names->Apply(m_waiting);
        for (const ordered_json& line : m_waiting)
            Put(line);
        m_waiting.clear();
        ordered_json last;
        last[key::end] = m_count;
        Put(last);
    }

private:
    void Put(const ordered_json& line)
    {
        m_file << line.dump() << '\n' << std::flush;
        ++m_count;
    }

    std::ostream& m_file;
    bool m_held;
    unsigned m_count = 0;
    std::vector<ordered_json> m_waiting;
};

} // namespace

struct Recorder::Parts final : Tape
{
    /// A listener of the program's, which the service knows by this.
    struct Subscription
    {
        Parts* recorder;
        int client;
        Listener listener;
    };

    Parts(platform::Platform& inner, std::ostream& file, const Header& header)
        : Tape(Holdings::Source::platform), writer(file, header), anonymised(header.anonymised), taped(*this, &inner)
    {
    }

    bool Pass(TapedCall& call) override
    {
        ordered_json line = Begin(call);
        call.Forward();
        const LastErrorKept kept;
        std::unique_lock lock(mutex);
        Fields results = Written(line, key::results);
        call.Describe(results);
        if (t_callbacks == 0)
        {
            changed.wait_for(lock, kPatience, [this] { return deliveries == 0; });
            underWay.pop_back();
        }
        Write(std::move(line));
        return true;
    }

    ordered_json Begin(TapedCall& call)
    {
        const LastErrorKept kept;
        const std::lock_guard lock(mutex);
        ordered_json line;
        line[key::call] = call.operation();
        Fields arguments = Written(line, key::arguments);
        call.Give(arguments);
        if (t_callbacks == 0)
            underWay.emplace_back(call.operation());
        changed.notify_all();
        return line;
    }

    Listener Listen(HANDLE client, const Listener& listener) override
    {
        if (listener.callback == nullptr)
            return listener;
        const int number = holdings().NumberOf(wrappers::HandleFamily::client, client);
        const std::lock_guard lock(mutex);
        subscriptions.push_back(std::make_unique<Subscription>(Subscription{this, number, listener}));
        return {&Parts::Hear, subscriptions.back().get()};
    }

    static void WINAPI Hear(PWLAN_NOTIFICATION_DATA data, PVOID context)
    {
        const auto& subscription = *static_cast<Subscription*>(context);
        subscription.recorder->BeginDelivery(subscription, *data);
        ++t_callbacks;
        subscription.listener.callback(data, subscription.listener.context);
        --t_callbacks;
        subscription.recorder->EndDelivery();
    }

    void BeginDelivery(const Subscription& subscription, const WLAN_NOTIFICATION_DATA& data)
    {
        std::unique_lock lock(mutex);
        changed.wait_for(lock, kPatience, [this] { return !underWay.empty(); });
        ++deliveries;
        WLAN_NOTIFICATION_DATA copy = data;
        ordered_json line;
        Fields news = Written(line, key::notification);
        news.Given("client", subscription.client);
        DescribeNews(news, copy);
        if (!underWay.empty())
            line[key::during] = underWay.back();
        Write(std::move(line));
    }

    void EndDelivery()
    {
        const std::lock_guard lock(mutex);
        --deliveries;
        changed.notify_all();
    }

    void Remark(TapedCall& call, const char* text) override
    {
        {
            const LastErrorKept kept;
            const std::lock_guard lock(mutex);
            ordered_json line;
            line[key::call] = call.operation();
            Fields arguments = Written(line, key::arguments);
            arguments.GivenText("text", text);
            Written(line, key::results);
            Write(std::move(line));
        }
        call.Forward();
    }

    Fields Written(ordered_json& line, const char* part)
    {
        line[part] = ordered_json::object();
        return {line[part], Fields::Direction::writing, surroundings};
    }

    void Write(ordered_json line)
    {
        if (!finished)
            writer.Write(std::move(line));
    }

    std::mutex mutex;
    std::condition_variable changed;
    std::vector<std::string> underWay; ///< calls of the program's, not those of its callbacks
    int deliveries = 0;
    bool finished = false;
    std::vector<std::unique_ptr<Subscription>> subscriptions;
    LineWriter writer;
    KeyMask keys;
    Anonymiser names;
    bool anonymised;
    Fields::Surroundings surroundings{holdings(), &keys, anonymised ? &names : nullptr};
    TapedPlatform taped;
};

Recorder::Recorder(platform::Platform& inner, std::ostream& file, const Header& header)
    : m_parts(std::make_unique<Parts>(inner, file, header))
{
}

Recorder::~Recorder() = default;

platform::Platform& Recorder::platform()
{
    return m_parts->taped;
}

void Recorder::Mark(const std::string& text)
{
    const std::lock_guard lock(m_parts->mutex);
    ordered_json line;
    line[key::mark] = text;
    m_parts->Write(std::move(line));
}

std::string Recorder::InRecording(const std::string& text) const
{
    return m_parts->names.InText(text);
}

void Recorder::Finish()
{
    const std::lock_guard lock(m_parts->mutex);
    if (m_parts->finished)
        return;
    m_parts->writer.Finish(m_parts->surroundings.names);
    m_parts->finished = true;
}

} // namespace calvix::recording
