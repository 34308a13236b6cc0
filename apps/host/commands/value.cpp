#include "host/Command.h"
#include "host/NamedValues.h"
#include "host/ValueText.h"
#include "host/valueResult.h"
#include "zsg/values/ValueVariant.h"
#include "zsg/values/hash_variant.h"

#include <memory>
#include <ostream>

namespace app {

namespace {

using Holder = std::shared_ptr<zsg::Variant>;

Holder& take(Host& host, Arguments& arguments) {
    return takeNamed<Holder>(host, arguments, "a value");
}

void print(Host& host, zsg::Variant const& value) {
    host.out() << "  " << zsg::typeName(value.type()) << ' ' << value << '\n';
}

void make(Host& host, Arguments& arguments) {
    std::string const name = arguments.word("a name");
    Holder holder(zsg::makeVariant(takeType(arguments)));
    if (!arguments.empty()) {
        withValue(host, holder->type(), arguments, [&](void const* value) { holder->set(value); });
    }
    keepNamed(host, name, holder);
    print(host, *holder);
}

void set(Host& host, Arguments& arguments) {
    Holder const holder = take(host, arguments);
    withValue(host, holder->type(), arguments, [&](void const* value) {
        host.out() << (holder->set(value) ? "  changed\n" : "  unchanged\n");
    });
}

void show(Host& host, Arguments& arguments) {
    Holder const holder = take(host, arguments);
    arguments.done();
    print(host, *holder);
    giveResult(host, [&] {
        nlohmann::ordered_json result = {{"type", zsg::typeName(holder->type())}};
        addValue(result, *holder);
        return result;
    });
}

void hash(Host& host, Arguments& arguments) {
    Holder const holder = take(host, arguments);
    arguments.done();
    host.out() << std::hex << zsg::hash_variant(holder.get()) << std::dec << '\n';
}

void clone(Host& host, Arguments& arguments) {
    Holder const source = take(host, arguments);
    std::string const name = arguments.word("a name");
    arguments.done();
    keepNamed(host, name, Holder(source->cloneValue()));
}

void copy(Host& host, Arguments& arguments) {
    Holder const from = take(host, arguments);
    Holder const to = take(host, arguments);
    arguments.done();
    if (from->type() != to->type()) {
        throw CommandError("the two are of different types");
    }
    host.out() << (from->copyTo(*to) ? "  changed\n" : "  unchanged\n");
}

void types(Host& host, Arguments&) {
    for (zsg::Type const type : valueTypes()) {
        host.out() << "  " << static_cast<int>(type) << ' ' << zsg::typeName(type) << '\n';
    }
}

constexpr Command table[] = {
    {"value list", "", "list the names", "value list", listNamed<Holder>},
    {"value new", "NAME TYPE [VALUE]", "make a holder with its default, or a value",
     "value new tint Color SteelBlue", make},
    {"value set", "VALUE WORDS...", "set it and say whether it changed", "value set tint #4682b4",
     set},
    {"value show", "VALUE", "print it", "value show tint", show},
    {"value hash", "VALUE", "print its hash", "value hash tint", hash},
    {"value copy", "VALUE NAME", "make a copy", "value copy tint spare", clone},
    {"value assign", "FROM TO", "copy one into another of the same type", "value assign tint spare",
     copy},
    {"value types", "", "list the types", "value types", types},
    {"value delete", "VALUE", "forget it", "value delete spare", deleteNamed<Holder>},
};

} // namespace

Family valueFamily() { return {"holders of values", table}; }

} // namespace app
