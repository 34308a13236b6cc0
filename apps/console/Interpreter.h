#pragma once

#include "Command.h"

#include <iosfwd>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace console {

class Host;

/// Finds the command of a line in the tables and runs it.
class Interpreter {
public:
    explicit Interpreter(Host& host);

    /// Runs one line and delivers what the renderer has to say afterwards. An empty line or a
    /// comment does nothing. Throws CommandError.
    void run(std::string_view line);
    void run(std::vector<std::string> words);

    /// Runs a script. A failing command is reported on `errors` as "file:line: message" and ends
    /// the script, or, with `keepGoing`, only counts. Returns how many failed.
    int runScript(std::istream& in, std::string const& name, bool keepGoing, std::ostream& errors);

    [[nodiscard]] bool quitRequested() const { return quit_; }
    /// Every row, sorted by name.
    [[nodiscard]] std::vector<Command const*> const& commands() const { return commands_; }

private:
    void runWords(std::vector<std::string> words);
    void expectFailure(Arguments arguments);
    void help(Arguments& arguments);

    Host& host_;
    std::vector<Command const*> commands_;
    std::string lastOutput_; ///< what the command before the present one printed
    bool quit_ = false;
};

} // namespace console
