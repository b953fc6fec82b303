#pragma once

#if defined(_WIN32)
#if defined(CALVIX_BUILDING)
#define CALVIX_API __declspec(dllexport)
#elif defined(CALVIX_STATIC)
#define CALVIX_API
#else
#define CALVIX_API __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define CALVIX_API __attribute__((visibility("default")))
#else
#define CALVIX_API
#endif
