#pragma once

/// Marks what the renderer library exports. A program that links the library's objects, and not the
/// shared library, defines NYXRENDER_STATIC.
#if defined(NYXRENDER_STATIC) && !defined(NYXRENDER_BUILDING_LIBRARY)
    #define NYXRENDER_EXPORT
#elif !defined(_WIN32)
    #define NYXRENDER_EXPORT __attribute__((visibility("default")))
#elif defined(NYXRENDER_BUILDING_LIBRARY)
    #define NYXRENDER_EXPORT __declspec(dllexport)
#else
    #define NYXRENDER_EXPORT __declspec(dllimport)
#endif
