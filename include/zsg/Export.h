#pragma once

/// ZSG_EXPORT marks exported classes and functions. The other two mark the explicit instantiations
/// of exported templates: GCC and Clang want the attribute on the `extern template` line, MSVC
/// wants dllexport on the definition.
#if defined(_WIN32)
    #if defined(ZSG_BUILDING_LIBRARY)
        #define ZSG_EXPORT __declspec(dllexport)
        #define ZSG_TEMPLATE_DECLARATION
        #define ZSG_TEMPLATE_DEFINITION __declspec(dllexport)
    #else
        #define ZSG_EXPORT __declspec(dllimport)
        #define ZSG_TEMPLATE_DECLARATION __declspec(dllimport)
        #define ZSG_TEMPLATE_DEFINITION
    #endif
#else
    #define ZSG_EXPORT __attribute__((visibility("default")))
    #define ZSG_TEMPLATE_DECLARATION __attribute__((visibility("default")))
    #define ZSG_TEMPLATE_DEFINITION
#endif
