#pragma once

namespace calvix::host
{

// The files of cli/completions, as they are installed.
extern const char* const kBashCompletion;
extern const char* const kZshCompletion;
extern const char* const kFishCompletion;
extern const char* const kPowerShellCompletion;

} // namespace calvix::host
