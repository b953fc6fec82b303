#pragma once

#include "import/capture_text.h"

#include <cstddef>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace calvix::host
{

/// One "name : value" line of netsh. A line without a colon has everything in `name`.
struct CaptureField
{
    std::size_t line = 0; ///< counted from 1
    std::string name;     ///< without the blanks around it
    std::string value;    ///< without the blanks around it; may hold colons
    bool hasColon = false;
    std::size_t indent = 0;      ///< blanks before it
    bool beginsParagraph = true; ///< nothing but blank lines before it
    /// What the field is, by its English name; empty: unknown. Translations change the labels, but neither the order
    /// of the lines nor the shape of what stands in them.
    std::string key;

    /// "SSID 1 : Home"
    std::string Text() const { return hasColon ? name + " : " + value : name; }
};

using CaptureFields = std::span<CaptureField>;

/// What is understood, but of no use.
inline constexpr const char* kUnused = "(unused)";

/// The lines of a text that are not blank. The first colon, of either width, ends the name.
std::vector<CaptureField> ReadFields(std::string_view text);

/// Whether the labels of a capture are those of another language than English.
bool IsForeign(CaptureFields fields);

/// Gives the fields with English labels their keys; numbers that continue a list of numbers in the line above have no use.
void LabelEnglish(CaptureFields fields);

/// Sets the keys of the fields from an index on, unless they have one or there is no such field.
void Label(CaptureFields fields, std::size_t index, std::initializer_list<const char*> keys);

/// The index of the first field from `from` on whose value is like this; the number of fields where there is none.
template <typename Test>
std::size_t FindValue(CaptureFields fields, std::size_t from, Test test)
{
    while (from < fields.size() && !(fields[from].hasColon && fields[from].key != kUnused && test(fields[from].value)))
        ++from;
    return from < fields.size() ? from : fields.size();
}

/// The fields that describe one thing, such as an access point.
struct CaptureRecord
{
    std::string title; ///< what messages call the thing
    CaptureFields fields;

    /// Null when the record has no field of that key.
    const CaptureField* Find(std::string_view key) const;
    /// Throws LineError when the record has no field of that key.
    const CaptureField& Need(std::string_view key) const;
    /// Warns of keys that two fields have: a line between them was lost. The first one counts.
    void WarnOfTwice(CaptureWarnings& warnings) const;
};

/// Warns of each kind of unknown line.
void WarnOfUnknown(CaptureFields fields, CaptureWarnings& warnings);

/// Warns of a list that is shorter than the line above it says: it was cut off. `announcement` may be null.
void WarnOfCut(const CaptureField* announcement, std::size_t count, const char* what, CaptureWarnings& warnings);

} // namespace calvix::host
