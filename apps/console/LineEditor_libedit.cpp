#include "console/LineEditor.h"

#include "host/CommandTable.h"

#include <cstdlib>
#include <cstring>
#include <memory>

#include <editline/readline.h>

namespace {

// The completion callbacks have no argument of their own.
std::size_t wordStart = 0;

char* nextCompletion(char const* text, int state) {
    static std::size_t next = 0;
    if (state == 0) {
        next = 0;
    }
    std::string const line = std::string(rl_line_buffer, wordStart) + text;
    while (next < app::allCommands().size()) {
        std::string const name(app::allCommands()[next++]->name);
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

std::optional<std::string> editLine(char const* prompt) {
    static bool begun = false;
    if (!begun) {
        begun = true;
        rl_attempted_completion_function = complete;
        using_history();
    }
    std::unique_ptr<char, decltype(&std::free)> const line(readline(prompt), &std::free);
    if (!line) {
        return {};
    }
    if (line.get()[0] != '\0') {
        add_history(line.get());
    }
    return line.get();
}
