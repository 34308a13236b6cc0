#include "host/ValueText.h"

#include "host/ColorArguments.h"
#include "host/NamedValues.h"
#include "zsg/values/Parameter.h"
#include "zsg/values/ValueVariant.h"

namespace app {

namespace {

using zsg::Type;

float takeFloat(Arguments& arguments) { return static_cast<float>(arguments.real("a number")); }

/// LABEL... [select N]; the ids count from 0.
zsg::Enumerable takeEnumerable(Arguments& arguments) {
    zsg::Enumerable options;
    while (!arguments.empty()) {
        if (arguments.flag("select")) {
            options.setSelection(arguments.integer("a selection"));
        } else {
            options.append({static_cast<int>(options.size()),
                            QString::fromStdString(arguments.word("a label"))});
        }
    }
    return options;
}

} // namespace

void withValue(Host& host, Type type, Arguments& arguments,
               std::function<void(void const*)> const& use) {
    auto const hand = [&](auto value) {
        arguments.done();
        use(&value);
    };
    switch (type) {
    case Type::Boolean:
        return hand(arguments.onOff());
    case Type::Integer:
        return hand(arguments.integer("a whole number"));
    case Type::IntegerList: {
        QList<int> list;
        while (!arguments.empty()) {
            list.append(arguments.integer("a whole number"));
        }
        return hand(list);
    }
    case Type::Float:
        return hand(takeFloat(arguments));
    case Type::Float2: {
        float const x = takeFloat(arguments);
        return hand(nyxVector2f{x, takeFloat(arguments)});
    }
    case Type::Float3: {
        float const x = takeFloat(arguments);
        float const y = takeFloat(arguments);
        return hand(nyxVectorf{x, y, takeFloat(arguments)});
    }
    case Type::Double:
        return hand(arguments.real("a number"));
    case Type::Double3: {
        nyxVector v;
        v.x = arguments.real("a number");
        v.y = arguments.real("a number");
        v.z = arguments.real("a number");
        return hand(v);
    }
    case Type::String:
        return hand(QString::fromStdString(arguments.word("a text")));
    case Type::StringList: {
        QList<QString> list;
        for (std::string const& word : arguments.rest()) {
            list.append(QString::fromStdString(word));
        }
        return hand(list);
    }
    case Type::FilePath:
        return hand(zsg::FilePath(QString::fromStdString(arguments.word("a path"))));
    case Type::Matrix: {
        nyxMatrix matrix;
        for (double& m : matrix.m) {
            m = arguments.real("sixteen numbers");
        }
        return hand(matrix);
    }
    case Type::Color: {
        nyxColor_rgba const c = takeRgba(host, arguments);
        return hand(ZColorExt(c.r, c.g, c.b, c.a));
    }
    case Type::ColorAlpha: {
        nyxColor_rgba const c = takeRgba(host, arguments);
        return hand(ZColorExtAlpha(c.r, c.g, c.b, c.a));
    }
    case Type::FloatArray: {
        zsg::FloatArray list;
        while (!arguments.empty()) {
            list.append(takeFloat(arguments));
        }
        return hand(list);
    }
    case Type::AxaltaColor: {
        nyxColor const a = takeRgb(host, arguments);
        nyxColor const b = takeRgb(host, arguments);
        return hand(zsg::AxaltaColor(a, b, takeRgb(host, arguments)));
    }
    case Type::Enumerable:
        return hand(takeEnumerable(arguments));
    case Type::WeavePattern:
        return hand(takeNamed<zsg::WeavePattern>(host, arguments, "the name of a weave"));
    case Type::ColorGradient:
        return hand(takeNamed<zsg::ColorGradient>(host, arguments, "the name of a gradient"));
    case Type::AnimationCurve:
        return hand(takeNamed<zsg::AnimationCurve>(host, arguments, "the name of a curve"));
        // No default: the compiler asks for the words of a new type.
#define APP_BARE(member, number, T) case Type::member:
        ZSG_BARE_TYPES(APP_BARE)
#undef APP_BARE
        break;
    }
    throw CommandError(std::string("a ") + zsg::typeName(type) + " has no value");
}

bool setValue(Host& host, zsg::Parameter& parameter, Arguments& arguments) {
    bool changed = false;
    withValue(host, parameter.type(), arguments, [&](void const* value) {
        switch (parameter.type()) {
#define APP_SET(member, number, T)                                                                 \
    case Type::member:                                                                             \
        changed = parameter.setValue(*static_cast<T const*>(value));                               \
        break;
            ZSG_VALUE_TYPES(APP_SET)
#undef APP_SET
        default:
            break;
        }
    });
    return changed;
}

std::span<Type const> valueTypes() {
#define APP_TYPE(member, number, T) Type::member,
    static constexpr Type types[] = {ZSG_VALUE_TYPES(APP_TYPE)};
#undef APP_TYPE
    return types;
}

Type takeType(Arguments& arguments) {
    std::string const name = arguments.word("a type");
    for (Type const type : valueTypes()) {
        if (name == zsg::typeName(type)) {
            return type;
        }
    }
    throw CommandError("\"" + name + "\" is no type of a value");
}

} // namespace app
