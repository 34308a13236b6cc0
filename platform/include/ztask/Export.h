#pragma once

/// Marks what the task library exports.
#if defined(_WIN32)
    #if defined(ZTASK_BUILDING_LIBRARY)
        #define ZTASK_EXPORT __declspec(dllexport)
    #else
        #define ZTASK_EXPORT __declspec(dllimport)
    #endif
#else
    #define ZTASK_EXPORT __attribute__((visibility("default")))
#endif
