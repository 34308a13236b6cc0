#pragma once

/// Marks what the task library exports. A program that links the library's objects, and not the
/// shared library, defines ZTASK_STATIC.
#if defined(ZTASK_STATIC) && !defined(ZTASK_BUILDING_LIBRARY)
    #define ZTASK_EXPORT
#elif !defined(_WIN32)
    #define ZTASK_EXPORT __attribute__((visibility("default")))
#elif defined(ZTASK_BUILDING_LIBRARY)
    #define ZTASK_EXPORT __declspec(dllexport)
#else
    #define ZTASK_EXPORT __declspec(dllimport)
#endif
