#include "Interpreter.h"

#include "Host.h"
#include "LineReader.h"

#include <algorithm>
#include <ostream>
#include <sstream>

namespace console {

namespace {

// A terminal's escape sequences in somebody's script must not reach ours.
std::string printable(std::string text) {
    constexpr std::size_t longest = 80;
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

} // namespace

Interpreter::Interpreter(Host& host) : host_(host) {
    for (auto const table : {sceneCommands(), eventCommands(), undoCommands(), expectCommands(),
                             colorCommands(), colorwayCommands(), editCommands()}) {
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
    if (words[0] == "quit" || words[0] == "exit") {
        quit_ = true;
        return;
    }
    if (words[0] == "help") {
        words.erase(words.begin());
        Arguments arguments(std::move(words));
        return help(arguments);
    }
    if (words[0] == "expect" && words.size() > 2 && words[1] == "failure") {
        std::string const wanted = words[2];
        words.erase(words.begin(), words.begin() + 3);
        try {
            run(std::move(words));
        } catch (CommandError const& error) {
            if (std::string_view(error.what()).find(wanted) == std::string_view::npos) {
                throw CommandError("expected a failure that says \"" + wanted + "\", found \"" +
                                   error.what() + "\"");
            }
            return;
        }
        throw CommandError("expected a failure");
    }
    auto const find = [&](std::string const& name) -> Command const* {
        auto const found = std::ranges::lower_bound(commands_, name, {}, &Command::name);
        return found != commands_.end() && (*found)->name == name ? *found : nullptr;
    };
    Command const* command = words.size() > 1 ? find(words[0] + ' ' + words[1]) : nullptr;
    std::size_t used = 2;
    if (command == nullptr) {
        command = find(words[0]);
        used = 1;
    }
    if (command == nullptr) {
        throw CommandError("unknown command \"" +
                           printable(words[0] + (words.size() > 1 ? ' ' + words[1] : "")) +
                           "\"; \"help\" lists them");
    }
    words.erase(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(used));
    Arguments arguments(std::move(words));
    try {
        command->run(host_, arguments);
        arguments.done();
    } catch (CommandError const& error) {
        host_.pump();
        throw CommandError(std::string(command->name) + ": " + error.what());
    }
    host_.pump();
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
            errors << name << ':' << number << ": " << printable(error.what()) << std::endl;
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
        throw CommandError("no command begins with \"" + printable(wanted) + "\"");
    }
    if (wanted.empty()) {
        host_.out() << "  help [WORDS], quit\n"
                       "  expect failure TEXT COMMAND...              the command fails and says "
                       "TEXT\n";
    }
}

} // namespace console
