#include "shell/program_texts.h"

namespace calvix::host
{

std::span<const EnvironmentText> AllEnvironmentTexts()
{
    static constexpr EnvironmentText texts[] = {
        {"NO_COLOR", "Any value but an empty one: no colours, unless --color always is given"},
        {"TERM", "\"dumb\": the output has no colours and no progress lines, as in a file"},
    };
    return texts;
}

} // namespace calvix::host
