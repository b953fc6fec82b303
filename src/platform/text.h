#pragma once

#include "platform/records/text_records.h"

namespace calvix::platform
{

/// Text conversion between the platform's wide text and narrow code pages (0 is the active one), and GUID text.
/// A failing conversion gives 0 and leaves its reason in GetLastError.
class Text
{
public:
    virtual ~Text() = default;

    virtual int MultiByteToWideChar(UINT codePage,
                                    DWORD flags,
                                    const char* source,
                                    int sourceLength,
                                    wchar_t* destination,
                                    int destinationLength) = 0;
    virtual int WideCharToMultiByte(UINT codePage,
                                    DWORD flags,
                                    const wchar_t* source,
                                    int sourceLength,
                                    char* destination,
                                    int destinationLength,
                                    const char* defaultCharacter,
                                    BOOL* usedDefaultCharacter) = 0;
    virtual int StringFromGUID2(const GUID& guid, wchar_t* text, int capacity) = 0;
};

} // namespace calvix::platform
