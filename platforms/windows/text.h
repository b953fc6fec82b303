#pragma once

#include "platform/text.h"

namespace calvix::windows
{

/// Text conversion, and GUID text.
class Text final : public platform::Text
{
public:
    int MultiByteToWideChar(UINT codePage,
                            DWORD flags,
                            const char* source,
                            int sourceLength,
                            wchar_t* destination,
                            int destinationLength) override;
    int WideCharToMultiByte(UINT codePage,
                            DWORD flags,
                            const wchar_t* source,
                            int sourceLength,
                            char* destination,
                            int destinationLength,
                            const char* defaultCharacter,
                            BOOL* usedDefaultCharacter) override;
    int StringFromGUID2(const GUID& guid, wchar_t* text, int capacity) override;
};

} // namespace calvix::windows
