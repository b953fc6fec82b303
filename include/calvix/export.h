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

// Strings and vectors cross this interface, and those of a Visual C++ Debug program are larger than those of a Release one.
// calvix.dll exports one number that is named for its kind, and whoever includes this header has the linker look for it: a
// mixture ends with "unresolved external symbol __imp_calvix_dll_for_debug_programs" and not with a crash.
#if defined(_MSC_VER) && !defined(CALVIX_STATIC)
#include <vector> // says which kind it is
#if defined(_DEBUG)
#define CALVIX_KIND calvix_dll_for_debug_programs
#define CALVIX_NEEDED_KIND "/include:__imp_calvix_dll_for_debug_programs"
#define CALVIX_ITERATOR_DEBUG_LEVEL 2
#else
#define CALVIX_KIND calvix_dll_for_release_programs
#define CALVIX_NEEDED_KIND "/include:__imp_calvix_dll_for_release_programs"
#define CALVIX_ITERATOR_DEBUG_LEVEL 0
#endif
#if defined(_ITERATOR_DEBUG_LEVEL) && _ITERATOR_DEBUG_LEVEL != CALVIX_ITERATOR_DEBUG_LEVEL
#error "calvix.dll knows the vectors of the usual Debug and Release programs only: leave _ITERATOR_DEBUG_LEVEL unset"
#endif
#if defined(CALVIX_BUILDING)
extern "C" CALVIX_API const int CALVIX_KIND;
#else
#pragma comment(linker, CALVIX_NEEDED_KIND)
#endif
#endif
