#pragma once

/// Marks what the core library exports.
#if defined(_WIN32)
    #if defined(ZCORE_BUILDING_LIBRARY)
        #define ZCORE_EXPORT __declspec(dllexport)
    #else
        #define ZCORE_EXPORT __declspec(dllimport)
    #endif
#else
    #define ZCORE_EXPORT __attribute__((visibility("default")))
#endif
