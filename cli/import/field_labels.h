#pragma once

#include "import/capture_text.h"

namespace calvix::host
{

/// Whether a field's name is one of the English tool's.
bool HasEnglishLabel(const CaptureField& field);

/// Joins lines that were broken: numbers that continue a list of numbers.
void JoinBrokenLists(std::vector<CaptureField>& fields);

/// Says what a field is, unless its own name does.
inline bool Recognise(CaptureField& field, const char* key)
{
    field.understood = true;
    if (HasEnglishLabel(field))
        return false;
    field.key = key;
    return true;
}

} // namespace calvix::host
