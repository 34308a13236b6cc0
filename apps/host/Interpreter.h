#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace app {

class Host;

/// What the command before the present one printed, kept in the host's state.
struct LastOutput {
    std::string text;
};

/// Runs lines, words and scripts on a host.
class Interpreter {
public:
    explicit Interpreter(Host& host) : host_(host) {}

    /// Runs one line and delivers what the renderer has to say afterwards. An empty line or a
    /// comment does nothing. Throws CommandError. What the command prints, and what it throws,
    /// holds nothing that a terminal would obey.
    void run(std::string_view line);
    void run(std::vector<std::string> const& words);

    /// Commands that the program has besides the table: `own` is asked first, and says whether it
    /// knew the words. It may throw CommandError.
    void setOwnCommands(std::function<bool(std::vector<std::string> const&)> own) {
        own_ = std::move(own);
    }

    /// Puts a block of the colour before every "#rrggbb", for a terminal that can show it.
    void showSwatches(bool on) { swatches_ = on; }

    /// Prints every line of a script before it is run, as if it had been typed; comments stand as
    /// they are, so that they title what follows.
    void echo(bool on) { echo_ = on; }

    /// Runs a script. A failing command is reported on `errors` as "file:line: message" and ends
    /// the script, or, with `keepGoing`, only counts. Returns how many failed. Throws CommandError,
    /// with place and code, when it is interrupted.
    int runScript(std::istream& in, std::string const& name, bool keepGoing, std::ostream& errors);
    /// The same for the file of a path (UTF-8), which may be a pipe or a device. One that cannot be
    /// opened is reported on `errors` and counts as one failure.
    int runScriptFile(std::string const& path, bool keepGoing, std::ostream& errors);

private:
    Host& host_;
    std::function<bool(std::vector<std::string> const&)> own_;
    bool swatches_ = false;
    bool echo_ = false;
};

} // namespace app
