#pragma once

#include "Arguments.h"

#include <span>
#include <string_view>

namespace console {

class Host;

/// One row of the command table.
struct Command {
    std::string_view name;      ///< one or two words
    std::string_view arguments; ///< as the help shows them
    std::string_view help;      ///< one line
    /// Carries the command out; throws CommandError when that is not possible.
    void (*run)(Host& host, Arguments& arguments);
};

/// The tables, one per area; each lives in the file of its area.
[[nodiscard]] std::span<Command const> sceneCommands();
[[nodiscard]] std::span<Command const> eventCommands();
[[nodiscard]] std::span<Command const> undoCommands();
[[nodiscard]] std::span<Command const> expectCommands();
[[nodiscard]] std::span<Command const> colorCommands();
[[nodiscard]] std::span<Command const> colorwayCommands();
[[nodiscard]] std::span<Command const> editCommands();
[[nodiscard]] std::span<Command const> paramCommands();
[[nodiscard]] std::span<Command const> valueCommands();
[[nodiscard]] std::span<Command const> iorCommands();
[[nodiscard]] std::span<Command const> curveCommands();
[[nodiscard]] std::span<Command const> gradientCommands();
[[nodiscard]] std::span<Command const> weaveCommands();

} // namespace console
