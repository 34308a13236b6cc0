#include "host/Interpreter.h"

#include "host/CommandTable.h"
#include "host/Host.h"
#include "host/LineReader.h"
#include "host/printable.h"

#include <algorithm>
#include <ostream>
#include <sstream>

namespace app {

void Interpreter::run(std::string_view line) {
    if (std::size_t const at = invalidUtf8At(line); at != std::string_view::npos) {
        throw CommandError("byte " + std::to_string(at + 1) + " is not valid UTF-8");
    }
    run(splitWords(line));
}

void Interpreter::run(std::vector<std::string> const& words) {
    if (words.empty()) {
        return;
    }
    // Names and paths end at it further down, so they would become others than those given.
    if (std::ranges::any_of(words, [](auto const& w) { return w.find('\0') != w.npos; })) {
        throw CommandError("a word holds a zero byte");
    }
    std::ostream& out = host_.out();
    std::ostringstream captured;
    struct Restore {
        Host& host;
        std::ostream& out;
        std::ostringstream& captured;
        ~Restore() {
            host.setOut(out);
            out << captured.view();
        }
    } const restore{host_, out, captured};
    host_.setOut(captured);
    carryOut(host_, words);
    // Several expectations may look at the output of one command.
    if (words[0] != "expect") {
        host_.state<LastOutput>().text = captured.str();
    }
}

int Interpreter::runScript(std::istream& in, std::string const& name, bool keepGoing,
                           std::ostream& errors) {
    int failures = 0;
    int number = 0;
    std::string line;
    while (!host_.endRequested()) {
        ReadResult const result = readLine(in, line);
        if (result == ReadResult::End) {
            break;
        }
        ++number;
        try {
            if (result == ReadResult::TooLong) {
                throw CommandError("the line is longer than " + std::to_string(longestLine) +
                                   " bytes");
            }
            run(line);
        } catch (std::exception const& error) {
            ++failures;
            host_.out().flush();
            errors << name << ':' << number << ": " << printable(error.what(), longestMessage)
                   << std::endl;
            if (!keepGoing) {
                break;
            }
        }
    }
    return failures;
}

} // namespace app
