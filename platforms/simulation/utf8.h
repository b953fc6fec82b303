#pragma once

#include <string>
#include <string_view>

namespace calvix::simulation
{

/// UTF-8 to the platform's wide text, UTF-16 or UTF-32 as wchar_t has it, and back. Ill-formed input (in wide text: lone
/// surrogates) becomes U+FFFD, one for each longest part that could have begun a character; `illFormed`, if given, is
/// set when there was any and cleared when there was none.
std::wstring WideFromUtf8(std::string_view text, bool* illFormed = nullptr);
std::string Utf8FromWide(std::wstring_view text, bool* illFormed = nullptr);

bool IsUtf8(std::string_view text);

} // namespace calvix::simulation
