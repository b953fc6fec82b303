#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace calvix::forms
{

/// UTF-8 to the platform's wide text, UTF-16 or UTF-32 as wchar_t has it, and back. Ill-formed input (in wide text: lone
/// surrogates) becomes U+FFFD, one for each longest part that could have begun a character; `illFormed`, if given, is
/// set when there was any and cleared when there was none.
std::wstring WideFromUtf8(std::string_view text, bool* illFormed = nullptr);
std::string Utf8FromWide(std::wstring_view text, bool* illFormed = nullptr);

bool IsUtf8(std::string_view text);

inline constexpr char32_t kReplacementCharacter = 0xFFFD;

/// The character at `position`, which moves past it; nothing, past it all the same, for a part that is none.
std::optional<char32_t> NextCharacter(std::string_view utf8, std::size_t& position);
void AppendUtf8(std::string& text, char32_t character);
void AppendWide(std::wstring& text, char32_t character);

} // namespace calvix::forms
