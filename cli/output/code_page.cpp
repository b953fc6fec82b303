#include "output/code_page.h"

#include "output/failure.h"
#include "output/text_forms.h"
#include "platform/platform.h"

namespace calvix::host
{

std::string InActiveCodePage(const std::wstring& name, const std::string& advice)
{
    constexpr int capacity = 1024;
    char narrow[capacity] = {};
    wchar_t back[capacity] = {};
    platform::Text& text = platform::text();
    // Converted there and back, because not every code page reports a lost character.
    if (text.WideCharToMultiByte(CP_ACP, 0, name.c_str(), -1, narrow, capacity, nullptr, nullptr) == 0 ||
        text.MultiByteToWideChar(CP_ACP, 0, narrow, -1, back, capacity) == 0 || name != back)
        throw BadInput("the name \"" + Narrow(name) + "\" has characters outside the active code page", advice);
    return narrow;
}

std::string FromActiveCodePage(std::string_view text)
{
    if (text.empty())
        return {};
    // No code page makes more characters than there are bytes.
    std::wstring wide(text.size(), L'\0');
    const int length = platform::text().MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()),
                                                            wide.data(), static_cast<int>(wide.size()));
    wide.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    return Narrow(wide);
}

} // namespace calvix::host
