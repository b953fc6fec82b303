#pragma once

#include "files/text_encoding.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace calvix::host
{

/// One "name : value" line. A line without a colon has everything in `name`.
struct CaptureField
{
    std::size_t line = 0; ///< counted from 1
    std::string name;     ///< without the blanks around it
    std::string value;    ///< without the blanks around it; may hold colons
    bool hasColon = false;
    std::string key;             ///< what the field is, by its English name; empty: as `name` says
    bool understood = false;     ///< whether something knows what the field is
    bool passedOver = false;     ///< belongs to the line above it, or to nothing: not to the record
    std::size_t indent = 0;      ///< blanks before it
    bool beginsParagraph = true; ///< nothing but blank lines before it

    const std::string& Key() const { return key.empty() ? name : key; }
};

/// The lines of a text that are not blank. The first colon, of either width, ends the name.
std::vector<CaptureField> ReadFields(std::string_view text);

/// "SSID 1 : Home", for messages.
std::string FieldText(const CaptureField& field);

/// The fields that describe one thing, such as an access point.
class CaptureRecord
{
public:
    /// `title` is what messages call the thing; `line` is where it begins.
    CaptureRecord(std::string title, std::size_t line) : m_title(std::move(title)), m_line(line) {}

    /// Throws LineError, and leaves the field out, where the record has it already: a line between them was lost.
    void Add(const CaptureField& field);
    /// Null when the record has no field of that name.
    const CaptureField* Find(std::string_view name) const;
    /// Throws LineError when the record has no field of that name.
    const CaptureField& Need(std::string_view name) const;
    std::size_t line() const { return m_line; }

private:
    std::string m_title;
    std::size_t m_line;
    std::vector<CaptureField> m_fields;
};

/// `text` without the blanks around it, those of other scripts and those that do not break a line included.
std::string_view Trim(std::string_view text);

/// The lines of a text, without their ends.
std::vector<std::string_view> LinesOf(std::string_view text);

/// Compares without regard to the case of ASCII letters.
bool SameWord(std::string_view one, std::string_view other);

/// The first decimal number in a text, -1 where there is none.
int FirstNumber(std::string_view text);

/// For "SSID 12" and the keyword "SSID": true.
bool IsNumbered(std::string_view name, std::string_view keyword);

/// "SSID n" and "BSSID n", which are never translated. German systems print "BSSIDD n" as well.
bool BeginsNetwork(const CaptureField& field);
bool BeginsAccessPoint(const CaptureField& field);

/// -1 unless the whole text is a decimal number.
int WholeNumber(std::string_view text);

} // namespace calvix::host
