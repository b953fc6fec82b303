#pragma once

#if defined(_WIN32)
#if defined(CALVIX_BUILDING) && defined(_MSC_VER)
#define CALVIX_API __declspec(dllexport)
#elif defined(CALVIX_BUILDING) // src/calvix.def names what the DLL exports: without the private members
#define CALVIX_API
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
