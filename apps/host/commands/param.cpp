#include "host/Command.h"
#include "host/CommandResult.h"
#include "host/DemoPanel.h"
#include "host/Host.h"
#include "host/ValueText.h"
#include "host/parameterResult.h"
#include "zsg/values/Parameter.h"
#include "zsg/values/ParameterData.h"
#include "zsg/values/ValueVariant.h"

#include <ostream>

namespace app {

namespace {

using zsg::Parameter;

Parameter take(Host& host, Arguments& arguments) {
    QString const name = QString::fromStdString(arguments.word("a parameter"));
    for (Parameter const& parameter : host.state<DemoPanel>().parameters) {
        if (parameter.name() == name) {
            return parameter;
        }
    }
    throw CommandError("there is no parameter \"" + name.toStdString() + "\"");
}

void list(Host& host, Arguments&) {
    beginResultList(host);
    for (Parameter const& parameter : host.state<DemoPanel>().parameters) {
        addResult(host, [&] { return parameterResult(parameter); });
        host.out() << "  ";
        if (parameter.isValid()) {
            host.out() << parameter;
        } else {
            host.out() << parameter.name().toStdString() << " is invalid";
        }
        host.out() << '\n';
    }
}

void show(Host& host, Arguments& arguments) {
    Parameter const p = take(host, arguments);
    arguments.done();
    host.out() << "  " << p.displayName().toStdString() << ", " << zsg::typeName(p.type())
               << ", flags 0x" << std::hex << p.flags().toInt() << std::dec << ", quantity "
               << static_cast<int>(p.quantity()) << (p.isValid() ? "" : ", invalid")
               << (p.isEnabled() ? "" : ", disabled") << (p.isPure() ? ", pure" : "")
               << (p.useKelvin() ? ", in kelvin" : "") << '\n';
    float low = 0;
    float high = 0;
    int lowest = 0;
    int highest = 0;
    if (p.limits(lowest, highest)) {
        host.out() << "  limits " << lowest << " to " << highest << '\n';
    } else if (p.limits(low, high)) {
        host.out() << "  limits " << low << " to " << high << '\n';
    }
    if (p.sliderRange(low, high)) {
        host.out() << "  slider " << low << " to " << high << '\n';
    }
    giveResult(host, [&] { return parameterResult(p); });
}

void set(Host& host, Arguments& arguments) {
    Parameter parameter = take(host, arguments);
    if (!parameter.isValid() || parameter.isPure()) {
        throw CommandError("the parameter has no value");
    }
    bool const changed = setValue(host, parameter, arguments);
    host.out() << (changed ? "  changed\n" : "  unchanged\n");
}

constexpr Command table[] = {
    {"param list", "", "list the demonstration panel", "param list", list},
    {"param show", "PARAM", "flags, limits and ranges of a parameter", "param show tint", show},
    {"param set", "PARAM WORDS...", "set its value and say whether it changed",
     "param set tint #ffd700", set},
};

} // namespace

Family paramFamily() { return {"a demonstration panel of parameters", table}; }

} // namespace app
