#include "consoleInput.h"
#include "host/Arguments.h"
#include "host/Host.h"
#include "host/Interpreter.h"
#include "require.h"

#include <cstdint>
#include <sstream>

/// Lines of the console, on a scene of two colours and a multi-colour over them. Whatever
/// they do, a terminal gets nothing to obey, and what was lent comes back.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    ConsoleSandbox::enter();
    std::ostringstream out;
    app::Host host(out);
    app::Interpreter interpreter(host);
    // Not among the lines below: these must not fail.
    for (char const* const made : {"raw color new Red 1 0 0", "raw color new Green 0 1 0",
                                   "raw multi new Cover Red Green"}) {
        interpreter.run(made);
    }
    std::istringstream script(std::string(reinterpret_cast<char const*>(data), size));
    std::string line;
    for (int lines = 0; lines < 40 && std::getline(script, line) && !host.endRequested();) {
        if (!isHarmless(line)) {
            continue;
        }
        ++lines;
        try {
            interpreter.run(line);
        } catch (app::CommandError const& error) {
            out << error.what() << '\n';
        }
    }
    for (char const c : out.str()) {
        require(c == '\n' || c == '\t' || static_cast<unsigned char>(c) >= ' ');
    }
    return 0;
}
