#pragma once

/// Marks what the renderer library exports.
#if defined(_WIN32)
    #if defined(NYXRENDER_BUILDING_LIBRARY)
        #define NYXRENDER_EXPORT __declspec(dllexport)
    #else
        #define NYXRENDER_EXPORT __declspec(dllimport)
    #endif
#else
    #define NYXRENDER_EXPORT __attribute__((visibility("default")))
#endif
