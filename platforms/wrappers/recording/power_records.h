#pragma once

#include "wrappers/recording/fields.h"

namespace calvix::recording
{

/// The records of power management, field by field.

void Describe(Fields& fields, POWER_POLICY& policy);
void Describe(Fields& fields, SYSTEM_POWER_CAPABILITIES& capabilities);
void Describe(Fields& fields, SYSTEM_POWER_POLICY& policy);

} // namespace calvix::recording
