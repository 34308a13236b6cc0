#pragma once

/// The closed set of value types, written once. The `Type` enum, its names, the holders, equality,
/// hashing and the text form are made from these two lists; a new value type begins with a line
/// here. Each line is (enumerator, number, held C++ type). The numbers are stored and compared as
/// integers.

/// Types that hold a value; makeVariant creates a holder for each.
#define ZSG_VALUE_TYPES(X)                                                                         \
    X(Boolean, 1, bool)                                                                            \
    X(Integer, 2, int)                                                                             \
    X(IntegerList, 3, QList<int>)                                                                  \
    X(Float, 4, float)                                                                             \
    X(Float2, 5, nyxVector2f)                                                                      \
    X(Float3, 6, nyxVectorf)                                                                       \
    X(Double, 7, double)                                                                           \
    X(Double3, 8, nyxVector)                                                                       \
    X(String, 9, QString)                                                                          \
    X(StringList, 10, QList<QString>)                                                              \
    X(FilePath, 11, zsg::FilePath)                                                                 \
    X(Matrix, 12, nyxMatrix)                                                                       \
    X(Color, 13, ZColorExt)                                                                        \
    X(ColorAlpha, 14, ZColorExtAlpha)                                                              \
    X(FloatArray, 15, zsg::FloatArray)                                                             \
    X(ColorGradient, 16, zsg::ColorGradient)                                                       \
    X(AnimationCurve, 17, zsg::AnimationCurve)                                                     \
    X(AxaltaColor, 18, zsg::AxaltaColor)                                                           \
    X(WeavePattern, 19, zsg::WeavePattern)                                                         \
    X(Enumerable, 20, zsg::Enumerable)

/// Types without a holder of their own. A parameter bound to a shader pointer reports ShaderBase.
#define ZSG_BARE_TYPES(X)                                                                          \
    X(Null, 0, void)                                                                               \
    X(Node, 0x1000, void)                                                                          \
    X(ShaderBase, 0x10000, void)                                                                   \
    X(ShaderSurface, 0x10001, void)                                                                \
    X(ShaderLabel, 0x10002, void)                                                                  \
    X(ShaderBump, 0x10003, void)                                                                   \
    X(ShaderGeometry, 0x10004, void)                                                               \
    X(ShaderUv, 0x10005, void)
