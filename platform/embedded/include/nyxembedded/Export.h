#pragma once

/// Marks what the host library of the embedded platform exports. A program that links the
/// objects of the library, and not the shared library, defines NYXEMBEDDED_STATIC.
#if defined(NYXEMBEDDED_STATIC) && !defined(NYXEMBEDDED_BUILDING_LIBRARY)
    #define NYXEMBEDDED_EXPORT
#elif !defined(_WIN32)
    #define NYXEMBEDDED_EXPORT __attribute__((visibility("default")))
#elif defined(NYXEMBEDDED_BUILDING_LIBRARY)
    #define NYXEMBEDDED_EXPORT __declspec(dllexport)
#else
    #define NYXEMBEDDED_EXPORT __declspec(dllimport)
#endif
