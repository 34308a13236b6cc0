#include "Terminal.h"

#include "host/CommandTable.h"
#include "host/Host.h"
#include "host/Interpreter.h"

#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>

#include <editline/readline.h>
#include <unistd.h>

namespace app {

namespace {

// The completion callbacks of the line editor have no argument of their own.
std::size_t wordStart = 0;

char* nextCompletion(char const* text, int state) {
    static std::size_t next = 0;
    if (state == 0) {
        next = 0;
    }
    std::string const line = std::string(rl_line_buffer, wordStart) + text;
    while (next < allCommands().size()) {
        std::string const name(allCommands()[next++]->name);
        if (name.starts_with(line)) {
            return strdup(name.c_str() + wordStart);
        }
    }
    return nullptr;
}

// What stands behind the cursor does not count.
char** complete(char const* text, int start, int) {
    wordStart = static_cast<std::size_t>(start);
    return rl_completion_matches(text, nextCompletion);
}

} // namespace

bool isTerminal() { return isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0; }

int runTerminalSession(Interpreter& interpreter, Host& host) {
    rl_attempted_completion_function = complete;
    using_history();
    host.out() << "\"help\" lists the commands, \"quit\" ends.\n";
    while (!host.endRequested()) {
        host.out().flush();
        std::unique_ptr<char, decltype(&std::free)> const line(readline("zsg> "), &std::free);
        if (line == nullptr) {
            host.out() << '\n';
            break;
        }
        if (line.get()[0] != '\0') {
            add_history(line.get());
        }
        try {
            interpreter.run(std::string_view(line.get()));
        } catch (std::exception const& error) {
            host.out().flush();
            std::cerr << error.what() << std::endl;
        }
    }
    return 0;
}

} // namespace app
