#pragma once

#include "platform/platform.h"
#include "wrappers/recording/damage.h"
#include "wrappers/recording/holdings.h"

#include <nlohmann/json_fwd.hpp>

#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>

namespace calvix::recording
{

class Anonymiser;
class KeyMask;

/// The named fields of one object of a recording, on their way in or out. A record is described once, by a function that
/// names each of its fields together with its variable:
///
///     void Describe(Fields fields, WLAN_PROFILE_INFO& profile)
///     {
///         fields.Name("strProfileName", profile.strProfileName);
///         fields.Number("dwFlags", profile.dwFlags);
///     }
///
/// Writing, it records the variables; reading, it fills them, and throws Damage for a field that is missing
/// or of another type. Numbers have the width that they have on Windows, and text has no width at all, so that what one
/// system wrote means the same on another.
class Fields
{
public:
    /// What writing and reading take with them. All of it outlives the fields.
    struct Surroundings
    {
        Holdings& holdings;
        KeyMask* keys = nullptr;     ///< null while reading
        Anonymiser* names = nullptr; ///< receives names; null while reading, and if none are to be hidden
    };

    enum class Direction
    {
        writing,
        reading
    };

    Fields(nlohmann::ordered_json& object, Direction direction, const Surroundings& surroundings)
        : m_object(object), m_direction(direction), m_surroundings(surroundings)
    {
    }

    bool isReading() const { return m_direction == Direction::reading; }
    Holdings& holdings() const { return m_surroundings.holdings; }

    /// Integers and enumerations.
    template <typename Integer>
    void Number(const char* name, Integer& value)
    {
        using Kept = KeptType<Integer>;
        using Widest = std::conditional_t<std::is_unsigned_v<Kept>, unsigned long long, long long>;
        if (isReading())
            value = static_cast<Integer>(
                Get<Widest>(name, (std::numeric_limits<Kept>::min)(), (std::numeric_limits<Kept>::max)()));
        else
            Put<Widest>(name, static_cast<Kept>(value));
    }
    /// A number in a variable of the caller's, which may want none.
    template <typename Integer>
    void NumberAt(const char* name, Integer* value)
    {
        if (value != nullptr)
            Number(name, *value);
    }
    /// A number that is written and never read back: an argument.
    template <typename Integer>
    void Given(const char* name, Integer value)
    {
        Number(name, value);
    }

    /// Arguments that may be null.
    template <typename Character>
    void GivenText(const char* name, const Character* text, int length = -1);
    void GivenName(const char* name, const wchar_t* profile);
    void GivenGuid(const char* name, const GUID* guid);
    void GivenAdapter(const GUID* guid);
    void GivenBytes(const char* name, const void* bytes, std::size_t size);
    /// Only whether it is there.
    void GivenPointer(const char* name, const void* pointer) { Given(name, pointer != nullptr ? 1 : 0); }
    void GivenHandle(const char* name, wrappers::HandleFamily family, const void* handle);
    /// A whole record, described as it would be as a result.
    template <typename Record>
    void GivenRecord(const char* name, const Record* record)
    {
        if (record == nullptr)
            return PutNull(name);
        Record copy = *record;
        Describe(Object(name), copy);
    }

    void Text(const char* name, std::string& bytes);
    void Text(const char* name, std::wstring& text);
    /// Raw bytes, always in hexadecimal.
    void Bytes(const char* name, std::string& bytes);

    /// Bytes in a buffer of the caller, `size` of them.
    void Into(const char* name, void* buffer, std::size_t size);
    /// A terminated text in a buffer of the caller's; a longer one is cut.
    void TerminatedInto(const char* name, wchar_t* buffer, std::size_t capacity);

    /// The information elements of an access point. If names are hidden, elements that may contain names are left out.
    void Elements(const char* name, std::string& elements);

    /// The name of a profile, in an array that is terminated unless it is full.
    template <std::size_t Size>
    void Name(const char* name, wchar_t (&text)[Size])
    {
        Array(name, text, Size, Meaning::name);
    }
    /// The same for an adapter's description.
    template <std::size_t Size>
    void Description(const char* name, wchar_t (&text)[Size])
    {
        Array(name, text, Size, Meaning::description);
    }
    void Ssid(const char* name, DOT11_SSID& ssid);
    /// Six bytes.
    void Address(const char* name, UCHAR* address);
    void Guid(const char* name, GUID& guid);
    void AdapterGuid(const char* name, GUID& guid);

    /// A handle that a call hands out, or null.
    template <typename Handle>
    void HandedOut(const char* name, wrappers::HandleFamily family, Handle& handle)
    {
        int number = isReading() ? 0 : holdings().NumberOf(family, handle);
        Number(name, number);
        if (isReading())
            handle = static_cast<Handle>(holdings().HandleOf(family, number));
    }
    template <typename Handle>
    void HandedOutAt(const char* name, wrappers::HandleFamily family, Handle* handle)
    {
        if (handle != nullptr)
            HandedOut(name, family, *handle);
    }

    bool Has(const char* name) const;
    /// For what may be missing: writes whether it is, or reads it.
    bool IsNull(const char* name, const void* pointer);
    Fields Object(const char* name);
    /// Begins an array while writing; returns its length while reading.
    std::size_t Count(const char* name, std::size_t count);
    /// The next element while writing, the one at `index` while reading.
    Fields Element(const char* name, std::size_t index);

private:
    enum class Meaning
    {
        name,
        description
    };

    /// `unsigned long` and `long` are 32 bits wide on Windows, whatever they are here.
    template <typename Integer>
    using KeptType = std::conditional_t<std::is_enum_v<Integer> || std::is_same_v<Integer, unsigned long>,
                                        std::uint32_t,
                                        std::conditional_t<std::is_same_v<Integer, long>, std::int32_t, Integer>>;

    void PutNull(const char* name);
    nlohmann::ordered_json& At(const char* name);
    /// Signed and unsigned numbers of any width.
    template <typename Widest>
    void Put(const char* name, Widest value);
    template <typename Widest>
    Widest Get(const char* name, Widest lowest, Widest highest);
    void Array(const char* name, wchar_t* text, std::size_t size, Meaning meaning);

    nlohmann::ordered_json& m_object;
    Direction m_direction;
    const Surroundings& m_surroundings;
};

} // namespace calvix::recording
