#pragma once

#include <nlohmann/json_fwd.hpp>

#include <string>
#include <string_view>

namespace calvix::recording
{

/// Texts as recordings have them: a JSON string where the text is well-formed Unicode. Other bytes are {"bytes": "E9"},
/// other wide text is {"units": "D83D 41"}, so that nothing is lost.

nlohmann::ordered_json RecordedBytes(std::string_view bytes);
nlohmann::ordered_json RecordedWide(std::wstring_view text);

/// Throw Damage where `value` is no such text; `name` is the field's, for its message.
std::string BytesFrom(const nlohmann::ordered_json& value, const char* name);
std::wstring WideFrom(const nlohmann::ordered_json& value, const char* name);

/// With small letters in place of the capitals of ASCII.
std::string Lowered(std::string_view text);
/// False for what is no hexadecimal text of whole bytes.
bool ReadHex(std::string_view text, std::string& bytes);

} // namespace calvix::recording
