#pragma once

#include "platform/text.h"
#include "simulation/last_error_cell.h"

#include <cstdint>

namespace calvix::simulation
{

/// The platform's text conversions, for a computer whose active code page can be chosen.
///
/// Composing and decomposing (MB_COMPOSITE, WC_COMPOSITECHECK and what goes with it) is not furnished: those flags are
/// refused as invalid ones are.
class SimulatedText final
{
public:
    /// `lastError` receives the reason of a failure, `codePage` is the active code page; both outlive this object.
    SimulatedText(LastErrorCell& lastError, const std::uint32_t& codePage)
        : m_lastError(lastError), m_codePage(codePage)
    {
    }

    int MultiByteToWideChar(
        UINT codePage, DWORD flags, const char* source, int sourceLength, wchar_t* destination, int destinationLength);
    int WideCharToMultiByte(UINT codePage,
                            DWORD flags,
                            const wchar_t* source,
                            int sourceLength,
                            char* destination,
                            int destinationLength,
                            const char* defaultCharacter,
                            BOOL* usedDefaultCharacter);
    int StringFromGUID2(const GUID& guid, wchar_t* text, int capacity);

private:
    int Fail(DWORD error);
    std::uint32_t Resolve(UINT codePage) const;

    LastErrorCell& m_lastError;
    const std::uint32_t& m_codePage;
};

} // namespace calvix::simulation
