#pragma once

#include "host/Host.h"

#include <nlohmann/json.hpp>

namespace app {

/// What a command found, for programs that read it: kept in the host's state.
struct CommandResult {
    bool isWanted = false; ///< somebody reads it; else it is not made
    nlohmann::ordered_json value;
};

/// Hands over what `make` returns, a nlohmann::ordered_json, in place of what was given before.
template <class Make>
void giveResult(Host& host, Make const& make) {
    if (auto& result = host.state<CommandResult>(); result.isWanted) {
        result.value = make();
    }
}

/// Adds one of several things of a list.
template <class Make>
void addResult(Host& host, Make const& make) {
    if (auto& result = host.state<CommandResult>(); result.isWanted) {
        result.value.push_back(make());
    }
}

/// One event as data.
inline nlohmann::ordered_json eventResult(EventLog::Entry const& event) {
    return {{"id", event.id}, {"type", event.typeText}, {"payload", event.payload}};
}

/// The result is a list, empty for now.
inline void beginResultList(Host& host) {
    giveResult(host, [] { return nlohmann::ordered_json::array(); });
}

} // namespace app
