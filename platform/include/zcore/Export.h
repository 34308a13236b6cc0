#pragma once

/// Marks what the core library exports. A program that links the library's objects, and not the
/// shared library, defines ZCORE_STATIC.
#if defined(ZCORE_STATIC) && !defined(ZCORE_BUILDING_LIBRARY)
    #define ZCORE_EXPORT
#elif !defined(_WIN32)
    #define ZCORE_EXPORT __attribute__((visibility("default")))
#elif defined(ZCORE_BUILDING_LIBRARY)
    #define ZCORE_EXPORT __declspec(dllexport)
#else
    #define ZCORE_EXPORT __declspec(dllimport)
#endif
