// The platform's error numbers: the SDK's on Windows, the same names elsewhere.
#pragma once

#include <calvix/platform_records.h>

#ifndef _WIN32
#include <calvix/records/error_numbers.h>
#endif
