#pragma once

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
    /// comment does nothing. Throws CommandError.
    void run(std::string_view line);
    void run(std::vector<std::string> const& words);

    /// Runs a script. A failing command is reported on `errors` as "file:line: message" and ends
    /// the script, or, with `keepGoing`, only counts. Returns how many failed.
    int runScript(std::istream& in, std::string const& name, bool keepGoing, std::ostream& errors);

private:
    Host& host_;
};

} // namespace app
