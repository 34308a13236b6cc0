#pragma once

#include "host/Arguments.h"
#include "host/CommandResult.h"
#include "host/Host.h"
#include "host/didYouMean.h"
#include "host/printable.h"

#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace app {

/// The values of one type that commands have given a name.
template <class T>
struct NamedValues {
    std::map<std::string, T> byName;
};

/// The value that the next word names; throws CommandError when there is none.
template <class T>
T& takeNamed(Host& host, Arguments& arguments, char const* what) {
    std::string const name = arguments.word(what);
    auto& values = host.state<NamedValues<T>>().byName;
    auto const found = values.find(name);
    if (found == values.end()) {
        std::vector<std::string> names;
        names.reserve(values.size());
        for (auto const& entry : values) {
            names.push_back(entry.first);
        }
        throw CommandError("there is no \"" + name + '"' + didYouMean(name, names));
    }
    return found->second;
}

/// Gives a value a name, in place of what had it.
template <class T>
void keepNamed(Host& host, std::string const& name, T value) {
    host.state<NamedValues<T>>().byName.insert_or_assign(name, std::move(value));
}

/// The command that lists the names.
template <class T>
void listNamed(Host& host, Arguments&) {
    beginResultList(host);
    for (auto const& entry : host.state<NamedValues<T>>().byName) {
        host.out() << "  " << printable(entry.first) << '\n';
        addResult(host, [&] { return nlohmann::ordered_json(entry.first); });
    }
}

/// The command that forgets a value.
template <class T>
void deleteNamed(Host& host, Arguments& arguments) {
    std::string const name = arguments.empty() ? std::string() : arguments.peek();
    takeNamed<T>(host, arguments, "a name"); // or a complaint
    arguments.done();
    host.state<NamedValues<T>>().byName.erase(name);
}

} // namespace app
