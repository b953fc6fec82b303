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

} // namespace calvix::forms
