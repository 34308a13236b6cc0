#pragma once

/// ZSG_EXPORT marks exported classes and functions. ZSG_TEMPLATE_DECLARATION stands on the `extern
/// template` line of an instantiation, ZSG_TEMPLATE_DEFINITION on its definition. A program that
/// links the library's objects, and not the shared library, defines ZSG_STATIC.
#if defined(ZSG_STATIC) && !defined(ZSG_BUILDING_LIBRARY)
    #define ZSG_EXPORT
#elif !defined(_WIN32)
    #define ZSG_EXPORT __attribute__((visibility("default")))
#elif defined(ZSG_BUILDING_LIBRARY)
    #define ZSG_EXPORT __declspec(dllexport)
#else
    #define ZSG_EXPORT __declspec(dllimport)
#endif

// The compiler decides, not the system: GCC and Clang take the attribute from the declaration and
// ignore one that comes later, on Windows too; MSVC wants dllexport on the definition.
#if defined(_MSC_VER) && defined(ZSG_BUILDING_LIBRARY)
    #define ZSG_TEMPLATE_DECLARATION
    #define ZSG_TEMPLATE_DEFINITION ZSG_EXPORT
#else
    #define ZSG_TEMPLATE_DECLARATION ZSG_EXPORT
    #define ZSG_TEMPLATE_DEFINITION
#endif
