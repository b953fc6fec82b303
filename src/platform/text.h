#pragma once

#include "platform/operation.h"
#include "platform/records/system_records.h"

namespace calvix::platform
{

/// Text conversion between the platform's wide text and narrow code pages (0 is the active one), and GUID text.
/// A failing conversion gives 0 and leaves its reason in GetLastError.
struct Text
{
    Operation<int(
        UINT codePage, DWORD flags, const char* source, int sourceLength, wchar_t* destination, int destinationLength)>
        MultiByteToWideChar;
    Operation<int(UINT codePage,
                  DWORD flags,
                  const wchar_t* source,
                  int sourceLength,
                  char* destination,
                  int destinationLength,
                  const char* defaultCharacter,
                  BOOL* usedDefaultCharacter)>
        WideCharToMultiByte;
    Operation<int(const GUID& guid, wchar_t* text, int capacity)> StringFromGUID2;
};

} // namespace calvix::platform
