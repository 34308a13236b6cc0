#pragma once

#include "host/Arguments.h"

#include <span>
#include <string_view>

namespace app {

class Host;

/// One row of the command table.
struct Command {
    std::string_view name;      ///< one to three words
    std::string_view arguments; ///< as the help shows them
    std::string_view help;      ///< one line
    /// A whole line that works in the showroom of the examples with a surface and a brush, when
    /// those of the rows before it have run there.
    std::string_view example;
    /// Carries the command out; throws CommandError when that is not possible. What it leaves of
    /// `arguments` is refused afterwards, so one that changes something takes all of them first.
    void (*run)(Host& host, Arguments& arguments);
};

/// The commands of one file of commands/, which begin with its word.
struct Family {
    std::string_view help; ///< one line on all of them
    std::span<Command const> commands;
};

} // namespace app
