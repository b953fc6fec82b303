#include "wrappers/recording/key_mask.h"

#include "wrappers/recording/recorded_text.h"

#include <utility>

namespace calvix::recording
{

namespace
{

constexpr std::string_view kKeyElement = "keymaterial";
/// Shorter ones are no WPA passphrases and may be parts of words.
constexpr std::size_t kShortestKnownKey = 8;

bool IsSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

/// Whether the text at `position` is the element's name in a tag, with a prefix or without; `closing` says which tag.
bool IsInTag(const std::string& lowered, std::size_t position, bool& closing)
{
    std::size_t at = position;
    while (at > 0 && lowered[at - 1] != '<' && lowered[at - 1] != '/' && !IsSpace(lowered[at - 1]) &&
           lowered[at - 1] != '>')
        --at;
    if (at == 0)
        return false;
    if (at != position && lowered[position - 1] != ':')
        return false;
    closing = lowered[at - 1] == '/' && at >= 2 && lowered[at - 2] == '<';
    return closing || lowered[at - 1] == '<';
}

/// The key itself, as escaped in a document.
std::string WithoutEntities(std::string text)
{
    for (const auto& [entity, character] : {std::pair("&lt;", "<"), std::pair("&gt;", ">"), std::pair("&quot;", "\""),
                                            std::pair("&apos;", "'"), std::pair("&amp;", "&")})
        for (std::size_t at = text.find(entity); at != std::string::npos; at = text.find(entity, at + 1))
            text.replace(at, std::string_view(entity).size(), character);
    return text;
}

/// Where the content of the next keyMaterial element lies, from `from` on. One whose end is missing has the whole rest.
struct Content
{
    std::size_t begin = std::string::npos;
    std::size_t end = std::string::npos;
};

std::size_t FindTag(const std::string& lowered, std::size_t from, bool wantClosing)
{
    for (std::size_t at = lowered.find(kKeyElement, from); at != std::string::npos;
         at = lowered.find(kKeyElement, at + 1))
    {
        bool closing = false;
        if (IsInTag(lowered, at, closing) && closing == wantClosing)
            return at;
    }
    return std::string::npos;
}

Content NextKey(const std::string& lowered, std::size_t from)
{
    Content content;
    const std::size_t tag = FindTag(lowered, from, false);
    const std::size_t tagEnd = tag == std::string::npos ? tag : lowered.find('>', tag);
    if (tagEnd == std::string::npos)
        return content;
    if (lowered[tagEnd - 1] == '/')
        return NextKey(lowered, tagEnd);
    content.begin = tagEnd + 1;
    const std::size_t closing = FindTag(lowered, content.begin, true);
    content.end = closing == std::string::npos ? lowered.size() : lowered.rfind('<', closing);
    return content;
}

} // namespace

void KeyMask::Remember(const std::string& key)
{
    if (key.size() < kShortestKnownKey || key == kMaskedKey)
        return;
    m_keys.insert(key);
    m_keys.insert(WithoutEntities(key));
}

std::string KeyMask::InText(std::string text)
{
    std::string lowered = Lowered(text);
    for (Content key = NextKey(lowered, 0); key.begin != std::string::npos;
         key = NextKey(lowered, key.begin + kMaskedKey.size()))
    {
        const std::size_t size = key.end - key.begin;
        Remember(text.substr(key.begin, size));
        text.replace(key.begin, size, kMaskedKey);
        lowered.replace(key.begin, size, kMaskedKey);
    }
    for (const std::string& key : m_keys)
        for (std::size_t at = text.find(key); at != std::string::npos; at = text.find(key, at + kMaskedKey.size()))
            text.replace(at, key.size(), kMaskedKey);
    return text;
}

std::string KeyMask::InBytes(std::string bytes) const
{
    for (const std::string& key : m_keys)
        for (std::size_t at = bytes.find(key); at != std::string::npos; at = bytes.find(key, at))
            bytes.replace(at, key.size(), key.size(), '*');
    return bytes;
}

} // namespace calvix::recording
