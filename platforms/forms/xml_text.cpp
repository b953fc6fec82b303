#include "forms/xml_text.h"

#include <algorithm>
#include <iterator>

namespace calvix::forms
{

namespace
{

struct Entity
{
    char character;
    std::string_view text;
};

/// The ampersand comes last: what it escapes may look like another entity.
constexpr Entity kEntities[] = {{'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}, {'\'', "&apos;"}, {'&', "&amp;"}};

} // namespace

std::string EscapedXml(std::string_view text)
{
    std::string escaped;
    for (const char character : text)
    {
        const Entity* const entity =
            std::find_if(std::begin(kEntities), std::end(kEntities),
                         [character](const Entity& candidate) { return candidate.character == character; });
        if (entity != std::end(kEntities))
            escaped += entity->text;
        else
            escaped += character;
    }
    return escaped;
}

std::string UnescapedXml(std::string text)
{
    for (const Entity& entity : kEntities)
        for (std::size_t at = text.find(entity.text); at != std::string::npos; at = text.find(entity.text, at + 1))
            text.replace(at, entity.text.size(), 1, entity.character);
    return text;
}

} // namespace calvix::forms
