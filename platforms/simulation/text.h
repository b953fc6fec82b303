#pragma once

#include "platform/text.h"
#include "simulation/facility.h"

#include <cstdint>
#include <string>

namespace calvix::simulation
{

/// The platform's text conversions, for a computer whose active code page can be chosen.
///
/// Composing and decomposing (MB_COMPOSITE, WC_COMPOSITECHECK and what goes with it) is not furnished: those flags are
/// refused as invalid ones are.
class SimulatedText final : Facility
{
public:
    using Facility::Facility;

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
    std::uint32_t Resolve(UINT codePage) const;
    template <typename Character>
    int Deliver(std::uint32_t codePage, const std::basic_string<Character>& text, Character* destination, int room);
};

} // namespace calvix::simulation
