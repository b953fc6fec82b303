#include "shell/program_texts.h"

namespace calvix::host
{

std::span<const EnvironmentText> AllEnvironmentTexts()
{
    static constexpr EnvironmentText texts[] = {
        {"NO_COLOR", "With any value but an empty one: no colours, unless --color always asks for them"},
        {"TERM", "\"dumb\": the terminal is written to like a file, without colours and lines that draw themselves"},
    };
    return texts;
}

} // namespace calvix::host
