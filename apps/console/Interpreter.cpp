#include "Interpreter.h"

#include "Host.h"
#include "LineReader.h"

#include <algorithm>
#include <ostream>
#include <sstream>

namespace console {

namespace {

// A terminal's escape sequences in somebody's script must not reach ours.
std::string printable(std::string text, std::size_t longest) {
    for (char& c : text) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
            c = '?';
        }
    }
    if (text.size() > longest) {
        text.resize(longest);
        // Not in the middle of a character.
        while (invalidUtf8At(text) != std::string::npos) {
            text.pop_back();
        }
        text += "...";
    }
    return text;
}

constexpr std::size_t longestWord = 80;
constexpr std::size_t longestMessage = 1000;

} // namespace

Interpreter::Interpreter(Host& host) : host_(host) {
    for (auto const table :
         {sceneCommands(), eventCommands(), undoCommands(), expectCommands(), colorCommands(),
          colorwayCommands(), editCommands(), weaveCommands(), gradientCommands(), curveCommands(),
          iorCommands(), valueCommands(), paramCommands()}) {
        for (Command const& command : table) {
            commands_.push_back(&command);
        }
    }
    std::ranges::sort(commands_, {}, &Command::name);
}

void Interpreter::run(std::string_view line) {
    if (std::size_t const at = invalidUtf8At(line); at != std::string_view::npos) {
        throw CommandError("byte " + std::to_string(at + 1) + " is not valid UTF-8");
    }
    run(splitWords(line));
}

void Interpreter::run(std::vector<std::string> words) {
    if (words.empty()) {
        return;
    }
    // Names and paths end at it further down, so they would become others than those given.
    if (std::ranges::any_of(words, [](auto const& w) { return w.find('\0') != w.npos; })) {
        throw CommandError("a word holds a zero byte");
    }
    // What a command prints is kept for "expect output"; those two print nothing themselves.
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
    bool const isExpectation = words[0] == "expect";
    runWords(std::move(words));
    if (!isExpectation) {
        lastOutput_ = captured.str();
    }
}

void Interpreter::runWords(std::vector<std::string> words) {
    std::string const first = words[0];
    std::string const second = words.size() > 1 ? words[1] : std::string();
    if (first == "quit" || first == "exit") {
        Arguments({words.begin() + 1, words.end()}).done();
        quit_ = true;
        return;
    }
    if (first == "help") {
        Arguments arguments({words.begin() + 1, words.end()});
        return help(arguments);
    }
    if (first == "expect" && second == "failure") {
        return expectFailure(Arguments({words.begin() + 2, words.end()}));
    }
    if (first == "expect" && second == "output") {
        Arguments arguments({words.begin() + 2, words.end()});
        std::string const text = arguments.word("a text");
        arguments.done();
        if (lastOutput_.find(text) == std::string::npos) {
            throw CommandError("expect output: \"" + text + "\" was not printed");
        }
        return;
    }
    auto const find = [&](std::string const& name) -> Command const* {
        auto const found = std::ranges::lower_bound(commands_, name, {}, &Command::name);
        return found != commands_.end() && (*found)->name == name ? *found : nullptr;
    };
    Command const* command = words.size() > 1 ? find(first + ' ' + second) : nullptr;
    std::ptrdiff_t used = 2;
    if (command == nullptr) {
        command = find(first);
        used = 1;
    }
    if (command == nullptr) {
        throw CommandError("unknown command \"" +
                           printable(first + (second.empty() ? "" : ' ' + second), longestWord) +
                           "\"; \"help\" lists them");
    }
    Arguments arguments({words.begin() + used, words.end()});
    try {
        if (command->arguments.empty()) {
            arguments.done();
        }
        command->run(host_, arguments);
        arguments.done();
    } catch (std::exception const& error) {
        host_.pump();
        throw CommandError(std::string(command->name) + ": " + error.what());
    }
    host_.pump();
}

void Interpreter::expectFailure(Arguments arguments) {
    std::string const wanted = arguments.word("a text");
    std::vector<std::string> command = arguments.rest();
    if (command.empty()) {
        throw CommandError("expected a command");
    }
    // A line of nothing else would go as deep as it is long.
    if (command.size() > 1 && command[0] == "expect" && command[1] == "failure") {
        throw CommandError("expect failure cannot be nested");
    }
    try {
        runWords(std::move(command));
    } catch (CommandError const& error) {
        if (std::string_view(error.what()).find(wanted) == std::string_view::npos) {
            throw CommandError("expected a failure that says \"" + wanted + "\", found \"" +
                               error.what() + "\"");
        }
        return;
    }
    throw CommandError("expected a failure");
}

int Interpreter::runScript(std::istream& in, std::string const& name, bool keepGoing,
                           std::ostream& errors) {
    int failures = 0;
    int number = 0;
    std::string line;
    while (!quit_) {
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

void Interpreter::help(Arguments& arguments) {
    std::string wanted;
    for (std::string const& word : arguments.rest()) {
        wanted += (wanted.empty() ? "" : " ") + word;
    }
    bool any = false;
    for (Command const* command : commands_) {
        if (command->name.starts_with(wanted)) {
            std::string const call = std::string(command->name) +
                                     (command->arguments.empty() ? "" : " ") +
                                     std::string(command->arguments);
            host_.out() << "  " << call << std::string(call.size() < 44 ? 44 - call.size() : 1, ' ')
                        << command->help << '\n';
            any = true;
        }
    }
    if (!any) {
        throw CommandError("no command begins with \"" + printable(wanted, longestWord) + "\"");
    }
    if (wanted.empty()) {
        host_.out() << "  help [WORDS], quit\n"
                       "  expect failure TEXT COMMAND...              the command fails and says "
                       "TEXT\n"
                       "  expect output TEXT                          the last command printed "
                       "TEXT\n";
    }
}

} // namespace console
