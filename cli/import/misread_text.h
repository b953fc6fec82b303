#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace calvix::host
{

/// Takes what is worth a warning: the line, and what was found there and done with it.
using CaptureReport = std::function<void(std::size_t line, const std::string& what)>;

/// Puts what is reported among the warnings of a capture, which must stay where it is.
template <typename Capture>
CaptureReport ReportTo(Capture& capture)
{
    return [&capture](std::size_t line, const std::string& what)
    { capture.warnings.push_back(capture.source + ":" + std::to_string(line) + ": " + what); };
}

/// What a text was before somebody read its UTF-8 in another code page: "Café" for "CafÃ©". Nothing for any other text.
std::optional<std::string> MisreadUtf8(std::string_view text);

/// Reports an SSID that was misread, or of which characters were lost, before it came here. It is kept: what its bytes
/// were is a guess.
void ReportMisread(const std::string& ssid, std::size_t line, const CaptureReport& report);

} // namespace calvix::host
