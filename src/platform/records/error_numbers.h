// The platform's error numbers: the SDK's on Windows, the same names elsewhere.
#pragma once

#include <calvix/platform_records.h>

#ifdef _WIN32

// Not every SDK lists the numbers that come from the network driver interface.
#ifndef ERROR_NDIS_DOT11_POWER_STATE_INVALID
#define ERROR_NDIS_DOT11_POWER_STATE_INVALID 0x80342002L
#endif

#else
#include <calvix/records/error_numbers.h>
#endif
