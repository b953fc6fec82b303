#pragma once

#include <string>

namespace calvix::dropin
{

/// Keeps this DLL in the process for good, because threads run in it and FreeLibrary cannot wait for them. Returns the
/// folder that it lies in, with the separator at the end.
std::wstring PinThisModule();

/// Whether the process is on its way out. Its other threads were ended wherever they were, so that what they had locked
/// stays locked: nothing may be waited for any more.
bool ProcessIsEnding();

} // namespace calvix::dropin
