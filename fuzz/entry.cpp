// The fuzzing engine's way into the one target that the program is built for.

#include "targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// A broken promise is not caught here: it ends the program, which is how the engine learns of a finding.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    calvix::fuzz::CALVIX_FUZZ_TARGET(data, size);
    return 0;
}
