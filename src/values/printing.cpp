#include "values/defaults.h"
#include "zsg/values/Parameter.h"
#include "zsg/values/ParameterData.h"
#include "zsg/values/ValueVariant.h"

#include <concepts>
#include <ostream>
#include <string_view>

namespace zsg {
namespace {

template <class T, class... Ts>
concept IsOneOf = (std::same_as<T, Ts> || ...);

void printUtf8(std::ostream& os, QString const& text) {
    QByteArray const bytes = text.toUtf8();
    os << std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

/// The types that print their name only. It is a list, so that a new type must be put there or get
/// a text of its own.
template <class T>
concept PrintedByName = IsOneOf<T, nyxMatrix, FloatArray, ColorGradient, AnimationCurve,
                                AxaltaColor, WeavePattern, Enumerable>;

template <PrintedByName T>
void print(std::ostream& os, T const&) {
    os << typeName(typeOf<T>) << "()";
}

void print(std::ostream& os, bool value) { os << value; }
void print(std::ostream& os, int value) { os << value; }
void print(std::ostream& os, float value) { os << value; }
void print(std::ostream& os, double value) { os << value; }

void print(std::ostream& os, nyxVector2f const& value) {
    os << '<' << value.x << ", " << value.y << '>';
}

void print(std::ostream& os, nyxVectorf const& value) {
    os << '<' << value.x << ", " << value.y << ", " << value.z << '>';
}

void print(std::ostream& os, nyxVector const& value) {
    os << '<' << value.x << ", " << value.y << ", " << value.z << '>';
}

void print(std::ostream& os, QString const& value) {
    os << '"';
    printUtf8(os, value);
    os << '"';
}

void print(std::ostream& os, FilePath const& value) { print(os, value.toString()); }

void print(std::ostream& os, QList<int> const& value) {
    if (value.size() > 8) {
        os << value.size() << " elements";
        return;
    }
    char const* separator = "";
    for (int const element : value) {
        os << separator << element;
        separator = ", ";
    }
}

void print(std::ostream& os, QList<QString> const& value) { os << value.size() << " elements"; }

void print(std::ostream& os, ZColorExt const& value) {
    nyxColor const color = value.getActive();
    os << "RGB(" << color.r << ", " << color.g << ", " << color.b << ')';
}

void print(std::ostream& os, ZColorExtAlpha const& value) {
    nyxColor_rgba const color = value.rgba();
    os << "RGBA(" << color.r << ", " << color.g << ", " << color.b << ", " << color.a << ')';
}

template <class T>
void printHeld(std::ostream& os, Variant const& variant) {
    T value = defaultValue<T>();
    variant.get(&value);
    print(os, value);
}

} // namespace

std::ostream& operator<<(std::ostream& os, Variant const& variant) {
    switch (Type const type = variant.type()) {
#define ZSG_PRINT(member, number, T)                                                               \
    case Type::member:                                                                             \
        printHeld<T>(os, variant);                                                                 \
        break;
        ZSG_VALUE_TYPES(ZSG_PRINT)
#undef ZSG_PRINT
    default:
        os << typeName(type) << "()";
    }
    return os;
}

std::ostream& operator<<(std::ostream& os, Parameter const& parameter) {
    if (!parameter.d_) {
        return os << "Parameter()";
    }
    os << "Parameter('";
    printUtf8(os, parameter.name());
    os << "', " << typeName(parameter.type()) << ' ';
    if (parameter.isPure()) {
        os << "(pure)";
    } else if (parameter.d_->value) {
        os << *parameter.d_->value;
    }
    return os << ')';
}

} // namespace zsg
